#pragma once

#include "log.h"

#include <QVariantMap>
#include <QWidget>
#include <memory>

class ActionList;
class ButtonLayoutConfig;
class FavoriteKeyItemModel;
class FolderCondition;
class FormArea;
class Hid_Comm;
class KeyAction;
class RuntimeActionServices;
class TaskProxy;
class KeypadMonitor;
class SleepMonitor;
class KeyItem;
class IPC_Thread;
class KeyItemGridView;
class KeyItemModel;
class LayoutMenu;
class Settings;
class QLabel;
class QSettings;
class QTimer;
class QTranslator;
class TerminationSignals;
class TitleBar;
class TrayIcon;
class TreeView;
class VirtualKeypad;
class WindowSystem;

// The editor window. It owns the log, builds and wires every subsystem, lives
// in the tray while closed, and is the target of the hand-over requests of
// later starts.
class MainWindow : public QWidget
{
    Q_OBJECT
public:
    MainWindow(QSettings* settings, bool runInBackground, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Loads the translation of a language index (0..5) into the translator
    // and installs it; any other index keeps the built-in texts.
    static void installTranslator(QTranslator* translator, int langIdx);
    static QString translationFile(int langIdx);

    // When set, destroying the window starts the program again with
    // "--waitInst", so the new process waits for this one to end.
    void setRestartFlag(bool restart);
    bool restartFlag() const;

    // Sizes the left panel that holds the key grid; the window is the panel
    // plus the right column wide.
    void setKeyPanelSize(const QSize& size);
    QWidget* keyPanel() const;
    QWidget* rightColumn() const;
    // The status line's text, and its look: "connected", "absent", "denied"
    // or "virtual".
    void setKeypadStatus(const QString& text, const QString& state = QString());

    KeyItemGridView* keyGrid() const;
    ActionList* actionList() const;
    FormArea* formArea() const;
    TreeView* treeView() const;
    VirtualKeypad* virtualKeypad() const;

    Log* log();
    KeyItemModel* keyItemModel() const;
    FavoriteKeyItemModel* favorites() const;
    ButtonLayoutConfig* layoutConfig() const;

signals:
    void appStateChange(bool isAppActive);

public slots:
    void bringWindowToFront();
    void openExtensionFile(const QString& path);
    void showAboutBox();
    // Quits cleanly: threads stopped, settings written, then the event loop ends.
    void quitApplication();
    void restartApplication();
    // The description of an action type in the form area (the drag hint for
    // any other type); with cancelSelection the key grid's selection goes.
    void showFunctionDescription(int actionType, bool cancelSelection);
    void onLayoutImported(const QVariantMap& page);
    void onFavoritesImported(const QVariantMap& favorites);

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildWindow();
    void createModel();
    void buildEditor();
    void connectEditor();
    void onKeySelected(int keyIdx);
    void createDevice();
    void createRuntime();
    void watchForegroundApplications(bool background);
    void onKeyboardStatusChange(bool connected);
    void showKeypadStatus();
    void onModelContentChanged(const KeyItem* item);
    void onButtonLayoutChanged(int layout);
    void tellUser(const QString& subject, const QString& text);
    void setupTray();
    void setupVirtualKeypad();
    void hideToBackground();
    void toggleFromTray();
    void stopThreads();
    void startRestartedInstance();

    // First member: every other member and subsystem may log while it is built.
    Log m_log;
    QSettings* m_settings = nullptr;
    Settings* m_store = nullptr;
    ButtonLayoutConfig* m_layoutConfig = nullptr;
    KeyItemModel* m_keyItemModel = nullptr;
    FavoriteKeyItemModel* m_favorites = nullptr;
    QString m_importFileName;
    std::unique_ptr<WindowSystem> m_windowSystem;
    TitleBar* m_titleBar = nullptr;
    QWidget* m_keyPanel = nullptr;
    QWidget* m_rightColumn = nullptr;
    KeyItemGridView* m_grid = nullptr;
    ActionList* m_actionList = nullptr;
    FormArea* m_formArea = nullptr;
    TreeView* m_treeView = nullptr;
    LayoutMenu* m_layoutMenu = nullptr;
    QLabel* m_statusLine = nullptr;
    TrayIcon* m_tray = nullptr;
    VirtualKeypad* m_virtualKeypad = nullptr;
    TerminationSignals* m_terminationSignals = nullptr;
    IPC_Thread* m_ipcThread = nullptr;
    Hid_Comm* m_hidComm = nullptr;
    TaskProxy* m_taskProxy = nullptr;
    KeyAction* m_keyAction = nullptr;
    FolderCondition* m_folderCondition = nullptr;
    std::unique_ptr<RuntimeActionServices> m_actionServices;
    KeypadMonitor* m_keypadMonitor = nullptr;
    SleepMonitor* m_sleepMonitor = nullptr;
    QTimer* m_keypadStatusTimer = nullptr;
    bool m_restartFlag = false;
    bool m_quitting = false;
};
