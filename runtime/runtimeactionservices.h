#pragma once

#include "actionservices.h"

#include <memory>

class WindowSystem;

// The desktop services of the running program: keystrokes through
// VirtualKey, the clipboard of the GUI thread, work on the registered
// TaskProxy, detached processes and the desktop's URL handler.
class RuntimeActionServices : public ActionServices
{
public:
    explicit RuntimeActionServices(std::unique_ptr<WindowSystem> windowSystem);
    ~RuntimeActionServices() override;

    void sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift) override;
    void sendMacroKeyEvent(QList<MarcoKeyItem> steps) override;
    bool setClipboardText(const QString& text) override;
    bool runTask(const QString& name, std::function<void()> work) override;
    bool startDetached(const QString& program, const QStringList& arguments, const QString& workingDirectory) override;
    bool openUrl(const QUrl& url) override;
    QString foregroundApplicationName() override;

    // How long a keystroke thread waits for the GUI thread to take the text.
    static constexpr int ClipboardWaitMs = 2000;

private:
    std::unique_ptr<WindowSystem> m_windowSystem;
};
