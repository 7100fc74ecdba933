#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class KA_Folder;
class QTimer;
class WindowSystem;

// While the main window is in the background, opens a root-page folder on
// the keypad when the application its appName names comes to the front. Only
// a change of the foreground application acts, so a user who leaves the
// folder is not pulled back while that application stays in front.
class FolderCondition : public QObject
{
    Q_OBJECT
public:
    // The window system is the platform's own.
    explicit FolderCondition(int intervalMs, QObject* parent = nullptr);
    FolderCondition(int intervalMs, std::unique_ptr<WindowSystem> windowSystem, QObject* parent = nullptr);
    ~FolderCondition() override;

    // Whether this desktop tells which application is in front; the folder
    // form shows sourceNotice(): what tells it, or what would.
    static bool isAvailable();
    static QString sourceNotice();

    bool isDetecting() const;
    QList<KA_Folder*> watchList() const;

signals:
    // Going to the background: the main window's description panel shows
    // the drag hint (actionType -1), so the editor comes back without a
    // stale description.
    void functionDescriptionWanted(int actionType);

public slots:
    void startFolderConditionDetect();
    void stopFolderConditionDetect();
    void onBkTimerTimeout();

private:
    bool mainWindowInBackground();
    bool checkAvailable();
    void buildWatchList();
    void openMatchingFolders(const QString& applicationName);

    QTimer* m_timer = nullptr;
    std::unique_ptr<WindowSystem> m_windowSystem;
    // Not owned: items deleted while detecting must not leave dangling entries.
    QList<QPointer<KA_Folder>> m_watchList;
    bool m_unavailableLogged = false;
};
