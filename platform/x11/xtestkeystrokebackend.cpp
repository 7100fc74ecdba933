#include "xtestkeystrokebackend.h"

#include "logging.h"
#include "virtualkeytable.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

XTestKeystrokeBackend::XTestKeystrokeBackend(const QByteArray& displayName) : m_displayName(displayName) {}

XTestKeystrokeBackend::~XTestKeystrokeBackend()
{
    if (m_display)
        XCloseDisplay(m_display);
}

QString XTestKeystrokeBackend::name() const
{
    return QStringLiteral("xtest");
}

bool XTestKeystrokeBackend::isUsable()
{
    QMutexLocker lock(&m_mutex);
    return ensureDisplay();
}

QString XTestKeystrokeBackend::unusableReason() const
{
    QMutexLocker lock(&m_mutex);
    return m_reason;
}

bool XTestKeystrokeBackend::keyDown(int virtualKey)
{
    return sendKey(virtualKey, true);
}

bool XTestKeystrokeBackend::keyUp(int virtualKey)
{
    return sendKey(virtualKey, false);
}

// One attempt only: an X display does not appear later, and a display on a
// dead remote host would hold every keystroke up again.
bool XTestKeystrokeBackend::ensureDisplay()
{
    if (m_triedDisplay)
        return m_display != nullptr;
    m_triedDisplay = true;
    const char* name = m_displayName.isEmpty() ? nullptr : m_displayName.constData();
    m_display = XOpenDisplay(name);
    if (!m_display) {
        m_reason = QStringLiteral("cannot open X display \"%1\"").arg(QString::fromLocal8Bit(XDisplayName(name)));
        return false;
    }
    int eventBase = 0, errorBase = 0, major = 0, minor = 0;
    if (!XTestQueryExtension(m_display, &eventBase, &errorBase, &major, &minor)) {
        m_reason = QStringLiteral("the X server has no XTEST extension");
        XCloseDisplay(m_display);
        m_display = nullptr;
        return false;
    }
    return true;
}

bool XTestKeystrokeBackend::sendKey(int virtualKey, bool down)
{
    const quint32 keysym = VirtualKeyTable::keysym(virtualKey);
    // Messages are put together only on failure: this is the keystroke's path.
    if (keysym == 0)
        return logMsgWhenRetFail(false, QStringLiteral("no keysym for virtual key 0x%1!!").arg(virtualKey, 0, 16));
    QMutexLocker lock(&m_mutex);
    if (!ensureDisplay())
        return logMsgWhenRetFail(false, QStringLiteral("XTest unusable: %1!!").arg(m_reason));
    readMappingChanges();
    quint8 keycode = down ? 0 : m_pressed.take(virtualKey);
    if (keycode == 0)
        keycode = keycodeFor(keysym);
    if (keycode == 0)
        return logMsgWhenRetFail(false, QStringLiteral("no keycode for keysym 0x%1!!").arg(keysym, 0, 16));
    if (down)
        m_pressed.insert(virtualKey, keycode);
    XTestFakeKeyEvent(m_display, keycode, down ? True : False, CurrentTime);
    XSync(m_display, False);
    return true;
}

// Xlib keeps a copy of the keyboard mapping and renews it only when told,
// which is a client's job when it reads the MappingNotify event; without it
// a layout switched while we run would be typed with the old keycodes.
void XTestKeystrokeBackend::readMappingChanges()
{
    while (XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == MappingNotify)
            XRefreshKeyboardMapping(&event.xmapping);
    }
}

quint8 XTestKeystrokeBackend::keycodeFor(quint32 keysym)
{
    const quint8 borrowed = m_borrowed.value(keysym);
    if (borrowed != 0) {
        // A new layout loaded meanwhile replaces our binding with its own.
        if (XkbKeycodeToKeysym(m_display, borrowed, 0, 0) == keysym)
            return borrowed;
        m_borrowed.remove(keysym);
        m_borrowOrder.removeAll(borrowed);
    }
    const quint8 keycode = XKeysymToKeycode(m_display, keysym);
    return keycode != 0 ? keycode : borrowKeycode(keysym);
}

quint8 XTestKeystrokeBackend::borrowKeycode(quint32 keysym)
{
    quint8 keycode = spareKeycode();
    if (keycode == 0) {
        // All spare keycodes lent out: take back the oldest loan that is not
        // held down.
        for (int i = 0; i < m_borrowOrder.size() && keycode == 0; ++i) {
            if (!m_pressed.values().contains(m_borrowOrder.at(i)))
                keycode = m_borrowOrder.takeAt(i);
        }
        if (keycode == 0)
            return 0;
        m_borrowed.remove(m_borrowed.key(keycode));
    }
    KeySym symbol = keysym;
    XChangeKeyboardMapping(m_display, keycode, 1, &symbol, 1);
    XSync(m_display, False);
    m_borrowed.insert(keysym, keycode);
    m_borrowOrder.append(keycode);
    LOG_MSG(QStringLiteral("keysym 0x%1 bound to spare keycode %2").arg(keysym, 0, 16).arg(keycode));
    return keycode;
}

// A keycode without any keysym, from the top, where no real key sits.
quint8 XTestKeystrokeBackend::spareKeycode()
{
    int minKeycode = 0, maxKeycode = 0;
    XDisplayKeycodes(m_display, &minKeycode, &maxKeycode);
    int perKeycode = 0;
    const int count = maxKeycode - minKeycode + 1;
    KeySym* symbols = XGetKeyboardMapping(m_display, KeyCode(minKeycode), count, &perKeycode);
    if (!symbols)
        return 0;
    quint8 found = 0;
    for (int keycode = maxKeycode; keycode >= minKeycode && found == 0; --keycode) {
        const KeySym* row = symbols + (keycode - minKeycode) * perKeycode;
        bool empty = true;
        for (int column = 0; column < perKeycode && empty; ++column)
            empty = row[column] == NoSymbol;
        if (empty && !m_borrowOrder.contains(quint8(keycode)))
            found = quint8(keycode);
    }
    XFree(symbols);
    return found;
}
