#include "x11keyboardlayout.h"

#include "logging.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>

// X keycodes of the evdev keyboard rules are the kernel's key codes plus 8.
constexpr int EvdevOffset = 8;

X11KeyboardLayout::X11KeyboardLayout(const QByteArray& displayName)
{
    int major = XkbMajorVersion, minor = XkbMinorVersion, reason = 0;
    m_display = XkbOpenDisplay(displayName.isEmpty() ? nullptr : displayName.constData(), nullptr, nullptr, &major,
                               &minor, &reason);
    logMsgWhenRetFail(m_display != nullptr,
                      QStringLiteral("cannot read the X keyboard layout (XkbOpenDisplay: %1)!!").arg(reason));
}

X11KeyboardLayout::~X11KeyboardLayout()
{
    if (m_keymap)
        XkbFreeKeyboard(m_keymap, 0, True);
    if (m_display)
        XCloseDisplay(m_display);
}

bool X11KeyboardLayout::isConnected() const
{
    return m_display != nullptr;
}

void X11KeyboardLayout::reload()
{
    if (!m_display)
        return;
    if (m_keymap)
        XkbFreeKeyboard(m_keymap, 0, True);
    m_keymap = XkbGetMap(m_display, XkbKeySymsMask, XkbUseCoreKbd);
    XkbStateRec state{};
    m_group = XkbGetState(m_display, XkbUseCoreKbd, &state) == Success ? state.group : 0;
}

quint32 X11KeyboardLayout::baseKeysym(quint16 evdevCode) const
{
    const int keycode = evdevCode + EvdevOffset;
    if (!m_keymap || keycode < m_keymap->min_key_code || keycode > m_keymap->max_key_code)
        return 0;
    const int groups = XkbKeyNumGroups(m_keymap, keycode);
    if (groups == 0)
        return 0;
    // A key with fewer groups than the layout gives its first group, as X does.
    const int group = m_group < groups ? m_group : 0;
    return quint32(XkbKeySymEntry(m_keymap, keycode, 0, group));
}
