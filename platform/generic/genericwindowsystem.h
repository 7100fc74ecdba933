#pragma once

#include "windowsystem.h"

// Wayland and any other platform: only what Qt itself can do. A Wayland
// compositor decides on its own whether a window may take the focus, and
// tells no client which window is in front.
class GenericWindowSystem : public WindowSystem
{
public:
    explicit GenericWindowSystem(const QString& name);

    QString name() const override;
    void activateWindow(QWindow* window) override;
    quint64 foregroundWindowId() override;
    QString foregroundWindowTitle() override;
    bool activateWindowId(quint64 windowId) override;
    bool canQueryForegroundApplication() const override;
    QString foregroundApplicationName() override;
    QStringList runningApplicationExecutables() override;

private:
    QString m_name;
};
