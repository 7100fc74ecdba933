#include "keymapping.h"

#include "keyboardlayout.h"
#include "virtualkeytable.h"

#include <QKeyEvent>
#include <QKeySequence>

namespace {

// X keycodes (and Wayland's) are the kernel's key codes plus 8.
constexpr quint32 EvdevOffset = 8;

std::unique_ptr<KeyboardLayout>& layoutInstance()
{
    static std::unique_ptr<KeyboardLayout> instance;
    return instance;
}

// The keys whose symbol depends on the layout: a US keyboard's punctuation.
bool isPunctuationKey(int virtualKey)
{
    const quint32 keysym = VirtualKeyTable::keysym(virtualKey);
    return keysym > 0x20 && keysym < 0x7F && !QChar(char16_t(keysym)).isLetterOrNumber();
}

} // namespace

KeyboardLayout& KeyMapping::layout()
{
    std::unique_ptr<KeyboardLayout>& instance = layoutInstance();
    if (!instance) {
        instance = KeyboardLayout::create();
        instance->reload();
    }
    return *instance;
}

void KeyMapping::reloadLayout()
{
    layout().reload();
}

void KeyMapping::setLayout(std::unique_ptr<KeyboardLayout> layout)
{
    layoutInstance() = std::move(layout);
}

int KeyMapping::virtualKey(const QKeyEvent& event)
{
    const quint32 keysym = event.nativeVirtualKey();
    const quint32 scanCode = event.nativeScanCode();
    if (keysym != 0 && scanCode > EvdevOffset && scanCode - EvdevOffset <= 0xFFFF) {
        const quint16 evdevCode = quint16(scanCode - EvdevOffset);
        for (const int key :
             {VirtualKeyTable::virtualKeyFromKeysym(layout().baseKeysym(evdevCode)),
              VirtualKeyTable::virtualKeyFromKeysym(keysym), VirtualKeyTable::virtualKeyFromEvdevCode(evdevCode)}) {
            if (key != 0)
                return key;
        }
    } else if (keysym != 0) {
        if (const int key = VirtualKeyTable::virtualKeyFromKeysym(keysym))
            return key;
    }
    return VirtualKeyTable::virtualKeyFromQtKey(event.key() | int(event.modifiers() & Qt::KeypadModifier));
}

Qt::KeyboardModifier KeyMapping::modifierOfKey(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return Qt::MetaModifier;
    default:
        return Qt::NoModifier;
    }
}

QString KeyMapping::keyName(int virtualKey, int qtKey)
{
    if (!VirtualKeyTable::contains(virtualKey)) {
        return qtKey > 0 && qtKey != Qt::Key_unknown ? QKeySequence(qtKey).toString(QKeySequence::NativeText)
                                                     : tr("Unknown key");
    }
    if (isPunctuationKey(virtualKey)) {
        const QString label = KeyboardLayout::keysymLabel(layout().baseKeysym(VirtualKeyTable::evdevCode(virtualKey)));
        if (!label.isEmpty())
            return label;
    }
    // A Qt key sequence cannot hold a modifier key on its own: its code would
    // read as the modifier flag.
    switch (virtualKey) {
    case 0x10:
        return QCoreApplication::translate("QShortcut", "Shift");
    case 0x11:
        return QCoreApplication::translate("QShortcut", "Ctrl");
    case 0x12:
        return QCoreApplication::translate("QShortcut", "Alt");
    case 0x5B:
        return tr("Left Super");
    case 0x5C:
        return tr("Right Super");
    case 0xA0:
        return tr("Left Shift");
    case 0xA1:
        return tr("Right Shift");
    case 0xA2:
        return tr("Left Ctrl");
    case 0xA3:
        return tr("Right Ctrl");
    case 0xA4:
        return tr("Left Alt");
    case 0xA5:
        return tr("Right Alt");
    default:
        return QKeySequence(VirtualKeyTable::qtKey(virtualKey)).toString(QKeySequence::NativeText);
    }
}
