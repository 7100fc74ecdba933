#pragma once

#include "backgroundtask.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

// Takes the brightness as fast as a slider moves and hands it to the keypad
// at most once per interval, one report at a time: a level that arrives
// while a report is on its way or too soon after the last waits, and only
// the newest waiting level is sent. The last level set always arrives.
class BrightnessThrottle : public QObject
{
    Q_OBJECT
public:
    static constexpr int IntervalMs = 50;

    // Sets the keypad's brightness; may block. It runs through the runner
    // (an empty one: on the spot).
    using Sender = std::function<void(int level)>;

    explicit BrightnessThrottle(Sender sender, BackgroundRunner runner = {}, QObject* parent = nullptr);

    void setLevel(int level);
    // Nothing waiting and nothing on its way.
    bool isIdle() const;
    // -1 before the first report.
    int lastSentLevel() const;

signals:
    void levelSent(int level);

private:
    void sendWhenDue();
    void onSent(int level);

    Sender m_sender;
    BackgroundRunner m_runner;
    QTimer m_timer;
    QElapsedTimer m_sinceLastSend;
    std::optional<int> m_waiting;
    bool m_sending = false;
    int m_lastSent = -1;
};
