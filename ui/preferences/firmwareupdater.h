#pragma once

#include "preference.h"

#include <QObject>
#include <QString>
#include <QThread>

#include <atomic>
#include <functional>
#include <memory>

class Hid_Comm;
class KeypadPause;

// The firmware page's rules, without widgets: reads what the keypad runs and
// what the program carries for it, makes the update offer and runs the
// update. Everything that talks to the keypad runs on a worker thread of its
// own (an update holds it for minutes; the shared task worker must stay free
// for launches), so the window never waits for the device. While an update
// runs the keypad's key presses are dropped and the page must not close.
//
// Lives on the GUI thread; its signals are emitted there.
class FirmwareUpdater : public QObject
{
    Q_OBJECT
public:
    // What the page can say about the keypad.
    enum class Status
    {
        Reading,  // asking the keypad
        NoKeypad, // nothing connected
        NoAnswer, // connected, but it does not tell its version
        NoImage,  // no firmware in the program fits this keypad
        Ready,    // an update can be offered
    };
    Q_ENUM(Status)

    // How the last update ended.
    enum class Outcome
    {
        None,
        Flashed,
        Failed,
    };
    Q_ENUM(Outcome)

    explicit FirmwareUpdater(QObject* parent = nullptr);
    // Waits for a running update: cutting it short could leave the keypad
    // without firmware. The dialog refuses to close meanwhile.
    ~FirmwareUpdater() override;

    Status status() const { return m_status; }
    Outcome outcome() const { return m_outcome; }
    const Preference::DeviceInfo& deviceInfo() const { return m_info; }
    bool isUpdating() const { return m_updating; }
    // 0..100, of the running or the last update.
    int progressPercent() const { return m_percent; }

public slots:
    // Reads the keypad again (on the worker); ignored during an update.
    void refresh();
    // Asks the user (through UserQuestions) and starts the update on "Yes".
    // True when the update started.
    bool offerUpdate();

signals:
    void statusChanged(FirmwareUpdater::Status status);
    void updateStarted();
    void progressChanged(int percent);
    void updateFinished(bool flashed);

private:
    struct Reading
    {
        Preference::DeviceInfoResult result = Preference::DeviceInfoResult::NoKeypad;
        Preference::DeviceInfo info;
    };

    Hid_Comm* hid() const;
    int layout() const;
    void onKeyboardStatusChange(bool connected);
    void runOnWorker(std::function<void()> work);
    static Reading read(Hid_Comm* hid, int layout);
    void showReading(const Reading& reading);
    void setStatus(Status status);
    void noteProgress(int done, int total);
    void finishUpdate(bool flashed, const Reading& reading);

    QThread m_thread;
    // Lives on m_thread; work is queued to it.
    std::unique_ptr<QObject> m_worker;
    Status m_status = Status::Reading;
    Outcome m_outcome = Outcome::None;
    Preference::DeviceInfo m_info;
    bool m_updating = false;
    int m_percent = 0;
    // Only the newest reading counts.
    int m_readings = 0;
    // Written by the update on the worker; progressChanged is queued only on a change.
    std::atomic<int> m_reportedPercent{-1};
    std::unique_ptr<KeypadPause> m_pause;
};
