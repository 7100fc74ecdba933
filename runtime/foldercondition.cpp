#include "foldercondition.h"

#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "objectregistry.h"
#include "windowsystem.h"

#include <QFileInfo>
#include <QTimer>
#include <QWidget>

namespace {

// Shared by every instance on purpose: coming back from the background and
// leaving again with the same application in front opens nothing.
quint32 tickCount = 0;
QString lastApplicationName;

constexpr quint32 AliveLogTicks = 20;

} // namespace

FolderCondition::FolderCondition(int intervalMs, QObject* parent)
    : FolderCondition(intervalMs, WindowSystem::create(), parent)
{
}

FolderCondition::FolderCondition(int intervalMs, std::unique_ptr<WindowSystem> windowSystem, QObject* parent)
    : QObject(parent), m_timer(new QTimer(this)), m_windowSystem(std::move(windowSystem))
{
    m_timer->setInterval(intervalMs);
    connect(m_timer, &QTimer::timeout, this, &FolderCondition::onBkTimerTimeout);
}

FolderCondition::~FolderCondition()
{
    m_timer->stop();
    if (m_windowSystem)
        m_windowSystem->watchForegroundApplication(false);
}

bool FolderCondition::isAvailable()
{
    return WindowSystem::create()->canQueryForegroundApplication();
}

QString FolderCondition::sourceNotice()
{
    return WindowSystem::create()->foregroundSourceNotice();
}

bool FolderCondition::isDetecting() const
{
    return m_timer->isActive();
}

QList<KA_Folder*> FolderCondition::watchList() const
{
    QList<KA_Folder*> folders;
    for (const QPointer<KA_Folder>& folder : m_watchList)
        folders << folder.data();
    return folders;
}

void FolderCondition::startFolderConditionDetect()
{
    LOG_MSG(QStringLiteral("starting folder condition detection"));
    if (!mainWindowInBackground())
        return;
    m_timer->stop();
    m_watchList.clear();
    if (!checkAvailable())
        return;
    buildWatchList();
    if (m_watchList.isEmpty())
        return;
    m_windowSystem->watchForegroundApplication(true);
    m_timer->start();
}

void FolderCondition::stopFolderConditionDetect()
{
    LOG_MSG(QStringLiteral("stopping folder condition detection"));
    m_timer->stop();
    m_watchList.clear();
    if (m_windowSystem)
        m_windowSystem->watchForegroundApplication(false);
}

void FolderCondition::onBkTimerTimeout()
{
    if (++tickCount % AliveLogTicks == 0)
        LOG_MSG(QStringLiteral("folder condition detection are running."));
    // A desktop that tells by events has not spoken yet: an empty name now
    // would make the same application count as a change once it does.
    if (m_windowSystem && !m_windowSystem->isForegroundApplicationKnown())
        return;
    const QString name = m_windowSystem ? m_windowSystem->foregroundApplicationName() : QString();
    if (name == lastApplicationName)
        return;
    lastApplicationName = name;
    openMatchingFolders(name);
}

bool FolderCondition::mainWindowInBackground()
{
    QObject* object = COMPONENT_OBJECT(ComponentId::MainWindow);
    if (!object)
        return false;
    auto* window = qobject_cast<QWidget*>(object);
    if (!logMsgWhenRetFail(window != nullptr, QStringLiteral("mainwindow is not a widget!!")))
        return false;
    if (!logMsgWhenRetFail(window->isHidden() || window->isMinimized(),
                           QStringLiteral("mainwindow not in background, stop folder condition detecting !!")))
        return false;
    emit functionDescriptionWanted(-1);
    return true;
}

bool FolderCondition::checkAvailable()
{
    if (m_windowSystem && m_windowSystem->canQueryForegroundApplication())
        return true;
    if (!m_unavailableLogged) {
        LOG_MSG(QStringLiteral("ERROR: folder conditions unavailable: the %1 desktop does not tell which application "
                               "is in front!!")
                    .arg(m_windowSystem ? m_windowSystem->name() : QStringLiteral("unknown")));
        m_unavailableLogged = true;
    }
    return false;
}

void FolderCondition::buildWatchList()
{
    auto* model = COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
    const QList<KeyItem*>* list = model ? model->rootList(model->currentLayout()) : nullptr;
    if (!logMsgWhenRetFail(list != nullptr, QStringLiteral("listPtr is nullptr!!")))
        return;
    for (int i = 0; i < list->size(); ++i) {
        const KeyItem* item = list->at(i);
        KeyActionAbstr* action = item ? item->currentAction() : nullptr;
        if (!action) {
            LOG_MSG(QStringLiteral("ERR: Invalid key or key action obj in list head, idx: %1").arg(i));
            continue;
        }
        auto* folder = item->actionType == KAT_FOLDER ? qobject_cast<KA_Folder*>(action) : nullptr;
        if (folder && !folder->appName.isEmpty())
            m_watchList.append(folder);
    }
}

void FolderCondition::openMatchingFolders(const QString& applicationName)
{
    if (applicationName.isEmpty())
        return;
    // A copy: opening a folder may lead back here and change the list.
    const QList<QPointer<KA_Folder>> folders = m_watchList;
    for (const QPointer<KA_Folder>& folder : folders) {
        if (folder && QFileInfo(folder->appName).baseName() == applicationName)
            folder->doAction(0);
    }
}
