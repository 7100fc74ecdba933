#pragma once

#include "keystrokebackend.h"

#include <QHash>
#include <QMutex>
#include <QVector>

struct _XDisplay;

// Keystrokes through the X server's XTEST extension, on a connection of our
// own (Xlib connections are not shared across threads). Keysyms become
// keycodes through the live keyboard mapping, so the keys of the user's
// layout are pressed; a keysym the layout lacks is bound to a spare keycode
// for as long as the program runs, because clients read the mapping after
// the keystroke and would miss a binding undone right after it.
class XTestKeystrokeBackend : public KeystrokeBackend
{
public:
    // Empty: the DISPLAY of the environment.
    explicit XTestKeystrokeBackend(const QByteArray& displayName = QByteArray());
    ~XTestKeystrokeBackend() override;

    QString name() const override;
    bool isUsable() override;
    QString unusableReason() const override;
    bool keyDown(int virtualKey) override;
    bool keyUp(int virtualKey) override;

private:
    bool ensureDisplay();
    bool sendKey(int virtualKey, bool down);
    void readMappingChanges();
    quint8 keycodeFor(quint32 keysym);
    quint8 borrowKeycode(quint32 keysym);
    quint8 spareKeycode();

    QByteArray m_displayName;
    _XDisplay* m_display = nullptr;
    bool m_triedDisplay = false;
    QString m_reason;
    // The keycode each virtual key went down with, so its release matches
    // even if the mapping changed in between.
    QHash<int, quint8> m_pressed;
    QHash<quint32, quint8> m_borrowed;
    QVector<quint8> m_borrowOrder; // oldest first
    mutable QMutex m_mutex;
};
