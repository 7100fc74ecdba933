// Key events to virtual keys and virtual keys to names, with a German layout
// faked (the real one under X is tst_keymappingonx11).
#include "fakekeyboardlayout.h"
#include "keychord.h"
#include "keymapping.h"
#include "testmain.h"

#include <QKeyEvent>

#include <X11/keysym.h>
#include <linux/input-event-codes.h>

namespace {

// The keys of a German keyboard these tests press, by their place.
const QHash<quint16, quint32> German = {
    {KEY_7, XK_7},
    {KEY_Y, XK_z},
    {KEY_Z, XK_y},
    {KEY_MINUS, XK_ssharp},
    {KEY_APOSTROPHE, XK_adiaeresis},
    {KEY_GRAVE, XK_dead_circumflex},
    {KEY_1, XK_1},
    {KEY_LEFTSHIFT, XK_Shift_L},
};

QKeyEvent nativeEvent(int qtKey, Qt::KeyboardModifiers modifiers, quint16 evdevCode, quint32 keysym)
{
    return QKeyEvent(QEvent::KeyPress, qtKey, modifiers, evdevCode + 8u, keysym, 0);
}

} // namespace

class KeyMappingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { KeyMapping::setLayout(std::make_unique<FakeKeyboardLayout>(German)); }
    void cleanupTestCase() { KeyMapping::setLayout(nullptr); }

    void shouldTakeTheKeyNotTheShiftedSymbol_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<int>("evdevCode");
        QTest::addColumn<quint32>("keysym");
        QTest::addColumn<int>("virtualKey");
        // Shift+7 gives "/" on a German keyboard: still the 7 key.
        QTest::newRow("Shift+7 on German") << int(Qt::Key_Slash) << KEY_7 << quint32(XK_slash) << 0x37;
        // Letters go by what the key shows, not where it sits.
        QTest::newRow("Z of German") << int(Qt::Key_Z) << KEY_Y << quint32(XK_z) << 0x5A;
        QTest::newRow("umlaut by its place")
            << int(Qt::Key_Adiaeresis) << KEY_APOSTROPHE << quint32(XK_adiaeresis) << 0xDE;
        QTest::newRow("dead key by its place")
            << int(Qt::Key_Dead_Circumflex) << KEY_GRAVE << quint32(XK_dead_circumflex) << 0xC0;
        // A layout the program cannot read: the event's own symbol.
        QTest::newRow("unread key, own symbol") << int(Qt::Key_VolumeUp) << KEY_VOLUMEUP << quint32(0x1008FF13) << 0xAF;
        // Neither symbol known: a French number row types its digit.
        QTest::newRow("unread key, by place") << int(Qt::Key_Ampersand) << KEY_2 << quint32(XK_eacute) << 0x32;
        QTest::newRow("right Control") << int(Qt::Key_Control) << KEY_RIGHTCTRL << quint32(XK_Control_R) << 0xA3;
        QTest::newRow("no such key") << int(Qt::Key_unknown) << KEY_FN << quint32(0x1008FFB0) << 0;
    }

    void shouldTakeTheKeyNotTheShiftedSymbol()
    {
        QFETCH(int, qtKey);
        QFETCH(int, evdevCode);
        QFETCH(quint32, keysym);
        QFETCH(int, virtualKey);
        QCOMPARE(KeyMapping::virtualKey(nativeEvent(qtKey, Qt::ShiftModifier, quint16(evdevCode), keysym)), virtualKey);
    }

    // What tests and platforms without native codes send.
    void shouldMapQtKeysWithoutNativeCodes_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("virtualKey");
        QTest::newRow("letter") << int(Qt::Key_T) << int(Qt::ControlModifier) << 0x54;
        QTest::newRow("play/pause") << int(Qt::Key_MediaPlay) << 0 << 0xB3;
        QTest::newRow("toggle play/pause") << int(Qt::Key_MediaTogglePlayPause) << 0 << 0xB3;
        QTest::newRow("keypad 5") << int(Qt::Key_5) << int(Qt::KeypadModifier) << 0x65;
        QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << 0x0D;
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << int(Qt::ShiftModifier) << 0x09;
        QTest::newRow("calculator") << int(Qt::Key_Calculator) << 0 << 0xB7;
        QTest::newRow("F24") << int(Qt::Key_F24) << 0 << 0x87;
        QTest::newRow("euro sign") << int(Qt::Key_unknown) << 0 << 0;
    }

    void shouldMapQtKeysWithoutNativeCodes()
    {
        QFETCH(int, qtKey);
        QFETCH(int, modifiers);
        QFETCH(int, virtualKey);
        const QKeyEvent event(QEvent::KeyPress, qtKey, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(KeyMapping::virtualKey(event), virtualKey);
    }

    void shouldNameKeysInTheUsersLayout_data()
    {
        QTest::addColumn<int>("virtualKey");
        QTest::addColumn<bool>("ctrl");
        QTest::addColumn<QString>("text");
        QTest::newRow("umlaut") << 0xDE << true << "Ctrl+Ä";
        QTest::newRow("sharp s") << 0xBD << false << "ß";
        QTest::newRow("dead circumflex") << 0xC0 << false << "^";
        QTest::newRow("letter by its symbol") << 0x5A << true << "Ctrl+Z";
        // A place the layout does not tell: the US name.
        QTest::newRow("unread punctuation") << 0xBC << false << ",";
        QTest::newRow("media") << 0xB3 << false << "Toggle Media Play/Pause";
        QTest::newRow("keypad") << 0x65 << false << "Num+5";
        QTest::newRow("right Alt") << 0xA5 << true << "Ctrl+Right Alt";
        QTest::newRow("unknown code") << 0x07 << false << "Unknown key";
    }

    void shouldNameKeysInTheUsersLayout()
    {
        QFETCH(int, virtualKey);
        QFETCH(bool, ctrl);
        QFETCH(QString, text);
        KeyChord chord;
        chord.keyCtrl = ctrl;
        chord.nativeCode = virtualKey;
        QCOMPARE(chord.text(), text);
    }

    void shouldShowModifiersInQtsOrder()
    {
        KeyChord chord;
        chord.setModifiers(Qt::MetaModifier | Qt::ShiftModifier | Qt::AltModifier | Qt::ControlModifier);
        QCOMPARE(chord.text(), QStringLiteral("Ctrl+Alt+Shift+Super+"));
        chord.nativeCode = 0x2C;
        QCOMPARE(chord.text(), QStringLiteral("Ctrl+Alt+Shift+Super+Print"));
        QVERIFY(KeyChord().text().isEmpty());
    }
};

KEYSTAGE_TEST_MAIN(KeyMappingTest)
#include "tst_keymapping.moc"
