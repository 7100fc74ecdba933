#pragma once

#include "windowsystem.h"

class ForegroundSource;

// Wayland and any other platform: what Qt itself can do, and the application
// in front where the desktop offers a ForegroundSource. A Wayland compositor
// decides on its own whether a window may take the focus.
class GenericWindowSystem : public WindowSystem
{
public:
    // Without a source nothing tells the application in front.
    explicit GenericWindowSystem(const QString& name, std::unique_ptr<ForegroundSource> source = nullptr);
    ~GenericWindowSystem() override;

    QString name() const override;
    void activateWindow(QWindow* window) override;
    quint64 foregroundWindowId() override;
    QString foregroundWindowTitle() override;
    bool activateWindowId(quint64 windowId) override;
    bool canQueryForegroundApplication() const override;
    QString foregroundApplicationName() override;
    QStringList runningApplicationExecutables() override;
    void watchForegroundApplication(bool watch) override;
    bool isForegroundApplicationKnown() const override;
    QString foregroundSourceNotice() const override;

    ForegroundSource* foregroundSource() const;

private:
    QString m_name;
    std::unique_ptr<ForegroundSource> m_source;
};
