#pragma once

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>

class QProcessEnvironment;

// Where a Wayland desktop tells which window is in front: the compositor's
// own IPC, a KWin script or a GNOME Shell extension. Each source follows the
// focus by events while started and keeps the process id of the focused
// window; it connects nothing while stopped, and connects again when the
// compositor restarts.
class ForegroundSource : public QObject
{
    Q_OBJECT

public:
    // The process id before the source has heard anything since its start.
    static constexpr qint64 Unknown = -1;

    explicit ForegroundSource(QObject* parent = nullptr);
    ~ForegroundSource() override;

    // "sway", "Hyprland", ... as users know the desktop.
    virtual QString name() const = 0;
    virtual void start() = 0;
    virtual void stop() = 0;
    // What the folder form says: the source in use, or what it lacks.
    virtual QString notice() const;

    // The focused window's process; 0 when none has the focus.
    qint64 processId() const;
    // The base name of the focused window's program; empty when none has
    // the focus or it is not known.
    virtual QString applicationName() const;
    bool isStarted() const;

    // The source this desktop offers, judged from its environment; null for
    // none.
    static std::unique_ptr<ForegroundSource> forDesktop(const QProcessEnvironment& environment);

signals:
    void processIdChanged(qint64 pid);

protected:
    void setProcessId(qint64 pid);
    void setStarted(bool started);

private:
    std::atomic<qint64> m_pid{Unknown};
    bool m_started = false;
};
