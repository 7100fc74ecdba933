#include "faceeditor.h"
#include "facehints.h"
#include "foldercondition.h"
#include "folderform.h"
#include "formarea.h"
#include "formdialogs.h"
#include "functiondescription.h"
#include "hotkeyform.h"
#include "hotkeyrecorder.h"
#include "imagecompare.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_paststring.h"
#include "keychord.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "keypadfixture.h"
#include "launchform.h"
#include "macroeditor.h"
#include "macroform.h"
#include "testmain.h"
#include "textstringform.h"
#include "updatedevicon.h"
#include "virtualkeypadwindow.h"
#include "websiteform.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace {

constexpr int Key = 3;

QString strippedText(const QString& text)
{
    return QString(text).remove(QLatin1Char('&'));
}

// A placeholder recorder or step list names its own insides.
bool insidePlaceholder(QWidget* widget, QWidget* form)
{
    for (QWidget* w = widget->parentWidget(); w && w != form; w = w->parentWidget()) {
        if (qobject_cast<HotkeyRecorder*>(w) || qobject_cast<MacroEditor*>(w))
            return true;
    }
    return false;
}

} // namespace

class KeyItemFormsTest : public QObject
{
    Q_OBJECT

private:
    KeypadFixture fixture;
    std::unique_ptr<FormArea> area;
    QStringList dialogLog;
    QTemporaryDir iconDir;

    // The chosen application's icon: a red square.
    QString iconFile()
    {
        const QString path = iconDir.filePath(QStringLiteral("editor.png"));
        if (!QFileInfo::exists(path)) {
            QImage red(48, 48, QImage::Format_ARGB32);
            red.fill(Qt::red);
            red.save(path);
        }
        return path;
    }

    KeyItem* item() const { return fixture.model->keyItemAt(Key); }

    template <class Form>
    Form* showForm(KeyActionType type)
    {
        fixture.model->beginUpdate();
        fixture.model->createKeyAction(Key, type);
        fixture.model->endUpdate(true, item());
        area->showKeyForm(Key);
        return qobject_cast<Form*>(area->keyForm());
    }

    QImage keypadImage() const
    {
        const int layout = fixture.layouts->currentLayout();
        return VirtualKeypadWindow::upright(fixture.keypad->keyImage(Hid_Comm::deviceKeyNumber(layout, Key)), layout);
    }

    bool keypadShowsItem() const
    {
        const QImage shown = keypadImage();
        return !shown.isNull() && ImageCompare::meanDifference(shown, KeyFaceRenderer::render(item())) < 12;
    }

    // Records whether the keypad was paused while each dialog was open, and
    // answers with accept or cancel.
    void installRunner(bool accept)
    {
        Hid_Comm* hid = fixture.hid.get();
        FormDialogs::Runner runner;
        runner.chooseFile = [this, hid, accept](QWidget*, FormDialogs::FileKind kind) {
            dialogLog << QStringLiteral("file %1 paused %2").arg(int(kind)).arg(hid->isPaused());
            return accept ? QStringLiteral("/opt/My Tools/run.sh") : QString();
        };
        runner.chooseApplication = [this, hid, accept](QWidget*, ApplicationChooser::Sources sources,
                                                       ApplicationEntry* chosen) {
            dialogLog << QStringLiteral("application %1 paused %2").arg(int(sources)).arg(hid->isPaused());
            chosen->name = QStringLiteral("Text Editor");
            chosen->commandLine = QStringLiteral("gnome-text-editor --new-window");
            chosen->executable = QStringLiteral("/usr/bin/gnome-text-editor");
            chosen->iconPath = iconFile();
            return accept;
        };
        runner.chooseBookmark = [this, hid, accept](QWidget*, Bookmark* chosen) {
            dialogLog << QStringLiteral("bookmark paused %1").arg(hid->isPaused());
            chosen->title = QStringLiteral("Debian News");
            chosen->url = QStringLiteral("https://www.debian.org/News/");
            return accept;
        };
        FormDialogs::setRunner(runner);
    }

private slots:
    void init()
    {
        fixture.setUp();
        fixture.useLayout(V_Key_15);
        QTRY_VERIFY_WITH_TIMEOUT(fixture.hid->isOpened(), 30000);
        // As the main window does: an edited key goes to the keypad.
        QObject::connect(fixture.model.get(), &KeyItemModel::updateContent, fixture.model.get(),
                         [](const KeyItem* edited) {
                             if (edited)
                                 UpdateDevIcon::updateKeyIcon(edited);
                         });
        area = std::make_unique<FormArea>();
        area->resize(384, 420);
        area->show();
        dialogLog.clear();
    }

    void cleanup()
    {
        FormDialogs::setRunner({});
        area.reset();
        fixture.tearDown();
    }

    void shouldShowTheFormOfTheKeysTypeAndTheHintOtherwise_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("form");
        QTest::newRow("folder") << int(KAT_FOLDER) << "FolderForm";
        QTest::newRow("hotkey") << int(KAT_HOTKEY) << "HotkeyForm";
        QTest::newRow("macro") << int(KAT_MACROKEY) << "MacroForm";
        QTest::newRow("launch") << int(KAT_EXE_APP_FILE) << "LaunchForm";
        QTest::newRow("website") << int(KAT_OPEN_WEBSITE) << "WebsiteForm";
        QTest::newRow("text") << int(KAT_PASTE_STRING) << "TextStringForm";
        QTest::newRow("empty") << int(KAT_INVALID) << "";
    }

    void shouldShowTheFormOfTheKeysTypeAndTheHintOtherwise()
    {
        QFETCH(int, type);
        QFETCH(QString, form);
        area->showFunctionDescription(KAT_HOTKEY);
        KeyItemForm* shown = type == KAT_INVALID ? (area->showKeyForm(Key), area->keyForm())
                                                 : showForm<KeyItemForm>(KeyActionType(type));
        if (form.isEmpty()) {
            QCOMPARE(shown, nullptr);
            QCOMPARE(area->shownActionType(), int(FormArea::NoDescription));
            QVERIFY(area->functionDescription());
            return;
        }
        QVERIFY(shown);
        QCOMPARE(QString::fromLatin1(shown->metaObject()->className()), form);
        // One panel at a time.
        QCOMPARE(area->functionDescription(), nullptr);
        QVERIFY(shown->isVisible());
        QVERIFY(shown->titleField()->isVisible());

        // Selecting the same key keeps the form; a palette entry replaces it.
        area->showKeyForm(Key);
        QCOMPARE(area->keyForm(), shown);
        area->showFunctionDescription(KAT_MACROKEY);
        QCOMPARE(area->keyForm(), nullptr);
        QCOMPARE(area->shownActionType(), int(KAT_MACROKEY));
    }

    void shouldShowNoFormForTheBackKey()
    {
        showForm<FolderForm>(KAT_FOLDER);
        auto* folder = static_cast<KA_Folder*>(item()->action[0]);
        fixture.model->beginUpdate();
        fixture.model->changeListHead(folder, &folder->childList);
        fixture.model->endUpdate(true);
        // The page changed under the form: it closes.
        QTRY_COMPARE(area->keyForm(), nullptr);
        const int backKey = ButtonLayoutConfig::keyCount(V_Key_15) - 1;
        QCOMPARE(fixture.model->actionTypeAt(backKey), int(KAT_LINK_BUTTON));
        area->showKeyForm(backKey);
        QCOMPARE(area->keyForm(), nullptr);
        QCOMPARE(area->shownActionType(), int(FormArea::NoDescription));
    }

    void shouldApplyTypingAtOnceToTheModelAndTheKeypad_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("folder") << int(KAT_FOLDER);
        QTest::newRow("hotkey") << int(KAT_HOTKEY);
        QTest::newRow("launch") << int(KAT_EXE_APP_FILE);
        QTest::newRow("website") << int(KAT_OPEN_WEBSITE);
        QTest::newRow("text") << int(KAT_PASTE_STRING);
    }

    void shouldApplyTypingAtOnceToTheModelAndTheKeypad()
    {
        QFETCH(int, type);
        KeyItemForm* form = showForm<KeyItemForm>(KeyActionType(type));
        QVERIFY(form);
        QTRY_VERIFY_WITH_TIMEOUT(keypadShowsItem(), 30000);
        QTest::keyClicks(form->titleField(), QStringLiteral("Mail"));
        QCOMPARE(item()->render[0].text, QStringLiteral("Mail"));
        QTRY_VERIFY_WITH_TIMEOUT(keypadShowsItem(), 30000);

        // Live content from the keyboard: the date has no graph, the network has.
        auto* face = form->findChild<FaceEditor*>();
        QTest::keyClick(face->liveContentBox(), Qt::Key_End);
        QCOMPARE(FaceHints::liveKind(item()->render[0].hintFlags), FaceHints::LiveKind::Date);
        QVERIFY(!face->liveGraphBox()->isEnabled());
        QTest::keyClick(face->liveContentBox(), Qt::Key_Up);
        QTest::keyClick(face->liveContentBox(), Qt::Key_Up);
        QTest::keyClick(face->liveGraphBox(), Qt::Key_Space);
        QCOMPARE(item()->render[0].hintFlags, FaceHints::ShowTitle |
                                                  FaceHints::withLiveKind(0, FaceHints::LiveKind::Network) |
                                                  FaceHints::LiveGraph);
        QTRY_VERIFY_WITH_TIMEOUT(keypadShowsItem(), 30000);

        if (auto* launch = qobject_cast<LaunchForm*>(form)) {
            QTest::keyClicks(launch->commandField(), QStringLiteral("thunderbird"));
            QCOMPARE(static_cast<KA_Execute*>(item()->action[0])->path, QStringLiteral("thunderbird"));
        } else if (auto* website = qobject_cast<WebsiteForm*>(form)) {
            QTest::keyClicks(website->addressField(), QStringLiteral("mail.example.org"));
            QCOMPARE(static_cast<KA_Execute*>(item()->action[0])->path, QStringLiteral("mail.example.org"));
        } else if (auto* text = qobject_cast<TextStringForm*>(form)) {
            QTest::keyClicks(text->textField(), QStringLiteral("Hello"));
            QTest::keyClick(text->textField(), Qt::Key_Return);
            QTest::keyClicks(text->textField(), QStringLiteral("world"));
            QCOMPARE(static_cast<KA_PastString*>(item()->action[0])->strText, QStringLiteral("Hello\nworld"));
        }
    }

    void shouldNotMoveTheCursorWhileTyping()
    {
        auto* form = showForm<WebsiteForm>(KAT_OPEN_WEBSITE);
        QLineEdit* field = form->addressField();
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("debian.org"));
        field->setCursorPosition(0);
        QTest::keyClicks(field, QStringLiteral("www."));
        QCoreApplication::processEvents(); // the model's queued notifications
        QCoreApplication::processEvents();
        QCOMPARE(field->text(), QStringLiteral("www.debian.org"));
        QCOMPARE(field->cursorPosition(), 4);
        QCOMPARE(static_cast<KA_Execute*>(item()->action[0])->path, QStringLiteral("www.debian.org"));
    }

    void shouldFollowChangesFromElsewhereAndCloseWhenTheKeyGoes()
    {
        auto* form = showForm<LaunchForm>(KAT_EXE_APP_FILE);
        fixture.model->beginUpdate();
        static_cast<KA_Execute*>(item()->action[0])->path = QStringLiteral("gimp");
        item()->setTitle(0, QStringLiteral("Paint"));
        fixture.model->endUpdate(true, item());
        QTRY_COMPARE(form->commandField()->text(), QStringLiteral("gimp"));
        QCOMPARE(form->titleField()->toPlainText(), QStringLiteral("Paint"));

        fixture.model->beginUpdate();
        fixture.model->deleteKeyItem(Key);
        fixture.model->endUpdate(true);
        QTRY_COMPARE(area->keyForm(), nullptr);
        QCOMPARE(area->shownActionType(), int(FormArea::NoDescription));
    }

    void shouldToggleBetweenTwoHotkeys()
    {
        auto* form = showForm<HotkeyForm>(KAT_HOTKEY);
        QVERIFY(!form->secondTitleField()->isVisible());
        QTest::mouseClick(form->toggleBox(), Qt::LeftButton);
        QVERIFY(item()->multiFeatureFlag);
        QVERIFY(form->secondTitleField()->isVisible());
        KeyChord chord;
        chord.qtKeyCode = Qt::Key_F5;
        chord.nativeCode = 0x74;
        emit form->recorder(1)->chordChanged(chord);
        QCOMPARE(static_cast<KA_HotKey*>(item()->action[1])->nativeCode, 0x74);
        QCOMPARE(static_cast<KA_HotKey*>(item()->action[0])->nativeCode, -1);
        QTest::keyClicks(form->secondTitleField(), QStringLiteral("Reload"));
        QCOMPARE(item()->render[1].text, QStringLiteral("Reload"));
        QCOMPARE(item()->render[0].text, QString());

        const QString firstNote = form->nextPressNote()->text();
        fixture.model->beginUpdate(item());
        item()->cfIdx = 1;
        fixture.model->endUpdate(true, item());
        QTRY_VERIFY(form->nextPressNote()->text() != firstNote);

        QTest::mouseClick(form->toggleBox(), Qt::LeftButton);
        QVERIFY(!item()->multiFeatureFlag);
        QCOMPARE(item()->cfIdx, 0);
        QVERIFY(!form->secondTitleField()->isVisible());
    }

    void shouldPauseTheKeypadWhileAChooserIsOpen_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("title");
        const struct
        {
            const char* name;
            int type;
            const char* button;
            const char* dialog;
            const char* stored;
            const char* title;
        } rows[] = {
            {"launch file", KAT_EXE_APP_FILE, "Choose file…", "file 1", "\"/opt/My Tools/run.sh\"", ""},
            {"launch application", KAT_EXE_APP_FILE, "Choose application…", "application 1",
             "gnome-text-editor --new-window", "Text Editor"},
            {"website bookmark", KAT_OPEN_WEBSITE, "Choose bookmark…", "bookmark", "https://www.debian.org/News/",
             "Debian News"},
            {"folder application", KAT_FOLDER, "Choose application…", "application 3", "/usr/bin/gnome-text-editor",
             ""},
            {"folder browse", KAT_FOLDER, "Browse…", "file 0", "/opt/My Tools/run.sh", ""},
        };
        for (const auto& row : rows) {
            const QString dialog = QString::fromUtf8(row.dialog) + QStringLiteral(" paused 1");
            QTest::newRow(row.name) << row.type << QString::fromUtf8(row.button) << true << dialog
                                    << QString::fromUtf8(row.stored) << QString::fromUtf8(row.title);
            if (row.type != KAT_FOLDER || QByteArray(row.dialog) != "application 3")
                QTest::addRow("%s cancelled", row.name)
                    << row.type << QString::fromUtf8(row.button) << false << dialog << QString() << QString();
        }
    }

    void shouldPauseTheKeypadWhileAChooserIsOpen()
    {
        QFETCH(int, type);
        QFETCH(QString, button);
        QFETCH(bool, accept);
        QFETCH(QString, dialog);
        QFETCH(QString, stored);
        QFETCH(QString, title);
        installRunner(accept);
        KeyItemForm* form = showForm<KeyItemForm>(KeyActionType(type));
        QPushButton* chooser = nullptr;
        for (QPushButton* candidate : form->findChildren<QPushButton*>()) {
            if (candidate->text() == button)
                chooser = candidate;
        }
        QVERIFY(chooser);
        // From the keyboard: focus and Space.
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_Space);
        QCOMPARE(dialogLog, QStringList{dialog});
        QVERIFY(!fixture.hid->isPaused());
        const QString value = type == KAT_FOLDER ? static_cast<KA_Folder*>(item()->action[0])->appName
                                                 : static_cast<KA_Execute*>(item()->action[0])->path;
        QCOMPARE(value, stored);
        QCOMPARE(item()->render[0].text, title);
    }

    // The icon, too, goes only where the user has not chosen a picture.
    void shouldOfferTheApplicationsNameWithoutReplacingATitleAndTakeItsIcon()
    {
        installRunner(true);
        auto* form = showForm<LaunchForm>(KAT_EXE_APP_FILE);
        QTest::keyClicks(form->titleField(), QStringLiteral("Notes"));
        QTest::mouseClick(form->applicationButton(), Qt::LeftButton);
        QCOMPARE(item()->render[0].text, QStringLiteral("Notes"));
        QVERIFY(form->useNameButton()->isVisible());
        QTest::mouseClick(form->useNameButton(), Qt::LeftButton);
        QCOMPARE(item()->render[0].text, QStringLiteral("Text Editor"));
        QCOMPARE(form->titleField()->toPlainText(), QStringLiteral("Text Editor"));
        QVERIFY(!form->useNameButton()->isVisible());
        const QImage taken = item()->render[0].userImg.toImage();
        QCOMPARE(taken.pixelColor(taken.rect().center()), QColor(Qt::red));

        QImage chosen(72, 72, QImage::Format_ARGB32);
        chosen.fill(Qt::blue);
        item()->render[0].userImg = item()->render[1].userImg = QPixmap::fromImage(chosen);
        QTest::mouseClick(form->applicationButton(), Qt::LeftButton);
        QCOMPARE(item()->render[0].userImg.toImage().pixelColor(36, 36), QColor(Qt::blue));
    }

    void shouldNameEveryControlAsItsLabelAndReachItByTab_data()
    {
        QTest::addColumn<int>("type");
        for (int type = KAT_FOLDER; type <= KAT_PASTE_STRING; ++type)
            QTest::newRow(qPrintable(keyActionTypeToString(type))) << type;
    }

    void shouldNameEveryControlAsItsLabelAndReachItByTab()
    {
        QFETCH(int, type);
        KeyItemForm* form = showForm<KeyItemForm>(KeyActionType(type));
        if (auto* hotkey = qobject_cast<HotkeyForm*>(form))
            hotkey->toggleBox()->setChecked(true);
        QHash<QWidget*, QString> labels;
        for (QLabel* label : form->findChildren<QLabel*>()) {
            if (label->buddy())
                labels.insert(label->buddy(), label->text());
        }
        QList<QWidget*> controls;
        for (QWidget* widget : form->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || insidePlaceholder(widget, form))
                continue;
            controls << widget;
            QString visible = labels.value(widget);
            if (auto* button = qobject_cast<QAbstractButton*>(widget))
                visible = button->text().isEmpty() ? button->toolTip() : strippedText(button->text());
            QVERIFY2(!visible.isEmpty(), widget->metaObject()->className());
            QCOMPARE(widget->accessibleName(), visible);
        }
        QVERIFY(controls.contains(form->titleField()));
        // Tab from the title goes through every control of the form.
        QWidget* at = form->titleField();
        QSet<QWidget*> reached;
        for (int step = 0; step < 200 && reached.size() < controls.size(); ++step) {
            if (controls.contains(at))
                reached.insert(at);
            at = at->nextInFocusChain();
        }
        QCOMPARE(reached.size(), controls.size());
    }

    void shouldSayWhatTellsTheApplicationInFront()
    {
        auto* form = showForm<FolderForm>(KAT_FOLDER);
        const QString notice = FolderCondition::sourceNotice();
        if (notice.isEmpty())
            QCOMPARE(form->sourceNote(), nullptr);
        else
            QCOMPARE(form->sourceNote()->text(), notice);
        fixture.model->beginUpdate();
        static_cast<KA_Folder*>(item()->action[0])->appName = QStringLiteral("/usr/bin/gimp");
        fixture.model->endUpdate(true, item());
        QTRY_VERIFY(form->clearButton()->isEnabled());
        QTest::mouseClick(form->clearButton(), Qt::LeftButton);
        QCOMPARE(static_cast<KA_Folder*>(item()->action[0])->appName, QString());
        QCOMPARE(form->applicationField()->text(), QString());
    }
};

KEYSTAGE_TEST_MAIN(KeyItemFormsTest)
#include "tst_keyitemforms.moc"
