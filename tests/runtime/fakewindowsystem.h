#pragma once

#include "windowsystem.h"

#include <QHash>
#include <QMutex>
#include <QVector>

// A desktop of numbered windows whose foreground window follows activation
// requests (or ignores them, like a window manager that refuses).
class FakeWindowSystem : public WindowSystem
{
public:
    struct Activation
    {
        quint64 windowId;
        qint64 monotonicNs; // steady clock, comparable with recorded keystrokes
    };

    void setForeground(quint64 windowId, const QString& title);
    void setObeysActivation(bool obeys);
    // The program in front, whatever the window; an unqueryable desktop
    // (like Wayland) reports none.
    void setForegroundApplication(const QString& name);
    void setCanQueryForegroundApplication(bool canQuery);
    QVector<Activation> activations() const;

    QString name() const override;
    void activateWindow(QWindow* window) override;
    quint64 foregroundWindowId() override;
    QString foregroundWindowTitle() override;
    bool activateWindowId(quint64 windowId) override;
    bool canQueryForegroundApplication() const override;
    QString foregroundApplicationName() override;
    QStringList runningApplicationExecutables() override;

    // A desktop that tells by events: listened to or not, spoken yet or not.
    void watchForegroundApplication(bool watch) override;
    bool isForegroundApplicationKnown() const override;
    bool isWatched() const;
    void setForegroundKnown(bool known);

private:
    mutable QMutex m_mutex;
    quint64 m_foreground = 0;
    QHash<quint64, QString> m_titles;
    bool m_obeys = true;
    QString m_application;
    bool m_canQuery = true;
    bool m_watched = false;
    bool m_known = true;
    QVector<Activation> m_activations;
};
