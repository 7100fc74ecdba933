#include "keyboardlayout.h"

#include "generickeyboardlayout.h"
#include "x11keyboardlayout.h"

#include <QGuiApplication>

#include <X11/keysym.h>
#include <xkbcommon/xkbcommon.h>

#include <utility>

namespace {

// Dead keys have no character of their own; a key cap shows the spacing
// form of the accent.
const std::pair<quint32, char16_t> DeadKeys[] = {
    {XK_dead_grave, u'`'},          {XK_dead_acute, u'\u00B4'},
    {XK_dead_circumflex, u'^'},     {XK_dead_tilde, u'~'},
    {XK_dead_macron, u'\u00AF'},    {XK_dead_breve, u'\u02D8'},
    {XK_dead_abovedot, u'\u02D9'},  {XK_dead_diaeresis, u'\u00A8'},
    {XK_dead_abovering, u'\u00B0'}, {XK_dead_doubleacute, u'\u02DD'},
    {XK_dead_caron, u'\u02C7'},     {XK_dead_cedilla, u'\u00B8'},
    {XK_dead_ogonek, u'\u02DB'},
};

} // namespace

KeyboardLayout::~KeyboardLayout() = default;

QString KeyboardLayout::keysymLabel(quint32 keysym)
{
    if (keysym == 0)
        return QString();
    for (const auto& dead : DeadKeys) {
        if (dead.first == keysym)
            return QString(QChar(dead.second));
    }
    // One character to one: a key cap shows "ß", never "SS".
    const char32_t character = QChar::toUpper(uint(xkb_keysym_to_utf32(keysym)));
    if (character > 0x20 && character != 0x7F)
        return QString::fromUcs4(&character, 1);
    char name[64];
    return xkb_keysym_get_name(keysym, name, sizeof name) > 0 ? QString::fromLatin1(name) : QString();
}

std::unique_ptr<KeyboardLayout> KeyboardLayout::create()
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        auto layout = std::make_unique<X11KeyboardLayout>();
        if (layout->isConnected())
            return layout;
    }
    return std::make_unique<GenericKeyboardLayout>();
}
