#include "functiondescription.h"
#include "testmain.h"

#include <QLabel>

class FunctionDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldShowHeadingAndText_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("start");
        // clang-format off
        QTest::newRow("folder")      << 0 << "Folder"      << "Store an organized group of key actions.";
        QTest::newRow("hotkey")      << 1 << "Hotkey"      << "A key or a combination of keys";
        QTest::newRow("macro")       << 2 << "Macro key"   << "A sequence of commands or keyboard strokes";
        QTest::newRow("launch")      << 3 << "Launch"      << "Execute an application, file, folder path";
        QTest::newRow("website")     << 4 << "Website"     << "Search the web or navigate the site";
        QTest::newRow("text string") << 5 << "Text String" << "A sequence of characters defined by users.";
        // clang-format on
        const QString hint = QStringLiteral("Drag an action from above list and drop into section on the left.");
        QTest::newRow("none") << 7 << QString() << hint;
        QTest::newRow("invalid") << -1 << QString() << hint;
    }

    void shouldShowHeadingAndText()
    {
        QFETCH(int, type);
        QFETCH(QString, title);
        QFETCH(QString, start);
        QWidget window;
        auto* panel = new FunctionDescription(type, &window);
        panel->updateContent(nullptr);
        QCOMPARE(panel->actionType(), type);
        QCOMPARE(label(panel, "FunctionDescriptionTitle")->text(), title);
        QLabel* text = label(panel, "FunctionDescriptionText");
        QVERIFY(text->text().startsWith(start) && !text->text().contains(QLatin1Char('\n')));
        QCOMPARE(label(panel, "FunctionDescriptionTitle")->isVisibleTo(&window), !title.isEmpty());
        if (title.isEmpty()) // out of the palette: no picture
            QVERIFY(!label(panel, "FunctionDescriptionImage")->isVisibleTo(&window));
    }

private:
    static QLabel* label(FunctionDescription* panel, const char* name)
    {
        return panel->findChild<QLabel*>(QLatin1String(name));
    }
};

KEYSTAGE_TEST_MAIN(FunctionDescriptionTest)
#include "tst_functiondescription.moc"
