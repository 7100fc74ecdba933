#include "buttonlayoutconfig.h"
#include "favoritekeyitemmodel.h"
#include "ka_paststring.h"
#include "keyitem.h"
#include "keyitemserialization.h"
#include "logcapture.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "testmain.h"
#include "userquestion.h"

#include <limits>

namespace {

KeyItem* textKey(const QString& text, int layout = V_Key_15)
{
    auto* item = new KeyItem(KAT_PASTE_STRING, 0, layout);
    static_cast<KA_PastString*>(item->action[0])->strText = text;
    return item;
}

QString textOf(const KeyItem* item)
{
    return static_cast<KA_PastString*>(item->action[0])->strText;
}

QVariantMap fileOf(int count, const QString& prefix)
{
    QList<KeyItem*> items;
    for (int i = 0; i < count; ++i)
        items << textKey(prefix + QString::number(i));
    const QVariantMap map = pageToMap(items);
    qDeleteAll(items);
    return map;
}

} // namespace

class FavoriteKeyItemModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(Settings().fileName());
        m_settings = std::make_unique<Settings>();
        ObjectRegistry::registerObject(ComponentId::Settings, m_settings.get());
        m_questions.clear();
        UserQuestions::setHandler([this](const UserQuestion& question) {
            m_questions << question;
            return UserAnswer{m_answer, false};
        });
    }

    void cleanup()
    {
        UserQuestions::setHandler(nullptr);
        ObjectRegistry::clear();
        m_settings.reset();
    }

    // A file's "KeyCnt" may be anything; the questions speak of the items it
    // holds, and no count makes them go unasked.
    void shouldAskBeforeLosingItemsOverTheLimit_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("keyCnt");
        QTest::addColumn<int>("kept");
        QTest::newRow("continued") << int(UserQuestion::Continue) << 5 << 60;
        QTest::newRow("cancelled") << int(UserQuestion::Cancel) << 5 << 58;
        QTest::newRow("closed by the title bar") << int(UserQuestion::NoButton) << 5 << 58;
        const int huge = std::numeric_limits<int>::max();
        QTest::newRow("continued, KeyCnt 2147483647") << int(UserQuestion::Continue) << huge << 60;
        QTest::newRow("cancelled, KeyCnt 2147483647") << int(UserQuestion::Cancel) << huge << 58;
        QTest::newRow("continued, KeyCnt 1000") << int(UserQuestion::Continue) << 1000 << 60;
    }

    void shouldAskBeforeLosingItemsOverTheLimit()
    {
        QFETCH(int, answer);
        QFETCH(int, keyCnt);
        QFETCH(int, kept);
        FavoriteKeyItemModel model;
        model.appendKeyItemFromImportedFile(fileOf(58, QStringLiteral("old")));
        QCOMPARE(model.count(), 58);
        QVERIFY(m_questions.isEmpty());

        m_answer = UserQuestion::Button(answer);
        QVariantMap file = fileOf(5, QStringLiteral("new"));
        file.insert(SettingsKeys::KeyCnt, keyCnt);
        model.appendKeyItemFromImportedFile(file);
        QCOMPARE(m_questions.size(), 1);
        QCOMPARE(m_questions.first().subject, QStringLiteral("The limit of \"My Favorite\" is 60 items."));
        QCOMPARE(m_questions.first().text,
                 QStringLiteral("You already have 58 item in \"My Favorite.\" If continues, 3 "
                                "item will be lost. Are you sure you want to proceed?"));
        QCOMPARE(m_questions.first().buttons[UserQuestion::MidSlot], UserQuestion::Cancel);
        QCOMPARE(m_questions.first().buttons[UserQuestion::RightSlot], UserQuestion::Continue);
        QCOMPARE(model.count(), kept);
        QCOMPARE(textOf(model.keyItems().last()), kept == 60 ? QStringLiteral("new1") : QStringLiteral("old57"));
    }

    void shouldRefuseImportsWhenFullOrWithoutKeyCount()
    {
        FavoriteKeyItemModel model;
        model.appendKeyItemFromImportedFile(fileOf(60, QStringLiteral("old")));
        m_answer = UserQuestion::Continue;
        model.appendKeyItemFromImportedFile(fileOf(1, QStringLiteral("new")));
        QCOMPARE(m_questions.size(), 1);
        QCOMPARE(m_questions.first().subject, QStringLiteral("You have reached the limit of \"My Favorite\"."));
        QVERIFY(m_questions.first().text.startsWith(QStringLiteral("Import ")));
        QCOMPARE(model.count(), 60);
        KeyItem extra(KAT_HOTKEY, 0, V_Key_15);
        QVERIFY(!model.appendKeyItem(&extra));

        model.removeAll();
        LogCapture capture;
        QVariantMap map = fileOf(2, QStringLiteral("x"));
        map.remove(SettingsKeys::KeyCnt);
        model.appendKeyItemFromImportedFile(map);
        QCOMPARE(model.count(), 0);
        QCOMPARE(capture.matching(QStringLiteral("Err: Can't find saved key!")).size(), 1);
    }

    void shouldKeepEachItemsOwnLayoutAcrossARestartAndAnExport()
    {
        ButtonLayoutConfig layouts;
        layouts.changeLayout(H_Key_6);
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
        {
            FavoriteKeyItemModel model;
            KeyItem folder(KAT_FOLDER, 7, V_Key_32);
            QVERIFY(model.appendKeyItem(&folder));
            std::unique_ptr<KeyItem> text(textKey(QStringLiteral("kept")));
            QVERIFY(model.appendKeyItem(text.get()));
        }
        Settings reopened;
        QVERIFY(!reopened.loadedDefaults());
        ObjectRegistry::registerObject(ComponentId::Settings, &reopened);
        FavoriteKeyItemModel model;
        model.reloadKeyItemsFromSettings();
        QCOMPARE(model.count(), 2);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("mine.ksfavorites"));
        QVERIFY(reopened.exportMyFavorite(path));
        model.removeAll();
        model.importFile(path);
        QCOMPARE(model.count(), 2);
        QCOMPARE(model.keyItems().first()->layout, int(V_Key_32));
        QCOMPARE(textOf(model.keyItems().at(1)), QStringLiteral("kept"));
        model.removeKeyItem(5); // none there
        model.removeKeyItem(0);
        QCOMPARE(model.count(), 1);
        ObjectRegistry::registerObject(ComponentId::Settings, m_settings.get());
    }

private:
    std::unique_ptr<Settings> m_settings;
    QList<UserQuestion> m_questions;
    UserQuestion::Button m_answer = UserQuestion::NoButton;
};

KEYSTAGE_TEST_MAIN(FavoriteKeyItemModelTest)
#include "tst_favoritekeyitemmodel.moc"
