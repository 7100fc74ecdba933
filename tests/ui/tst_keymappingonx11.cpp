// Runs on its own Xvfb server, switched to a German layout before the
// application connects (see CMakeLists.txt).
#include "hotkeyrecorder.h"
#include "keymapping.h"
#include "testmain.h"

#include <QStandardPaths>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <cstdlib>
#include <linux/input-event-codes.h>

namespace {

// Why the layout could not be switched; empty when it was.
QString& layoutProblem()
{
    static QString problem;
    return problem;
}

int switchToGerman(int, char**)
{
    if (QStandardPaths::findExecutable(QStringLiteral("setxkbmap")).isEmpty())
        layoutProblem() = QStringLiteral("setxkbmap is not installed (Debian package x11-xkb-utils)");
    else if (std::system("setxkbmap de") != 0)
        layoutProblem() = QStringLiteral("setxkbmap de failed");
    return -1;
}

// Presses and releases keys on the server as a keyboard would: the downs in
// order, then the ups in reverse.
void typeKeys(const QList<int>& evdevCodes)
{
    Display* display = XOpenDisplay(nullptr);
    QVERIFY(display);
    for (const int code : evdevCodes)
        XTestFakeKeyEvent(display, unsigned(code + 8), True, CurrentTime);
    for (int i = evdevCodes.size() - 1; i >= 0; --i)
        XTestFakeKeyEvent(display, unsigned(evdevCodes.at(i) + 8), False, CurrentTime);
    XSync(display, False);
    XCloseDisplay(display);
}

} // namespace

class KeyMappingOnX11Test : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!layoutProblem().isEmpty())
            QSKIP(qPrintable(layoutProblem()));
    }

    void shouldNameKeysByTheLiveLayout_data()
    {
        QTest::addColumn<int>("virtualKey");
        QTest::addColumn<QString>("text");
        QTest::newRow("umlaut") << 0xDE << "Ctrl+Ä";
        QTest::newRow("sharp s") << 0xBD << "Ctrl+ß";
        QTest::newRow("dead circumflex") << 0xC0 << "Ctrl+^";
        QTest::newRow("letter") << 0x5A << "Ctrl+Z";
    }

    void shouldNameKeysByTheLiveLayout()
    {
        QFETCH(int, virtualKey);
        QFETCH(QString, text);
        KeyMapping::reloadLayout();
        KeyChord chord;
        chord.keyCtrl = true;
        chord.nativeCode = virtualKey;
        QCOMPARE(chord.text(), text);
    }

    // Real key events through the X keyboard grab: the key is taken by what
    // it shows without modifiers, so Shift+7 ("/" here) stays the 7 key.
    void shouldRecordKeysOfTheLiveLayout_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("virtualKey");
        QTest::addColumn<QString>("text");
        QTest::newRow("umlaut") << QList<int>{KEY_LEFTCTRL, KEY_APOSTROPHE} << 0xDE << "Ctrl+Ä";
        QTest::newRow("Shift+7") << QList<int>{KEY_LEFTSHIFT, KEY_7} << 0x37 << "Shift+7";
        QTest::newRow("German Z") << QList<int>{KEY_Y} << 0x5A << "Z";
    }

    void shouldRecordKeysOfTheLiveLayout()
    {
        QFETCH(QList<int>, keys);
        QFETCH(int, virtualKey);
        QFETCH(QString, text);
        HotkeyRecorder recorder;
        recorder.show();
        recorder.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&recorder));
        recorder.startRecording();
        typeKeys(keys);
        QTRY_VERIFY_WITH_TIMEOUT(!recorder.isRecording(), 20000);
        QCOMPARE(recorder.chord().nativeCode, virtualKey);
        QCOMPARE(recorder.chord().text(), text);
    }
};

KEYSTAGE_TEST_MAIN_WITH(KeyMappingOnX11Test, switchToGerman)
#include "tst_keymappingonx11.moc"
