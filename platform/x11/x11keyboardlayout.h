#pragma once

#include "keyboardlayout.h"

#include <QByteArray>

typedef struct _XDisplay Display;
struct _XkbDesc;

// The live X keyboard mapping, read on a connection of our own: Qt's
// connection reads its events through XCB, so Xlib's copy of the mapping on
// it would never learn of a layout switch.
class X11KeyboardLayout : public KeyboardLayout
{
public:
    // The default display when displayName is empty.
    explicit X11KeyboardLayout(const QByteArray& displayName = QByteArray());
    ~X11KeyboardLayout() override;

    bool isConnected() const;
    void reload() override;
    quint32 baseKeysym(quint16 evdevCode) const override;

private:
    Display* m_display = nullptr;
    _XkbDesc* m_keymap = nullptr;
    int m_group = 0;
};
