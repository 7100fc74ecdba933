#include "dialog.h"
#include "faceeditor.h"
#include "favorite.h"
#include "favoritekeyitemmodel.h"
#include "formarea.h"
#include "formdialogs.h"
#include "hotkeyform.h"
#include "iconcatalog.h"
#include "iconchooser.h"
#include "imagecompare.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemform.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "languagepage.h"
#include "mainwindow.h"
#include "preference.h"
#include "preferencedialog.h"
#include "preferencelauncher.h"
#include "preferencepage.h"
#include "resetpage.h"
#include "simulatedkeypad.h"
#include "startup.h"
#include "testmain.h"
#include "titlestyledialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFontComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

const char* const LanguageNames[] = {"en-us", "ja", "zh-TW", "it", "de", "fr"};
const char* const TsSuffixes[] = {"en_us", "ja", "zh_TW", "it", "de", "fr"};

// Words that are the same in every language: names, and key names as
// printed on keyboards.
const QStringList SameEverywhere = {QStringLiteral("Keystage"), QStringLiteral("Ctrl"),    QStringLiteral("Alt"),
                                    QStringLiteral("Shift"),    QStringLiteral("Super"),   QStringLiteral("Esc"),
                                    QStringLiteral("OK"),       QStringLiteral("Tab"),     QStringLiteral("Enter"),
                                    QStringLiteral("URL"),      QStringLiteral("Firmware")};

QString withoutMnemonic(QString text)
{
    text.replace(QRegularExpression(QStringLiteral("&(.)")), QStringLiteral("\\1"));
    return text;
}

// The English source texts, and those a language deliberately keeps as
// they are ("Layout" in German), read from the language's .ts file.
struct SourceTexts
{
    QSet<QString> plain;
    QList<QRegularExpression> withArguments;
    QSet<QString> keptAsIs;

    bool load(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QLatin1String("source")) {
                source = withoutMnemonic(xml.readElementText());
                add(source);
            } else if (xml.name() == QLatin1String("translation") &&
                       xml.attributes().value(QLatin1String("type")).isEmpty()) {
                if (withoutMnemonic(xml.readElementText(QXmlStreamReader::IncludeChildElements)) == source)
                    keptAsIs.insert(source);
            }
        }
        return !xml.hasError() && !plain.isEmpty();
    }

    void add(const QString& source)
    {
        static const QRegularExpression argument(QStringLiteral("%(\\d|n)"));
        if (!source.contains(argument)) {
            plain.insert(source);
            return;
        }
        // "Restart %1 now?" is English whatever %1 holds, as long as the
        // words around the arguments say something.
        QString fixed = source;
        fixed.remove(argument);
        if (!fixed.contains(QRegularExpression(QStringLiteral("[A-Za-z]{3,}"))))
            return;
        QString pattern = QRegularExpression::escape(source);
        pattern.replace(QRegularExpression(QStringLiteral("%(\\d|n)")), QStringLiteral(".*"));
        withArguments << QRegularExpression(QStringLiteral("^") + pattern + QStringLiteral("$"),
                                            QRegularExpression::DotMatchesEverythingOption);
    }

    // The English source a shown text is, or an empty string.
    QString englishSourceOf(const QString& shown) const
    {
        const QString text = withoutMnemonic(shown);
        if (plain.contains(text))
            return keptAsIs.contains(text) ? QString() : text;
        for (const QRegularExpression& expression : withArguments) {
            if (expression.match(text).hasMatch())
                return expression.pattern();
        }
        return QString();
    }
};

int textWidth(const QFontMetrics& metrics, const QString& text)
{
    return metrics.size(Qt::TextShowMnemonic, text).width();
}

// Walks every visible text of a window and notes what does not fit the room
// it is given, and what is still English in another language.
class TextInspector
{
public:
    TextInspector(int language, const SourceTexts* sources) : m_language(language), m_sources(sources) {}

    QStringList clipped;
    QStringList english;

    void inspect(const QString& where, QWidget* root)
    {
        settle(root);
        QList<QWidget*> widgets = root->findChildren<QWidget*>();
        widgets.prepend(root);
        for (QWidget* widget : qAsConst(widgets)) {
            if (!widget->isVisible() || widget->width() <= 0)
                continue;
            const QString place = QStringLiteral("%1: %2 > %3 %4")
                                      .arg(where, QLatin1String(widget->window()->metaObject()->className()),
                                           QLatin1String(widget->metaObject()->className()), widget->objectName());
            checkInsideWindow(place, widget, root);
            if (auto* label = qobject_cast<QLabel*>(widget))
                inspectLabel(place, label);
            else if (auto* button = qobject_cast<QAbstractButton*>(widget))
                inspectButton(place, button);
            else if (auto* group = qobject_cast<QGroupBox*>(widget))
                fit(place, group->title(), textWidth(group->fontMetrics(), group->title()),
                    group->contentsRect().width());
            else if (auto* tabs = qobject_cast<QTabBar*>(widget))
                inspectTabBar(place, tabs);
            else if (auto* combo = qobject_cast<QComboBox*>(widget))
                inspectComboBox(place, combo);
            else if (auto* list = qobject_cast<QListWidget*>(widget))
                inspectList(place, list);
            else if (auto* header = qobject_cast<QHeaderView*>(widget))
                inspectHeader(place, header);
            else if (auto* edit = qobject_cast<QLineEdit*>(widget))
                checkLanguage(place, edit->placeholderText());
            else if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
                checkLanguage(place, text->placeholderText());
        }
    }

    static void settle(QWidget* root)
    {
        for (int pass = 0; pass < 3; ++pass) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            if (root->layout())
                root->layout()->activate();
        }
    }

private:
    // A widget that stays on screen from window to window (the page list
    // of the preferences) is reported once.
    bool firstTime(const QString& place, const QString& text)
    {
        const QString widget = place.section(QStringLiteral(": "), 1);
        const QString key = widget + QLatin1Char('\n') + text;
        if (m_reported.contains(key))
            return false;
        m_reported.insert(key);
        return true;
    }

    void clip(const QString& place, const QString& text, int needed, int room, const char* unit = "px")
    {
        if (needed > room && firstTime(place, text))
            clipped << QStringLiteral("%1 \"%2\" needs %3 %4, has %5").arg(place, text).arg(needed).arg(unit).arg(room);
    }

    // Checks one text's language and that it fits the room it has.
    void fit(const QString& place, const QString& text, int needed, int room)
    {
        checkLanguage(place, text);
        clip(place, text, needed, room);
    }

    // A control that sticks out sideways of a parent (a form wider than its
    // column) is cut off there, however well its own text fits it.
    void checkInsideWindow(const QString& place, QWidget* widget, QWidget* root)
    {
        const bool showsText = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                               qobject_cast<QComboBox*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                               qobject_cast<QAbstractScrollArea*>(widget);
        QRect rect = widget->rect();
        for (QWidget* child = widget; showsText && child != root && child->parentWidget();
             child = child->parentWidget()) {
            rect.translate(child->pos());
            const int outside = qMax(rect.right() + 1 - child->parentWidget()->width(), -rect.left());
            if (outside > 0 && firstTime(place, QStringLiteral("outside")))
                clipped << QStringLiteral("%1 sticks out of %2 %3 by %4 px")
                               .arg(place, QLatin1String(child->parentWidget()->metaObject()->className()),
                                    child->parentWidget()->objectName())
                               .arg(outside);
            if (outside > 0)
                return;
        }
    }

    void checkLanguage(const QString& place, const QString& text)
    {
        if (m_language == 0 || text.trimmed().isEmpty() || SameEverywhere.contains(withoutMnemonic(text)))
            return;
        const QString source = m_sources->englishSourceOf(text);
        // A text that never went through tr() is no source at all; in
        // Japanese and Chinese two English words in a row give it away.
        static const QRegularExpression englishWords(QStringLiteral("\\b[A-Za-z]{3,}\\s+[A-Za-z]{3,}\\b"));
        static const QRegularExpression han(QStringLiteral("[\\x{3040}-\\x{9fff}]"));
        const bool untranslated =
            (m_language == 1 || m_language == 2) && !text.contains(han) && withoutMnemonic(text).contains(englishWords);
        if ((!source.isEmpty() || untranslated) && firstTime(place, text))
            english << QStringLiteral("%1 \"%2\"").arg(place, text);
    }

    void inspectLabel(const QString& place, QLabel* label)
    {
        const QString text = label->text();
        if (text.isEmpty() || label->textFormat() == Qt::RichText || Qt::mightBeRichText(text)) {
            if (!text.isEmpty() && !label->wordWrap())
                clip(place, text, label->sizeHint().width(), label->width());
            return;
        }
        if (!label->wordWrap()) {
            const int room = label->contentsRect().width() - 2 * label->margin();
            fit(place, text, textWidth(label->fontMetrics(), text) + qMax(0, label->indent()), room);
            return;
        }
        // A wrapped label breaks even inside a word where it must; one that
        // is too short cuts off its last lines.
        checkLanguage(place, text);
        clip(place, text, label->heightForWidth(label->width()), label->height(), "px high");
    }

    void inspectButton(const QString& place, QAbstractButton* button)
    {
        const QString text = button->text();
        auto* tool = qobject_cast<QToolButton*>(button);
        if (text.isEmpty())
            return;
        if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
            return checkLanguage(place, text);
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = text;
        option.icon = button->icon();
        option.iconSize = button->iconSize();
        QStyle* style = button->style();
        int needed =
            textWidth(button->fontMetrics(), text) + (button->icon().isNull() ? 0 : button->iconSize().width() + 4);
        int room = button->contentsRect().width();
        if (auto* push = qobject_cast<QPushButton*>(button)) {
            room = style->subElementRect(QStyle::SE_PushButtonContents, &option, button).width();
            needed += push->menu() ? style->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, button) : 0;
        } else if (qobject_cast<QCheckBox*>(button)) {
            room = style->subElementRect(QStyle::SE_CheckBoxContents, &option, button).width();
        } else if (qobject_cast<QRadioButton*>(button)) {
            room = style->subElementRect(QStyle::SE_RadioButtonContents, &option, button).width();
        } else if (tool) {
            needed = tool->sizeHint().width();
            room = tool->width();
        }
        fit(place, text, needed, room);
    }

    void inspectTabBar(const QString& place, QTabBar* tabs)
    {
        // The text sits inside the tab's side margins; a tab made narrower
        // than that shows it elided.
        const int margins = tabs->style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, tabs) / 2;
        for (int i = 0; i < tabs->count(); ++i)
            fit(place + QStringLiteral(" tab"), tabs->tabText(i),
                textWidth(tabs->fontMetrics(), tabs->tabText(i)) +
                    (tabs->tabIcon(i).isNull() ? 0 : tabs->iconSize().width()),
                tabs->tabRect(i).width() - margins);
    }

    void inspectComboBox(const QString& place, QComboBox* combo)
    {
        // Font names are not ours to fit or translate.
        if (qobject_cast<QFontComboBox*>(combo))
            return;
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.editable = combo->isEditable();
        option.frame = combo->hasFrame();
        const int room =
            combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo).width();
        for (int i = 0; i < combo->count(); ++i)
            fit(place + QStringLiteral(" item"), combo->itemText(i),
                combo->fontMetrics().horizontalAdvance(combo->itemText(i)) +
                    (combo->itemIcon(i).isNull() ? 0 : combo->iconSize().width() + 4),
                room);
    }

    void inspectHeader(const QString& place, QHeaderView* header)
    {
        const int margins = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
        for (int section = 0; section < header->count(); ++section) {
            const QString text = header->model()->headerData(section, header->orientation()).toString();
            // The last section may reach past the view when it stretches.
            if (!header->isSectionHidden(section))
                fit(place + QStringLiteral(" section"), text, header->fontMetrics().horizontalAdvance(text) + margins,
                    qMin(header->sectionSize(section),
                         header->viewport()->width() - header->sectionViewportPosition(section)));
        }
    }

    void inspectList(const QString& place, QListWidget* list)
    {
        for (int i = 0; i < list->count(); ++i) {
            // The item's own size hint holds its text, icon and padding.
            const QRect rect = list->visualItemRect(list->item(i));
            if (!list->item(i)->isHidden())
                fit(place + QStringLiteral(" item"), list->item(i)->text(),
                    list->sizeHintForIndex(list->model()->index(i, 0)).width(),
                    qMin(rect.right() + 1, list->viewport()->width()) - rect.left());
        }
    }

    int m_language;
    const SourceTexts* m_sources;
    QSet<QString> m_reported;
};

} // namespace

// The editor in each of its languages, every window and question shown:
// every text fits the room it is given, and none is left in English.
class LanguageFitTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<MainWindow> window;
    TextInspector* inspector = nullptr;
    QList<UserQuestion> questions;

    KeyItemGridView* grid() const { return window->keyGrid(); }
    KeyItemModel* model() const { return window->keyItemModel(); }

    int emptyKey() const
    {
        for (int key = 0; key < grid()->keyButtonCount() - 1; ++key) {
            if (!model()->keyItemAt(key))
                return key;
        }
        return -1;
    }

    KeyItemForm* selectKey(int key)
    {
        grid()->cancelSelectedKeyButton(false);
        QTest::mouseClick(grid()->keyButton(key), Qt::LeftButton);
        TextInspector::settle(window.get());
        return window->formArea()->keyForm();
    }

    int newKey(int type)
    {
        const int key = emptyKey();
        if (key >= 0)
            grid()->createNewAction(type, key);
        return key;
    }

    // Kept in the build tree (tests/app/renders) for a person to look over.
    void saveRender(const QString& what, QWidget* widget)
    {
        const QString file = QStringLiteral("/language_%1_%2.png").arg(QTest::currentDataTag(), what);
        QVERIFY(widget->grab().save(ImageCompare::renderDirectory() + file));
    }

    void inspectForms()
    {
        for (int type = KAT_FOLDER; type <= KAT_PASTE_STRING; ++type) {
            const int key = newKey(type);
            QVERIFY(key >= 0);
            KeyItemForm* form = selectKey(key);
            QVERIFY2(form, qPrintable(keyActionTypeToString(type)));
            inspector->inspect(QStringLiteral("form %1").arg(keyActionTypeToString(type)), window.get());
            if (auto* hotkey = qobject_cast<HotkeyForm*>(form)) {
                hotkey->toggleBox()->setChecked(true);
                inspector->inspect(QStringLiteral("form Hotkey, two features"), window.get());
                saveRender(QStringLiteral("form"), window->rightColumn());
            }
            if (type == KAT_OPEN_WEBSITE)
                inspectFaceDialogs(form);
        }
    }

    // The title style dialog and the icon chooser, opened from the form as
    // a person would, shown without blocking and looked over.
    void inspectFaceDialogs(KeyItemForm* form)
    {
        FormDialogs::Runner runner;
        runner.chooseTitleStyle = [this](QWidget* parent, const KeyRenderInfo& face, const QSize& size, TitleStyle*) {
            TitleStyleDialog dialog(face, size, parent);
            dialog.show();
            inspector->inspect(QStringLiteral("title style"), &dialog);
            return false;
        };
        runner.chooseIcon = [this](QWidget* parent, const KeyRenderInfo& face, QImage*) {
            // A catalog of this language's own, read to the end, so the
            // emoji tab shows names and not a progress note.
            IconCatalog catalog(EmojiCatalog::defaultPath());
            IconChooser dialog(face, parent, &catalog);
            dialog.show();
            catalog.request(IconCatalog::Emoji);
            if (!QTest::qWaitFor([&catalog] { return catalog.hasResult(IconCatalog::Emoji); }, 60000))
                inspector->english << QStringLiteral("the emoji list was not read");
            auto* tabs = dialog.findChild<QTabWidget*>();
            for (int tab = 0; tabs && tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                inspector->inspect(QStringLiteral("icon chooser, %1").arg(tabs->tabText(tab)), &dialog);
            }
            return false;
        };
        FormDialogs::setRunner(runner);
        auto* face = form->findChild<FaceEditor*>();
        QVERIFY(face);
        face->styleButton()->click();
        face->chooseIconButton()->click();
        FormDialogs::setRunner(FormDialogs::Runner());
    }

    // A copy of a favourite, and a favourite folder of a bigger keypad that
    // asks before it is dropped into a smaller one.
    void inspectFavoriteCopies()
    {
        FavoriteKeyItemModel* favorites = window->favorites();
        const int launch = newKey(KAT_EXE_APP_FILE);
        QVERIFY(favorites->appendKeyItem(model()->keyItemAt(launch)));
        const int copy = emptyKey();
        grid()->controller_dropKeyItemFromFavoriteGridView(favorites->keyItems().constLast(), copy);
        QVERIFY(selectKey(copy));
        inspector->inspect(QStringLiteral("form of a favourite copy"), window.get());

        const KeyItem bigFolder(KAT_FOLDER, 0, V_Key_32);
        grid()->controller_dropKeyItemFromFavoriteGridView(&bigFolder, emptyKey());
    }

    void inspectBackKey()
    {
        const int key = newKey(KAT_FOLDER);
        auto* folder = dynamic_cast<KA_Folder*>(model()->keyItemAt(key)->action[0]);
        QVERIFY(folder);
        model()->changeListHead(folder, &folder->childList);
        TextInspector::settle(window.get());
        selectKey(grid()->keyButtonCount() - 1);
        inspector->inspect(QStringLiteral("back key"), window.get());
        model()->changeListToRoot();
    }

    void inspectPreferences()
    {
        PreferenceDialog* dialog = window->preferences()->open();
        QVERIFY(dialog);
        for (int page = 0; page < dialog->pageCount(); ++page) {
            dialog->setCurrentPage(page);
            inspector->inspect(QStringLiteral("preferences, %1").arg(dialog->page(page)->title()), dialog);
            if (page == 0)
                saveRender(QStringLiteral("preferences"), dialog);
        }
        if (auto* language = dialog->findPage<LanguagePage>()) {
            language->languageList()->setCurrentRow(language->storedIndex() == 4 ? 5 : 4);
            language->apply();
        }
        if (auto* reset = dialog->findPage<ResetPage>())
            reset->resetAllKeys();
        window->preferences()->closeNow();
    }

    void inspectFavorites()
    {
        Favorite* favorite = window->favoriteWindow();
        favorite->show();
        inspector->inspect(QStringLiteral("My Favorite"), favorite);
        favorite->onResetAllBtnClicked();
        // An import that would overflow the list asks first.
        FavoriteKeyItemModel* favorites = window->favorites();
        QVariantMap overflowing{{QStringLiteral("KeyCnt"), FavoriteKeyItemModel::MaxItems + 1}};
        for (int i = 0; i <= FavoriteKeyItemModel::MaxItems; ++i)
            overflowing.insert(QStringLiteral("keyMap_%1").arg(i), QVariantMap{{QStringLiteral("item"), i}});
        favorites->appendKeyItemFromImportedFile(overflowing);
        // ... and a full list says so.
        QVERIFY(favorites->count() > 0);
        while (favorites->count() < FavoriteKeyItemModel::MaxItems)
            QVERIFY(favorites->appendKeyItem(favorites->keyItems().constFirst()));
        favorites->appendKeyItemFromImportedFile({{QStringLiteral("KeyCnt"), 1}});
        favorite->hide();
    }

    void inspectQuestions()
    {
        window->onLayoutImported(QVariantMap());
        grid()->handleKB_DelConfirmMsgBox();
        Preference::DeviceInfo firmware;
        firmware.currentVersion = QStringLiteral("1.0.2");
        firmware.packagedVersion = QStringLiteral("1.1.0");
        questions << Preference::updateQuestion(firmware);
        for (const UserQuestion& question : qAsConst(questions)) {
            Dialog dialog(window.get());
            dialog.setupQuestion(question);
            dialog.show();
            inspector->inspect(QStringLiteral("question \"%1\"").arg(question.subject), &dialog);
        }
    }

private slots:
    void initTestCase() { Startup::applyStyleSheet(); }

    void shouldFitAndTranslateEveryText_data()
    {
        QTest::addColumn<int>("language");
        for (int language = 0; language < int(std::size(LanguageNames)); ++language)
            QTest::newRow(LanguageNames[language]) << language;
    }

    void shouldFitAndTranslateEveryText()
    {
        QFETCH(int, language);
        SourceTexts sources;
        QVERIFY(sources.load(QStringLiteral(KEYSTAGE_TRANSLATIONS_DIR "/keystage_%1.ts").arg(TsSuffixes[language])));
        QTranslator translator;
        MainWindow::installTranslator(&translator, language);
        SimulatedKeypad keypad;
        HidTransport::setInstance(&keypad);
        TextInspector textInspector(language, &sources);
        inspector = &textInspector;
        questions.clear();
        settings = std::make_unique<QSettings>();
        settings->clear();
        window = std::make_unique<MainWindow>(settings.get(), false);
        UserQuestions::setHandler([this](const UserQuestion& question) {
            questions << question;
            return UserAnswer{UserQuestion::Cancel, false};
        });
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));

        inspector->inspect(QStringLiteral("editor"), window.get());
        saveRender(QStringLiteral("editor"), window.get());
        inspectForms();
        inspectFavoriteCopies();
        inspectBackKey();
        inspectPreferences();
        inspectFavorites();
        inspectQuestions();
        QVERIFY2(questions.size() >= 9, qPrintable(QString::number(questions.size())));

        window.reset();
        settings.reset();
        HidTransport::setInstance(nullptr);
        QCoreApplication::removeTranslator(&translator);
        const QString report = QStringLiteral("\nClipped:\n  %1\nEnglish:\n  %2")
                                   .arg(textInspector.clipped.join(QStringLiteral("\n  ")),
                                        textInspector.english.join(QStringLiteral("\n  ")));
        // QtTest shortens long failure messages; the whole list goes to the log.
        if (!textInspector.clipped.isEmpty() || !textInspector.english.isEmpty())
            qInfo().noquote() << report;
        QVERIFY2(textInspector.clipped.isEmpty() && textInspector.english.isEmpty(), qPrintable(report));
    }
};

KEYSTAGE_TEST_MAIN(LanguageFitTest)
#include "tst_languagefit.moc"
