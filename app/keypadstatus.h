#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class Hid_Comm;

// What the status line says about the keypad: open, absent, or present but
// out of reach for lack of permission. It listens to the device thread's
// KeyboardStatusChange and, once connected, takes the connection's present
// state as well, so that a keypad opened before anyone listened is not
// missed: the device thread starts polling as soon as it exists.
class KeypadStatus : public QObject
{
    Q_OBJECT

public:
    enum State
    {
        Absent,
        Connected,
        NoPermission
    };
    Q_ENUM(State)

    // Every failed open attempt says "disconnected"; the state is read once
    // the attempts have been quiet this long.
    static constexpr int SettleMs = 200;

    explicit KeypadStatus(Hid_Comm* hid, QObject* parent = nullptr);

    State state() const;

signals:
    // A keypad was opened (or found open): its keys need their images.
    void keypadOpened();
    void stateChanged(KeypadStatus::State state);

private:
    void onKeyboardStatusChange(bool connected);
    void settle();

    QPointer<Hid_Comm> m_hid;
    QTimer m_settleTimer;
    State m_state = Absent;
};
