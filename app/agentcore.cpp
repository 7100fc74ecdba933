#include "agentcore.h"

#include "buttonlayoutconfig.h"
#include "dbusscreenlockmonitor.h"
#include "dimmingsettings.h"
#include "favoritekeyitemmodel.h"
#include "foldercondition.h"
#include "hid_comm.h"
#include "keyaction.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypaddimmer.h"
#include "keypadmonitor.h"
#include "keypadstatus.h"
#include "keypadusbids.h"
#include "livefaceupdater.h"
#include "logging.h"
#include "objectregistry.h"
#include "runtimeactionservices.h"
#include "settings.h"
#include "settingskeys.h"
#include "sleepmonitor.h"
#include "sysmonitor.h"
#include "taskproxy.h"
#include "updatedevicon.h"
#include "virtualkey.h"
#include "windowsystem.h"

AgentCore::AgentCore(QObject* parent) : QObject(parent), m_windowSystem(WindowSystem::create())
{
    LOG_MSG(QStringLiteral("window system: %1").arg(m_windowSystem->name()));
    VirtualKey::setWindowSystem(m_windowSystem.get());
    // Key faces are also drawn on the key action thread; the title font is
    // registered here first, before any thread draws text.
    KeyFaceRenderer::ensureFontsLoaded();
    createModel();
    createDevice();
    createRuntime();
    createDimming();
    createLiveFaces();
}

AgentCore::~AgentCore()
{
    stop();
    VirtualKey::setWindowSystem(nullptr);
    m_keyItemModel->flushPendingSave();
    for (ComponentId id : {ComponentId::KeyItemModel, ComponentId::Settings, ComponentId::ButtonLayoutConfig})
        ObjectRegistry::unregisterObject(id);
}

void AgentCore::createModel()
{
    m_store = new Settings(this);
    ObjectRegistry::registerObject(ComponentId::Settings, m_store);
    m_layoutConfig = new ButtonLayoutConfig(this);
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, m_layoutConfig);
    m_keyItemModel = new KeyItemModel(this);
    ObjectRegistry::registerObject(ComponentId::KeyItemModel, m_keyItemModel);
    m_favorites = new FavoriteKeyItemModel(this);

    // First of all receivers: the model shows the layout's page before any
    // view redraws for it.
    connect(m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, this,
            [this](KeyLayout layout) { onButtonLayoutChanged(layout); });

    m_keyItemModel->reloadKeyItemsFromSettings();
    m_favorites->reloadKeyItemsFromSettings();
    m_layoutConfig->reloadLayout();
}

// The keypad connection starts polling at once; the layout in force reaches
// it first, so the first full update after it opens has a layout to use.
void AgentCore::createDevice()
{
    m_hidComm = std::make_unique<Hid_Comm>();
    ObjectRegistry::registerObject(ComponentId::HidComm, m_hidComm.get());
    m_hidComm->onButtonLayoutChanged(KeyLayout(m_layoutConfig->currentLayout()));
    connect(m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, m_hidComm.get(), &Hid_Comm::onButtonLayoutChanged,
            Qt::DirectConnection);

    m_keypadStatus = new KeypadStatus(m_hidComm.get(), this);
    connect(m_keypadStatus, &KeypadStatus::keypadOpened, this, [] { UpdateDevIcon::updateAllIcon(); });

    m_keypadMonitor = new KeypadMonitor(keypadUsbIds(), this);
    connect(m_keypadMonitor, &KeypadMonitor::keypadArrived, m_hidComm.get(), &Hid_Comm::onKeyboardWasAdded);
    connect(m_keypadMonitor, &KeypadMonitor::keypadRemoved, m_hidComm.get(), &Hid_Comm::onKeyboardWasRemoved);
    m_sleepMonitor = new SleepMonitor(this);
    connect(m_sleepMonitor, &SleepMonitor::aboutToSleep, m_hidComm.get(), &Hid_Comm::onOS_suspend);
    connect(m_sleepMonitor, &SleepMonitor::resumed, m_hidComm.get(), &Hid_Comm::onOS_resumes);

    // The model may change on the key action thread; key images are made on
    // this one.
    connect(m_keyItemModel, &KeyItemModel::updateContent, this, &AgentCore::onModelContentChanged,
            Qt::QueuedConnection);
    connect(
        m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, this, [] { UpdateDevIcon::updateAllIcon(); },
        Qt::QueuedConnection);
}

// Key presses reach the actions on the key action thread; launches and
// websites run on the task thread; folder conditions watch the foreground
// application while the editor is in the background.
void AgentCore::createRuntime()
{
    m_taskProxy = std::make_unique<TaskProxy>();
    ObjectRegistry::registerObject(ComponentId::TaskProxy, m_taskProxy.get());
    m_actionServices = std::make_unique<RuntimeActionServices>(WindowSystem::create());
    ActionServices::setInstance(m_actionServices.get());

    m_keyAction = std::make_unique<KeyAction>();
    connect(m_hidComm.get(), &Hid_Comm::keyPressed, m_keyAction.get(), &KeyAction::onKeyPressed, Qt::QueuedConnection);
    connect(m_hidComm.get(), &Hid_Comm::keyReleased, m_keyAction.get(), &KeyAction::onKeyRleased, Qt::QueuedConnection);

    m_folderCondition = new FolderCondition(FolderConditionIntervalMs, this);
}

// The backlight follows the dimming rules; the press that wakes a dimmed
// keypad never reaches an action.
void AgentCore::createDimming()
{
    m_screenLock = new DBusScreenLockMonitor(this);
    m_dimmer = new KeypadDimmer(this);
    connect(m_dimmer, &KeypadDimmer::backlightChanged, m_hidComm.get(), &Hid_Comm::setBacklight);
    connect(m_keypadStatus, &KeypadStatus::keypadOpened, m_dimmer, &KeypadDimmer::reapply);
    connect(m_screenLock, &ScreenLockMonitor::lockedChanged, m_dimmer, &KeypadDimmer::setLocked);
    m_dimmer->setSettings(DimmingSettings::load(m_store));
    m_keyAction->setKeyEventFilter(m_dimmer);
}

// Keys showing processor, memory, network use or the time.
void AgentCore::createLiveFaces()
{
    m_sysMonitor = std::make_unique<SysMonitor>();
    m_liveFaces = std::make_unique<LiveFaceUpdater>(m_keyItemModel, m_hidComm.get(), m_sysMonitor.get(), m_dimmer);
    LiveFaceUpdater* liveFaces = m_liveFaces.get();
    connect(m_sleepMonitor, &SleepMonitor::aboutToSleep, liveFaces, [liveFaces] { liveFaces->setSystemAsleep(true); });
    connect(m_sleepMonitor, &SleepMonitor::resumed, liveFaces, [liveFaces] { liveFaces->setSystemAsleep(false); });
    connect(m_keyAction.get(), &KeyAction::pressedLookChanged, liveFaces, &LiveFaceUpdater::setPressedLook,
            Qt::QueuedConnection);
}

void AgentCore::stop()
{
    m_liveFaces.reset();
    m_sysMonitor.reset();
    if (m_folderCondition)
        m_folderCondition->stopFolderConditionDetect();
    m_keyAction.reset();
    ActionServices::setInstance(nullptr);
    if (m_taskProxy) {
        ObjectRegistry::unregisterObject(ComponentId::TaskProxy);
        m_taskProxy.reset();
    }
    if (m_hidComm) {
        ObjectRegistry::unregisterObject(ComponentId::HidComm);
        m_hidComm.reset();
    }
}

void AgentCore::onButtonLayoutChanged(int layout)
{
    m_keyItemModel->changeLayoutButtonView(KeyLayout(layout));
    m_store->setValue(SettingsKeys::LastKbLayout, layout);
    LOG_MSG(QStringLiteral("layout: %1").arg(ButtonLayoutConfig::layoutName(layout)));
}

// A null item stands for the whole page (a folder opened, a layout change).
void AgentCore::onModelContentChanged(const KeyItem* item)
{
    if (!item)
        UpdateDevIcon::updateAllIcon();
    else if (item->ownerList == m_keyItemModel->getCurrentLayoutListHead())
        UpdateDevIcon::updateKeyIcon(item);
}

Settings* AgentCore::settingsStore() const
{
    return m_store;
}

ButtonLayoutConfig* AgentCore::layoutConfig() const
{
    return m_layoutConfig;
}

KeyItemModel* AgentCore::keyItemModel() const
{
    return m_keyItemModel;
}

FavoriteKeyItemModel* AgentCore::favorites() const
{
    return m_favorites;
}

WindowSystem* AgentCore::windowSystem() const
{
    return m_windowSystem.get();
}

KeypadStatus* AgentCore::keypadStatus() const
{
    return m_keypadStatus;
}

FolderCondition* AgentCore::folderCondition() const
{
    return m_folderCondition;
}

Hid_Comm* AgentCore::hidComm() const
{
    return m_hidComm.get();
}

KeyAction* AgentCore::keyAction() const
{
    return m_keyAction.get();
}

TaskProxy* AgentCore::taskProxy() const
{
    return m_taskProxy.get();
}

ScreenLockMonitor* AgentCore::screenLockMonitor() const
{
    return m_screenLock;
}

KeypadDimmer* AgentCore::keypadDimmer() const
{
    return m_dimmer;
}

LiveFaceUpdater* AgentCore::liveFaces() const
{
    return m_liveFaces.get();
}
