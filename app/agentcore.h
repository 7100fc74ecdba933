#pragma once

#include <QObject>

#include <memory>

class ButtonLayoutConfig;
class FavoriteKeyItemModel;
class FolderCondition;
class Hid_Comm;
class KeyAction;
class KeyItem;
class KeyItemModel;
class KeypadDimmer;
class KeypadMonitor;
class KeypadStatus;
class LiveFaceUpdater;
class RuntimeActionServices;
class ScreenLockMonitor;
class Settings;
class SleepMonitor;
class SysMonitor;
class TaskProxy;
class WindowSystem;

// The program without its editor: what keeps running in the tray. It holds
// the settings store, the layouts, the key model and the favorites, the
// keypad connection with its arrival, removal, sleep and status watchers,
// and the action runtime (key action thread, task worker, folder
// conditions, keystroke services), and keeps the keypad's images in step
// with the model and its backlight with the dimming rules. It enters the shared objects into the object registry and
// takes them out again; the main window, which owns it, adds the widgets.
class AgentCore : public QObject
{
    Q_OBJECT

public:
    // Folder conditions look at the foreground application this often.
    static constexpr int FolderConditionIntervalMs = 600;

    explicit AgentCore(QObject* parent = nullptr);
    ~AgentCore() override;

    // Ends the threads: the key action thread first, so no action starts
    // while the rest goes away; then the task worker, which the actions
    // feed; then the device thread, which both of them use. Folder
    // conditions stop too. Safe to call more than once.
    void stop();

    Settings* settingsStore() const;
    ButtonLayoutConfig* layoutConfig() const;
    KeyItemModel* keyItemModel() const;
    FavoriteKeyItemModel* favorites() const;
    WindowSystem* windowSystem() const;
    KeypadStatus* keypadStatus() const;
    FolderCondition* folderCondition() const;
    // Null once stopped.
    Hid_Comm* hidComm() const;
    KeyAction* keyAction() const;
    TaskProxy* taskProxy() const;
    ScreenLockMonitor* screenLockMonitor() const;
    KeypadDimmer* keypadDimmer() const;
    // Null once stopped.
    LiveFaceUpdater* liveFaces() const;

private:
    void createModel();
    void createDevice();
    void createRuntime();
    void createDimming();
    void createLiveFaces();
    void onButtonLayoutChanged(int layout);
    void onModelContentChanged(const KeyItem* item);

    std::unique_ptr<WindowSystem> m_windowSystem;
    Settings* m_store = nullptr;
    ButtonLayoutConfig* m_layoutConfig = nullptr;
    KeyItemModel* m_keyItemModel = nullptr;
    FavoriteKeyItemModel* m_favorites = nullptr;
    std::unique_ptr<Hid_Comm> m_hidComm;
    KeypadStatus* m_keypadStatus = nullptr;
    KeypadMonitor* m_keypadMonitor = nullptr;
    SleepMonitor* m_sleepMonitor = nullptr;
    std::unique_ptr<TaskProxy> m_taskProxy;
    std::unique_ptr<RuntimeActionServices> m_actionServices;
    std::unique_ptr<KeyAction> m_keyAction;
    FolderCondition* m_folderCondition = nullptr;
    ScreenLockMonitor* m_screenLock = nullptr;
    KeypadDimmer* m_dimmer = nullptr;
    std::unique_ptr<SysMonitor> m_sysMonitor;
    std::unique_ptr<LiveFaceUpdater> m_liveFaces;
};
