#include "testmain.h"
#include "virtualkeytable.h"

#include <QSet>

#include <X11/XF86keysym.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>
#include <climits>
#include <libevdev/libevdev.h>

namespace {

// Every virtual key a hotkey or macro can record.
QVector<int> recordableKeys()
{
    QVector<int> keys;
    auto range = [&keys](int first, int last) {
        for (int key = first; key <= last; ++key)
            keys.append(key);
    };
    range(0x41, 0x5A); // letters
    range(0x30, 0x39); // digits
    range(0x70, 0x87); // F1-F24
    range(0x60, 0x6F); // numpad
    range(0xA0, 0xA5); // left and right modifiers
    range(0xA6, 0xB7); // browser and media keys
    range(0xBA, 0xC0); // punctuation
    range(0xDB, 0xDF);
    range(0x21, 0x28); // navigation
    keys << 0x08 << 0x09 << 0x0C << 0x0D << 0x10 << 0x11 << 0x12 << 0x13 << 0x14 << 0x1B << 0x20 << 0x29 << 0x2C << 0x2D
         << 0x2E << 0x2F << 0x5B << 0x5C << 0x5D << 0x5F << 0x90 << 0x91 << 0xE2;
    return keys;
}

QString keysymName(quint32 keysym)
{
    const char* name = XKeysymToString(keysym);
    return name ? QString::fromLatin1(name) : QString();
}

QString evdevName(quint16 code)
{
    const char* name = libevdev_event_code_get_name(EV_KEY, code);
    return name ? QString::fromLatin1(name) : QString();
}

// Virtual keys that deliberately share their key with another one.
const QSet<int> Twins = {0xA0, 0xA2, 0xA4, 0xDF};

} // namespace

class VirtualKeyTableTest : public QObject
{
    Q_OBJECT

private slots:
    void shouldMapEveryRecordableKey_data()
    {
        QTest::addColumn<int>("virtualKey");
        for (int key : recordableKeys())
            QTest::addRow("0x%02X", key) << key;
    }

    void shouldMapEveryRecordableKey()
    {
        QFETCH(int, virtualKey);
        QVERIFY(VirtualKeyTable::contains(virtualKey));
        QVERIFY2(!keysymName(VirtualKeyTable::keysym(virtualKey)).isEmpty(), "not a keysym X knows");
        QVERIFY2(!evdevName(VirtualKeyTable::evdevCode(virtualKey)).isEmpty(), "not a key code evdev knows");
    }

    void shouldMapToTheKeyOfTheSameName_data()
    {
        QTest::addColumn<int>("virtualKey");
        QTest::addColumn<QString>("keysym");
        QTest::addColumn<QString>("evdevCode");
        const struct
        {
            int key;
            const char* keysym;
            const char* evdev;
        } rows[] = {
            {0x41, "a", "KEY_A"},
            {0x4D, "m", "KEY_M"},
            {0x5A, "z", "KEY_Z"},
            {0x30, "0", "KEY_0"},
            {0x31, "1", "KEY_1"},
            {0x39, "9", "KEY_9"},
            {0x70, "F1", "KEY_F1"},
            {0x79, "F10", "KEY_F10"},
            {0x7A, "F11", "KEY_F11"},
            {0x7C, "F13", "KEY_F13"},
            {0x87, "F24", "KEY_F24"},
            {0x60, "KP_0", "KEY_KP0"},
            {0x69, "KP_9", "KEY_KP9"},
            {0x6A, "KP_Multiply", "KEY_KPASTERISK"},
            {0x6B, "KP_Add", "KEY_KPPLUS"},
            {0x6D, "KP_Subtract", "KEY_KPMINUS"},
            {0x6E, "KP_Decimal", "KEY_KPDOT"},
            {0x6F, "KP_Divide", "KEY_KPSLASH"},
            {0x10, "Shift_L", "KEY_LEFTSHIFT"},
            {0x11, "Control_L", "KEY_LEFTCTRL"},
            {0x12, "Alt_L", "KEY_LEFTALT"},
            {0xA1, "Shift_R", "KEY_RIGHTSHIFT"},
            {0xA3, "Control_R", "KEY_RIGHTCTRL"},
            {0xA5, "Alt_R", "KEY_RIGHTALT"},
            {0x5B, "Super_L", "KEY_LEFTMETA"},
            {0x5C, "Super_R", "KEY_RIGHTMETA"},
            {0x5D, "Menu", "KEY_COMPOSE"},
            {0x08, "BackSpace", "KEY_BACKSPACE"},
            {0x09, "Tab", "KEY_TAB"},
            {0x0D, "Return", "KEY_ENTER"},
            {0x13, "Pause", "KEY_PAUSE"},
            {0x14, "Caps_Lock", "KEY_CAPSLOCK"},
            {0x1B, "Escape", "KEY_ESC"},
            {0x20, "space", "KEY_SPACE"},
            {0x21, "Prior", "KEY_PAGEUP"},
            {0x22, "Next", "KEY_PAGEDOWN"},
            {0x23, "End", "KEY_END"},
            {0x24, "Home", "KEY_HOME"},
            {0x25, "Left", "KEY_LEFT"},
            {0x26, "Up", "KEY_UP"},
            {0x27, "Right", "KEY_RIGHT"},
            {0x28, "Down", "KEY_DOWN"},
            {0x2C, "Print", "KEY_SYSRQ"},
            {0x2D, "Insert", "KEY_INSERT"},
            {0x2E, "Delete", "KEY_DELETE"},
            {0x90, "Num_Lock", "KEY_NUMLOCK"},
            {0x91, "Scroll_Lock", "KEY_SCROLLLOCK"},
            {0xAD, "XF86AudioMute", "KEY_MUTE"},
            {0xAE, "XF86AudioLowerVolume", "KEY_VOLUMEDOWN"},
            {0xAF, "XF86AudioRaiseVolume", "KEY_VOLUMEUP"},
            {0xB0, "XF86AudioNext", "KEY_NEXTSONG"},
            {0xB1, "XF86AudioPrev", "KEY_PREVIOUSSONG"},
            {0xB2, "XF86AudioStop", "KEY_STOPCD"},
            {0xB3, "XF86AudioPlay", "KEY_PLAYPAUSE"},
            {0xB7, "XF86Calculator", "KEY_CALC"},
            {0xBA, "semicolon", "KEY_SEMICOLON"},
            {0xBB, "equal", "KEY_EQUAL"},
            {0xBC, "comma", "KEY_COMMA"},
            {0xBD, "minus", "KEY_MINUS"},
            {0xBE, "period", "KEY_DOT"},
            {0xBF, "slash", "KEY_SLASH"},
            {0xC0, "grave", "KEY_GRAVE"},
            {0xDB, "bracketleft", "KEY_LEFTBRACE"},
            {0xDC, "backslash", "KEY_BACKSLASH"},
            {0xDD, "bracketright", "KEY_RIGHTBRACE"},
            {0xDE, "apostrophe", "KEY_APOSTROPHE"},
            {0xE2, "less", "KEY_102ND"},
        };
        for (const auto& row : rows)
            QTest::addRow("0x%02X", row.key)
                << row.key << QString::fromLatin1(row.keysym) << QString::fromLatin1(row.evdev);
    }

    void shouldMapToTheKeyOfTheSameName()
    {
        QFETCH(int, virtualKey);
        QFETCH(QString, keysym);
        QFETCH(QString, evdevCode);
        QCOMPARE(keysymName(VirtualKeyTable::keysym(virtualKey)), keysym);
        QCOMPARE(evdevName(VirtualKeyTable::evdevCode(virtualKey)), evdevCode);
    }

    // A slip in a run or a pasted line shows up as two virtual keys on one key.
    void shouldGiveEveryVirtualKeyItsOwnKey()
    {
        QHash<quint32, int> byKeysym;
        QHash<quint16, int> byCode;
        for (const VirtualKeyTable::Entry& entry : VirtualKeyTable::entries()) {
            if (Twins.contains(entry.virtualKey))
                continue;
            QVERIFY2(!byKeysym.contains(entry.keysym), qPrintable(QStringLiteral("0x%1 and 0x%2 share a keysym")
                                                                      .arg(byKeysym.value(entry.keysym), 0, 16)
                                                                      .arg(entry.virtualKey, 0, 16)));
            QVERIFY2(!byCode.contains(entry.evdevCode), qPrintable(QStringLiteral("0x%1 and 0x%2 share an evdev code")
                                                                       .arg(byCode.value(entry.evdevCode), 0, 16)
                                                                       .arg(entry.virtualKey, 0, 16)));
            byKeysym.insert(entry.keysym, entry.virtualKey);
            byCode.insert(entry.evdevCode, entry.virtualKey);
        }
    }

    void shouldRefuseUnmappedCodes_data()
    {
        QTest::addColumn<int>("virtualKey");
        QTest::newRow("unset") << -1;
        QTest::newRow("zero") << 0;
        QTest::newRow("mouse button") << 0x01;
        QTest::newRow("reserved 0x07") << 0x07;
        QTest::newRow("undefined 0x3A") << 0x3A;
        QTest::newRow("past F24") << 0x88;
        QTest::newRow("0xFF") << 0xFF;
        QTest::newRow("past a byte") << 0x141;
        QTest::newRow("largest unsigned 16-bit") << 0xFFFF;
        QTest::newRow("INT_MIN") << INT_MIN;
        QTest::newRow("INT_MAX") << INT_MAX;
    }

    void shouldRefuseUnmappedCodes()
    {
        QFETCH(int, virtualKey);
        QVERIFY(!VirtualKeyTable::contains(virtualKey));
        QCOMPARE(VirtualKeyTable::keysym(virtualKey), 0u);
        QCOMPARE(VirtualKeyTable::evdevCode(virtualKey), quint16(0));
    }

    void shouldFindTheVirtualKeyOfAKeysym_data()
    {
        QTest::addColumn<quint32>("keysym");
        QTest::addColumn<int>("virtualKey");
        QTest::newRow("a") << quint32(XK_a) << 0x41;
        QTest::newRow("A with Shift held") << quint32(XK_A) << 0x41;
        QTest::newRow("Z with Shift held") << quint32(XK_Z) << 0x5A;
        QTest::newRow("generic Shift") << quint32(XK_Shift_L) << 0x10;
        QTest::newRow("right Control") << quint32(XK_Control_R) << 0xA3;
        QTest::newRow("F13") << quint32(XK_F13) << 0x7C;
        QTest::newRow("Print Screen") << quint32(XK_Print) << 0x2C;
        QTest::newRow("grave") << quint32(XK_grave) << 0xC0;
        QTest::newRow("mute") << quint32(XF86XK_AudioMute) << 0xAD;
        QTest::newRow("no such key") << quint32(XK_eacute) << 0;
        QTest::newRow("no symbol") << quint32(NoSymbol) << 0;
    }

    void shouldFindTheVirtualKeyOfAKeysym()
    {
        QFETCH(quint32, keysym);
        QFETCH(int, virtualKey);
        QCOMPARE(VirtualKeyTable::virtualKeyFromKeysym(keysym), virtualKey);
    }

    void shouldAnnounceEveryEvdevCodeOnce()
    {
        const QVector<quint16> codes = VirtualKeyTable::evdevCodes();
        const QSet<quint16> unique(codes.cbegin(), codes.cend());
        QCOMPARE(unique.size(), codes.size());
        for (const VirtualKeyTable::Entry& entry : VirtualKeyTable::entries())
            QVERIFY(unique.contains(entry.evdevCode));
    }
};

KEYSTAGE_TEST_MAIN(VirtualKeyTableTest)
#include "tst_virtualkeytable.moc"
