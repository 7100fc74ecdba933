#include "configurationbackup.h"
#include "favoritekeyitemmodel.h"
#include "keyitem.h"
#include "keymodelfixture.h"
#include "layoutpage.h"
#include "resetpage.h"
#include "settingskeys.h"
#include "testmain.h"
#include "userquestion.h"

#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QToolButton>

Q_DECLARE_METATYPE(UserQuestion::Button)

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QDateTime BackupTime(QDate(2026, 11, 23), QTime(14, 5, 31));

} // namespace

// The pages that work on the key model and the settings store.
class PreferencePagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.setUp(); }

    void cleanup()
    {
        UserQuestions::setHandler(nullptr);
        m_fixture.tearDown();
    }

    // Every layout the store holds and My Favorite, each a file that
    // imports on its own, in a new folder per backup.
    void shouldBackUpEverythingIntoANewDatedFolder_data()
    {
        QTest::addColumn<int>("earlierBackups");
        QTest::addColumn<QString>("folder");
        QTest::newRow("first") << 0 << "Keystage backup 2026-11-23 14-05";
        QTest::newRow("third in the same minute") << 2 << "Keystage backup 2026-11-23 14-05 (3)";
    }

    void shouldBackUpEverythingIntoANewDatedFolder()
    {
        QFETCH(int, earlierBackups);
        QFETCH(QString, folder);
        m_fixture.put(4, KAT_PASTE_STRING, QStringLiteral("vertical fifteen"));
        m_fixture.model->changeLayoutButtonView(H_Key_6);
        m_fixture.put(1, KAT_PASTE_STRING, QStringLiteral("horizontal six"));
        m_fixture.model->saveCurrentKeyItemsToSettings();
        FavoriteKeyItemModel favorites;
        QVERIFY(favorites.appendKeyItem(m_fixture.model->keyItemAt(1)));

        QTemporaryDir parent;
        for (int i = 0; i < earlierBackups; ++i)
            QVERIFY(ConfigurationBackup::write(*m_fixture.settings, parent.path(), BackupTime).ok);
        const ConfigurationBackup::Result result =
            ConfigurationBackup::write(*m_fixture.settings, parent.path(), BackupTime);
        QVERIFY2(result.ok, qPrintable(result.error));
        QCOMPARE(result.folder, parent.path() + QLatin1Char('/') + folder);
        QCOMPARE(QDir(result.folder).entryList(QDir::Files).size(), 7);
        QCOMPARE(result.files.size(), 7);

        const QVariantMap tree = m_fixture.settings->tree();
        for (int layout = 0; layout < KeypadTable::LayoutCount; ++layout) {
            const QString file = result.folder + QLatin1Char('/') + ConfigurationBackup::layoutFileName(layout);
            const QVariantMap pages =
                tree.value(SettingsKeys::keyItemsKey(ButtonLayoutConfig::layoutName(layout))).toMap();
            QCOMPARE(readAll(file), Settings::encodeExportFile(SettingsKeys::MyLayout, pages));
            QCOMPARE(Settings::readExportFile(file).kind, Settings::ExportKind::Layout);
        }
        const QString favoritesFile = result.folder + QStringLiteral("/My Favorite.ksfavorites");
        QCOMPARE(readAll(favoritesFile), Settings::encodeExportFile(SettingsKeys::MyFavorite, favorites.toMap()));
        const Settings::ExportFile imported = Settings::readExportFile(favoritesFile);
        QCOMPARE(imported.kind, Settings::ExportKind::Favorite);
        QCOMPARE(imported.content.value(SettingsKeys::KeyCnt).toInt(), 1);
    }

    void shouldLeaveNothingBehindWhenTheBackupFails()
    {
        QTemporaryDir parent;
        const QString file = parent.path() + QStringLiteral("/a file");
        QFile(file).open(QIODevice::WriteOnly);
        for (const QString& where : {file, parent.path() + QStringLiteral("/missing"), QString()}) {
            const ConfigurationBackup::Result result =
                ConfigurationBackup::write(*m_fixture.settings, where, BackupTime);
            QVERIFY(!result.ok);
            QVERIFY(!result.error.isEmpty());
            QVERIFY(result.files.isEmpty());
        }
        QCOMPARE(QDir(parent.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"a file"});
    }

    // Every layout, not just the one in use, and on disk at once.
    void shouldResetEveryLayoutOnlyWhenConfirmed_data()
    {
        QTest::addColumn<UserQuestion::Button>("answer");
        QTest::addColumn<bool>("reset");
        QTest::newRow("Reset") << UserQuestion::Reset << true;
        QTest::newRow("Cancel") << UserQuestion::Cancel << false;
        QTest::newRow("closed") << UserQuestion::NoButton << false;
    }

    void shouldResetEveryLayoutOnlyWhenConfirmed()
    {
        QFETCH(UserQuestion::Button, answer);
        QFETCH(bool, reset);
        const QList<int> changed{V_Key_15, H_Key_32};
        for (int layout : changed) {
            m_fixture.model->changeLayoutButtonView(KeyLayout(layout));
            m_fixture.put(9, KAT_PASTE_STRING, QStringLiteral("mine"));
        }
        m_fixture.model->saveCurrentKeyItemsToSettings();
        const int before = m_fixture.model->rootList(V_Key_15)->size();
        UserQuestion asked;
        UserQuestions::setHandler([&asked, answer](const UserQuestion& question) {
            asked = question;
            return UserAnswer{answer, false};
        });
        PreferenceContext context;
        context.keyModel = m_fixture.model.get();
        ResetPage page(context);
        QTest::mouseClick(page.resetButton(), Qt::LeftButton);
        QCOMPARE(asked.slotOf(UserQuestion::Reset), int(UserQuestion::RightSlot));

        const Settings reloaded; // what the next start reads
        for (int layout : changed) {
            const QVariantMap pages =
                reloaded.value(SettingsKeys::keyItemsKey(ButtonLayoutConfig::layoutName(layout))).toMap();
            const int expected = reset ? KeyItemModel::defaultKeyItems(layout).size() : before;
            QCOMPARE(pages.value(SettingsKeys::KeyCnt).toInt(), expected);
            QCOMPARE(m_fixture.model->rootList(layout)->size(), expected);
            QCOMPARE(m_fixture.model->rootList(layout)->constFirst()->keyIdx, reset ? 0 : 9);
        }
    }

    // Size and orientation pick one of the six layouts; the page follows a
    // change made elsewhere.
    void shouldChooseTheLayoutOfSizeAndOrientation()
    {
        PreferenceContext context;
        context.layouts = &m_fixture.layouts;
        LayoutPage page(context);
        QVERIFY(page.sizeButton(15)->isChecked() && page.verticalButton()->isChecked());

        QTest::mouseClick(page.sizeButton(6), Qt::LeftButton);
        QCOMPARE(m_fixture.layouts.currentLayout(), int(V_Key_6));
        QTest::mouseClick(page.horizontalButton(), Qt::LeftButton);
        QCOMPARE(m_fixture.layouts.currentLayout(), int(H_Key_6));
        QTest::mouseClick(page.sizeButton(32), Qt::LeftButton);
        QCOMPARE(m_fixture.layouts.currentLayout(), int(H_Key_32));

        m_fixture.layouts.changeLayout(V_Key_15);
        QVERIFY(page.sizeButton(15)->isChecked());
        QVERIFY(page.verticalButton()->isChecked());
    }

private:
    KeyModelFixture m_fixture;
};

KEYSTAGE_TEST_MAIN(PreferencePagesTest)
#include "tst_preferencepages.moc"
