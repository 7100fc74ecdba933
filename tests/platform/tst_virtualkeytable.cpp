#include "testmain.h"
#include "virtualkeytable.h"

#include <QSet>

#include <X11/Xlib.h>
#include <X11/keysym.h>
#include <climits>
#include <libevdev/libevdev.h>
#include <linux/input-event-codes.h>

namespace {

// The names X and libevdev give the table's keysym and key code; "-" for none.
QString keysymName(int virtualKey)
{
    const char* name = XKeysymToString(VirtualKeyTable::keysym(virtualKey));
    return VirtualKeyTable::keysym(virtualKey) && name ? QString::fromLatin1(name) : QStringLiteral("-");
}

QString evdevName(int virtualKey)
{
    const char* name = libevdev_event_code_get_name(EV_KEY, VirtualKeyTable::evdevCode(virtualKey));
    return VirtualKeyTable::evdevCode(virtualKey) && name ? QString::fromLatin1(name) : QStringLiteral("-");
}

// "prefix0 prefix1 ...", for the runs of keys that count up.
QString run(const QString& prefix, const QStringList& labels)
{
    return prefix + labels.join(QLatin1Char(' ') + prefix);
}

QStringList numbers(int first, int last)
{
    QStringList labels;
    for (int i = first; i <= last; ++i)
        labels << QString::number(i);
    return labels;
}

const QStringList Letters =
    QStringLiteral("A B C D E F G H I J K L M N O P Q R S T U V W X Y Z").split(QLatin1Char(' '));

} // namespace

class VirtualKeyTableTest : public QObject
{
    Q_OBJECT

private slots:
    // Consecutive virtual keys from the first one, by the names X and
    // libevdev know them by; "-" is a virtual key the table must refuse.
    void shouldMapToTheKeyOfTheSameName_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("keysyms");
        QTest::addColumn<QString>("codes");
        QTest::newRow("editing") << 0x07 << "- BackSpace Tab - - Clear Return"
                                 << "- KEY_BACKSPACE KEY_TAB - - KEY_CLEAR KEY_ENTER";
        QTest::newRow("modifiers") << 0x10 << "Shift_L Control_L Alt_L Pause Caps_Lock"
                                   << "KEY_LEFTSHIFT KEY_LEFTCTRL KEY_LEFTALT KEY_PAUSE KEY_CAPSLOCK";
        QTest::newRow("navigation") << 0x1B << "Escape - - - - space Prior Next End Home Left Up Right Down Select"
                                    << "KEY_ESC - - - - KEY_SPACE KEY_PAGEUP KEY_PAGEDOWN KEY_END KEY_HOME KEY_LEFT "
                                       "KEY_UP KEY_RIGHT KEY_DOWN KEY_SELECT";
        QTest::newRow("print to help") << 0x2C << "Print Insert Delete Help"
                                       << "KEY_SYSRQ KEY_INSERT KEY_DELETE KEY_HELP";
        QTest::newRow("digits") << 0x30 << run(QString(), numbers(0, 9)) << run(QStringLiteral("KEY_"), numbers(0, 9));
        QTest::newRow("letters") << 0x41 << run(QString(), Letters).toLower() << run(QStringLiteral("KEY_"), Letters);
        QTest::newRow("windows keys") << 0x5B << "Super_L Super_R Menu - XF86Sleep"
                                      << "KEY_LEFTMETA KEY_RIGHTMETA KEY_COMPOSE - KEY_SLEEP";
        QTest::newRow("numpad") << 0x60
                                << run(QStringLiteral("KP_"), numbers(0, 9)) +
                                       " KP_Multiply KP_Add KP_Separator KP_Subtract KP_Decimal KP_Divide"
                                << run(QStringLiteral("KEY_KP"), numbers(0, 9)) +
                                       " KEY_KPASTERISK KEY_KPPLUS KEY_KPCOMMA KEY_KPMINUS KEY_KPDOT KEY_KPSLASH";
        QTest::newRow("function keys") << 0x70 << run(QStringLiteral("F"), numbers(1, 24)) + " -"
                                       << run(QStringLiteral("KEY_F"), numbers(1, 24)) + " -";
        QTest::newRow("locks") << 0x90 << "Num_Lock Scroll_Lock"
                               << "KEY_NUMLOCK KEY_SCROLLLOCK";
        QTest::newRow("left and right modifiers")
            << 0xA0 << "Shift_L Shift_R Control_L Control_R Alt_L Alt_R"
            << "KEY_LEFTSHIFT KEY_RIGHTSHIFT KEY_LEFTCTRL KEY_RIGHTCTRL KEY_LEFTALT KEY_RIGHTALT";
        QTest::newRow("browser") << 0xA6
                                 << "XF86Back XF86Forward XF86Refresh XF86Stop XF86Search XF86Favorites "
                                    "XF86HomePage"
                                 << "KEY_BACK KEY_FORWARD KEY_REFRESH KEY_STOP KEY_SEARCH KEY_BOOKMARKS KEY_HOMEPAGE";
        QTest::newRow("media") << 0xAD
                               << "XF86AudioMute XF86AudioLowerVolume XF86AudioRaiseVolume XF86AudioNext "
                                  "XF86AudioPrev XF86AudioStop XF86AudioPlay XF86Mail XF86AudioMedia "
                                  "XF86MyComputer XF86Calculator - -"
                               << "KEY_MUTE KEY_VOLUMEDOWN KEY_VOLUMEUP KEY_NEXTSONG KEY_PREVIOUSSONG KEY_STOPCD "
                                  "KEY_PLAYPAUSE KEY_MAIL KEY_MEDIA KEY_COMPUTER KEY_CALC - -";
        QTest::newRow("punctuation") << 0xBA << "semicolon equal comma minus period slash grave -"
                                     << "KEY_SEMICOLON KEY_EQUAL KEY_COMMA KEY_MINUS KEY_DOT KEY_SLASH KEY_GRAVE -";
        QTest::newRow("brackets") << 0xDB << "bracketleft backslash bracketright apostrophe grave - - less -"
                                  << "KEY_LEFTBRACE KEY_BACKSLASH KEY_RIGHTBRACE KEY_APOSTROPHE KEY_GRAVE - - "
                                     "KEY_102ND -";
    }

    void shouldMapToTheKeyOfTheSameName()
    {
        QFETCH(int, first);
        QFETCH(QString, keysyms);
        QFETCH(QString, codes);
        const QStringList xNames = keysyms.split(QLatin1Char(' '));
        const QStringList evdevNames = codes.split(QLatin1Char(' '));
        QCOMPARE(xNames.size(), evdevNames.size());
        for (int i = 0; i < xNames.size(); ++i) {
            const int key = first + i;
            const QString at = QStringLiteral("0x%1: ").arg(key, 2, 16);
            QCOMPARE(at + keysymName(key) + QLatin1Char(' ') + evdevName(key),
                     at + xNames[i] + QLatin1Char(' ') + evdevNames[i]);
            QCOMPARE(VirtualKeyTable::contains(key), xNames[i] != QLatin1String("-"));
        }
    }

    void shouldRefuseUnmappedCodes()
    {
        for (int key : {-1, 0, 0x01, 0x3A, 0xFF, 0x141, 0xFFFF, INT_MIN, INT_MAX}) {
            QVERIFY2(!VirtualKeyTable::contains(key), qPrintable(QString::number(key)));
            QCOMPARE(VirtualKeyTable::keysym(key), 0u);
            QCOMPARE(VirtualKeyTable::evdevCode(key), quint16(0));
        }
    }

    // What a virtual keyboard has to announce: every key of the table, once.
    // (Two virtual keys on one key by mistake show up in the names above.)
    void shouldAnnounceEveryEvdevCodeOnce()
    {
        const QVector<quint16> codes = VirtualKeyTable::evdevCodes();
        const QSet<quint16> unique(codes.cbegin(), codes.cend());
        QCOMPARE(unique.size(), codes.size());
        for (const VirtualKeyTable::Entry& entry : VirtualKeyTable::entries())
            QVERIFY(unique.contains(entry.evdevCode));
    }

    // Every key of the list types through XTest (it has a keysym) and uinput
    // (an evdev code): media, volume, browser, mail, calculator, F13-F24,
    // Print, Scroll Lock, Pause, Insert, Menu.
    void shouldTypeEveryKeyAKeyboardMayLack()
    {
        QStringList names;
        for (const int key : VirtualKeyTable::keysKeyboardsMayLack())
            names << keysymName(key) + QLatin1Char('/') + evdevName(key);
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("XF86AudioPlay/KEY_PLAYPAUSE XF86AudioNext/KEY_NEXTSONG XF86AudioPrev/KEY_PREVIOUSSONG "
                                "XF86AudioStop/KEY_STOPCD XF86AudioRaiseVolume/KEY_VOLUMEUP "
                                "XF86AudioLowerVolume/KEY_VOLUMEDOWN XF86AudioMute/KEY_MUTE XF86Back/KEY_BACK "
                                "XF86Forward/KEY_FORWARD XF86Refresh/KEY_REFRESH XF86HomePage/KEY_HOMEPAGE "
                                "XF86Search/KEY_SEARCH XF86Mail/KEY_MAIL XF86Calculator/KEY_CALC "
                                "F13/KEY_F13 F14/KEY_F14 F15/KEY_F15 F16/KEY_F16 F17/KEY_F17 F18/KEY_F18 F19/KEY_F19 "
                                "F20/KEY_F20 F21/KEY_F21 F22/KEY_F22 F23/KEY_F23 F24/KEY_F24 "
                                "Print/KEY_SYSRQ Scroll_Lock/KEY_SCROLLLOCK Pause/KEY_PAUSE Insert/KEY_INSERT "
                                "Menu/KEY_COMPOSE"));
    }

    // The reverse look-ups used when recording: by place, and by Qt key for
    // events without a keysym. Where two virtual keys share one, the first.
    void shouldFindTheVirtualKeyByPlaceAndByQtKey()
    {
        for (const VirtualKeyTable::Entry& entry : VirtualKeyTable::entries()) {
            const int byPlace = VirtualKeyTable::virtualKeyFromEvdevCode(entry.evdevCode);
            const int byQtKey = VirtualKeyTable::virtualKeyFromQtKey(entry.qtKey);
            QVERIFY2(byPlace != 0 && byPlace <= entry.virtualKey, qPrintable(QString::number(entry.virtualKey, 16)));
            QVERIFY2(byQtKey != 0 && byQtKey <= entry.virtualKey, qPrintable(QString::number(entry.virtualKey, 16)));
            QCOMPARE(VirtualKeyTable::evdevCode(byPlace), entry.evdevCode);
        }
        QCOMPARE(VirtualKeyTable::virtualKeyFromQtKey(Qt::Key_F5), 0x74);
        QCOMPARE(VirtualKeyTable::virtualKeyFromQtKey(Qt::KeypadModifier | Qt::Key_Asterisk), 0x6A);
        QCOMPARE(VirtualKeyTable::virtualKeyFromQtKey(Qt::KeypadModifier | Qt::Key_Left), 0x25);
        QCOMPARE(VirtualKeyTable::virtualKeyFromQtKey(Qt::Key_Asterisk), 0);
        QCOMPARE(VirtualKeyTable::virtualKeyFromEvdevCode(0), 0);
        QCOMPARE(VirtualKeyTable::virtualKeyFromEvdevCode(KEY_FN), 0);
    }

    void shouldFindTheVirtualKeyOfAKeysym_data()
    {
        QTest::addColumn<quint32>("keysym");
        QTest::addColumn<int>("virtualKey");
        QTest::newRow("Z with Shift held") << quint32(XK_Z) << 0x5A;
        QTest::newRow("generic Shift") << quint32(XK_Shift_L) << 0x10;
        QTest::newRow("right Control") << quint32(XK_Control_R) << 0xA3;
        QTest::newRow("no such key") << quint32(XK_eacute) << 0;
        QTest::newRow("no symbol") << quint32(NoSymbol) << 0;
    }

    void shouldFindTheVirtualKeyOfAKeysym()
    {
        QFETCH(quint32, keysym);
        QFETCH(int, virtualKey);
        QCOMPARE(VirtualKeyTable::virtualKeyFromKeysym(keysym), virtualKey);
    }
};

KEYSTAGE_TEST_MAIN(VirtualKeyTableTest)
#include "tst_virtualkeytable.moc"
