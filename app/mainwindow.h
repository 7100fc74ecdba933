#pragma once

#include "log.h"

#include <QVariantMap>
#include <QWidget>
#include <memory>

class ActionList;
class AgentCore;
class ButtonLayoutConfig;
class EditorFocus;
class Favorite;
class FavoriteKeyItemModel;
class FormArea;
class IPC_Thread;
class KeyItemGridView;
class KeyItemModel;
class PreferenceLauncher;
class QLabel;
class QSettings;
class QTranslator;
class TerminationSignals;
class TitleBar;
class TrayIcon;
class TreeView;
class VirtualKeypad;

// The editor window. It owns the log and, made first, the agent core that
// keeps the keypad running; around that it builds the editor's widgets, the
// tray icon and the on-screen keypad. It lives in the tray while closed and
// is the target of the hand-over requests of later starts.
class MainWindow : public QWidget
{
    Q_OBJECT
public:
    MainWindow(QSettings* settings, bool runInBackground, QWidget* parent = nullptr);
    ~MainWindow() override;

    void setVisible(bool visible) override;

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

    // The editor's parts, made on first use.
    KeyItemGridView* keyGrid() const;
    ActionList* actionList() const;
    FormArea* formArea() const;
    Favorite* favoriteWindow() const;
    TreeView* treeView() const;
    VirtualKeypad* virtualKeypad() const;
    // The preference dialog's opener (Settings in the palette and the tray).
    PreferenceLauncher* preferences() const;

    Log* log();
    AgentCore* core() const;
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
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void createCore();
    void buildWindow();
    void ensureEditor();
    void buildEditor();
    void connectEditor();
    void connectFavorites();
    void connectCore();
    void onKeySelected(int keyIdx);
    void watchForegroundApplications(bool background);
    // A KeypadStatus::State.
    void showKeypadStatus(int state);
    void tellUser(const QString& subject, const QString& text);
    void setupTray();
    void setupVirtualKeypad();
    void setupPreferences();
    void hideToBackground();
    void toggleFromTray();
    void stopThreads();
    void startRestartedInstance();

    // First member: every other member and subsystem may log while it is built.
    Log m_log;
    QSettings* m_settings = nullptr;
    std::unique_ptr<AgentCore> m_core;
    QString m_importFileName;
    TitleBar* m_titleBar = nullptr;
    QWidget* m_keyPanel = nullptr;
    QWidget* m_rightColumn = nullptr;
    KeyItemGridView* m_grid = nullptr;
    ActionList* m_actionList = nullptr;
    FormArea* m_formArea = nullptr;
    TreeView* m_treeView = nullptr;
    EditorFocus* m_editorFocus = nullptr;
    Favorite* m_favorite = nullptr;
    QLabel* m_statusLine = nullptr;
    TrayIcon* m_tray = nullptr;
    VirtualKeypad* m_virtualKeypad = nullptr;
    TerminationSignals* m_terminationSignals = nullptr;
    IPC_Thread* m_ipcThread = nullptr;
    PreferenceLauncher* m_preferences = nullptr;
    bool m_restartFlag = false;
    // How the restarted program comes back: in the tray, with the virtual keypad.
    bool m_restartInBackground = false;
    bool m_restartWithVirtualKeypad = false;
    bool m_quitting = false;
};
