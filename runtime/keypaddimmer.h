#pragma once

#include "dimmingsettings.h"
#include "keyeventfilter.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QObject>

#include <functional>

class QTimer;

// Decides the keypad's backlight: the user's brightness; the dim level after
// some minutes without a key press; off while the screen is locked, if the
// user wants that. The press that wakes a dimmed keypad only wakes it: it and
// its release are taken from the key dispatch (KeyEventFilter), as is every
// press on a keypad dark for a locked screen.
//
// Lives on the GUI thread, where backlightChanged is emitted (connect it to
// Hid_Comm::setBacklight); takeKeyPress and takeKeyRelease may be called
// from any thread.
class KeypadDimmer : public QObject, public KeyEventFilter
{
    Q_OBJECT

public:
    // Milliseconds of a monotonic clock.
    using Clock = std::function<qint64()>;
    static constexpr int MsPerMinute = 60 * 1000;

    explicit KeypadDimmer(QObject* parent = nullptr);
    // For tests: their own clock, and minutes as long as they like.
    KeypadDimmer(Clock clock, int msPerMinute, QObject* parent = nullptr);
    ~KeypadDimmer() override;

    DimmingSettings settings() const;
    // The backlight level the keypad should show now.
    int level() const;
    bool isDimmed() const;
    bool isLocked() const;
    bool isIdleTimerActive() const;

    bool takeKeyPress(int devKeyId) override;
    bool takeKeyRelease(int devKeyId) override;

public slots:
    // A change counts as activity: the keypad shows the new brightness at once.
    void setSettings(const DimmingSettings& settings);
    // Unlocking counts as activity too.
    void setLocked(bool locked);
    // The brightness the preference slider has just given the keypad itself:
    // the level to come back to from now on. Counts as activity.
    void noteBrightness(int level);
    // Sends the level again, as to a keypad that has just been connected.
    void reapply();
    // Dims once the keypad has been idle long enough, else waits for the
    // rest; the idle timer calls it.
    void checkIdle();

signals:
    void backlightChanged(int level);

private slots:
    void onWoken();

private:
    int levelLocked() const;
    void apply(bool always);
    void armIdleTimer();

    Clock m_clock;
    QElapsedTimer m_elapsed;
    const int m_msPerMinute;
    QTimer* m_idleTimer = nullptr;
    int m_lastSent = -1;

    // Shared with the key action thread.
    mutable QMutex m_mutex;
    DimmingSettings m_settings;
    bool m_locked = false;
    bool m_dimmed = false;
    qint64 m_lastActivity = 0;
    // The key whose press was taken; its release is taken too.
    int m_takenKey = -1;
};
