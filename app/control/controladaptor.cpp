#include "controladaptor.h"

#include "agentcore.h"
#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "ka_folder.h"
#include "keyaction.h"
#include "keyactionabstr.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypaddimmer.h"
#include "keypadstatus.h"
#include "keypadtable.h"
#include "logging.h"
#include "settings.h"
#include "settingskeys.h"
#include "taskproxy.h"

#include <QDBusMessage>
#include <QMutexLocker>

ControlAdaptor::ControlAdaptor(AgentCore* core, const QDBusConnection& bus, QObject* parent)
    : QDBusAbstractAdaptor(parent), m_core(core), m_bus(bus)
{
    m_shownLayout = layout();
    m_shownFolderKey = currentFolderKey();
    m_shownConnected = connected();
    watchCore();
}

// The model changes on the key action thread as well as here; its news is
// taken on this thread, where the page is read under the model's lock.
void ControlAdaptor::watchCore()
{
    if (!m_core)
        return;
    connect(
        m_core->keyItemModel(), &KeyItemModel::updateContent, this,
        [this](const KeyItem* item) {
            if (!item)
                onPageMayHaveChanged();
        },
        Qt::QueuedConnection);
    connect(m_core->layoutConfig(), &ButtonLayoutConfig::buttonLayoutChanged, this,
            &ControlAdaptor::onPageMayHaveChanged, Qt::QueuedConnection);
    connect(m_core->keypadStatus(), &KeypadStatus::stateChanged, this, &ControlAdaptor::onKeypadChanged);
    if (Hid_Comm* hid = m_core->hidComm()) {
        connect(
            hid, &Hid_Comm::keyPressed, this, [this](int id) { onDeviceKey(id, true); }, Qt::QueuedConnection);
        connect(
            hid, &Hid_Comm::keyReleased, this, [this](int id) { onDeviceKey(id, false); }, Qt::QueuedConnection);
    }
}

bool ControlAdaptor::connected() const
{
    return m_core && m_core->keypadStatus()->state() == KeypadStatus::Connected;
}

QString ControlAdaptor::model() const
{
    return connected() ? KeypadTable::modelName(layout()) : QString();
}

int ControlAdaptor::layout() const
{
    return m_core ? m_core->layoutConfig()->currentLayout() : -1;
}

QString ControlAdaptor::layoutName() const
{
    return ButtonLayoutConfig::layoutName(layout());
}

int ControlAdaptor::keyCount() const
{
    return ButtonLayoutConfig::keyCount(layout());
}

QString ControlAdaptor::currentPage() const
{
    if (!m_core)
        return QString();
    KeyItemModel* keys = m_core->keyItemModel();
    QMutexLocker locker(keys->updateLock());
    const KA_Folder* folder = keys->isRootList() ? nullptr : keys->currentFolder();
    return folder && folder->owner ? folder->owner->currentRender().text : QString();
}

int ControlAdaptor::currentFolderKey() const
{
    if (!m_core)
        return -1;
    KeyItemModel* keys = m_core->keyItemModel();
    QMutexLocker locker(keys->updateLock());
    const KA_Folder* folder = keys->isRootList() ? nullptr : keys->currentFolder();
    return folder && folder->owner ? folder->owner->keyIdx : -1;
}

void ControlAdaptor::ShowFolder(const QString& title, const QDBusMessage& call)
{
    KA_Folder* folder = rootFolderTitled(title);
    if (!folder) {
        refuse(call, ControlInterface::noSuchFolderError(), tr("No folder titled \"%1\" on the root page.").arg(title));
        return;
    }
    openFolder(folder);
}

void ControlAdaptor::ShowFolderAt(int keyIndex, const QDBusMessage& call)
{
    if (keyIndex < 0 || keyIndex >= keyCount()) {
        refuse(call, ControlInterface::invalidArgumentError(),
               tr("Key %1 is not on the keypad (0 to %2).").arg(keyIndex).arg(keyCount() - 1));
        return;
    }
    KA_Folder* folder = rootFolderAt(keyIndex);
    if (!folder) {
        refuse(call, ControlInterface::noSuchFolderError(),
               tr("Key %1 of the root page is not a folder.").arg(keyIndex));
        return;
    }
    openFolder(folder);
}

void ControlAdaptor::ShowRootPage()
{
    if (!m_core)
        return;
    KeyItemModel* keys = m_core->keyItemModel();
    keys->beginUpdate();
    keys->changeListToRoot();
    keys->endUpdate(true);
}

// Down and up, one after the other on the key action thread, as a quick
// press on the keypad would arrive; the page may change in between.
void ControlAdaptor::PressKey(int keyIndex, const QDBusMessage& call)
{
    if (!m_core || !m_core->keyAction())
        return;
    const int currentLayout = layout();
    const int devKeyId = KeypadTable::deviceKeyId(currentLayout, keyIndex);
    if (keyIndex < 0 || keyIndex >= keyCount() || devKeyId < 0) {
        refuse(call, ControlInterface::invalidArgumentError(),
               tr("Key %1 is not on the keypad (0 to %2).").arg(keyIndex).arg(keyCount() - 1));
        return;
    }
    {
        KeyItemModel* keys = m_core->keyItemModel();
        QMutexLocker locker(keys->updateLock());
        const KeyItem* item = keys->keyItemAt(keyIndex);
        if (!item || !item->currentAction() || !item->currentAction()->isValid()) {
            refuse(call, ControlInterface::noActionError(), tr("Key %1 has no action on this page.").arg(keyIndex));
            return;
        }
    }
    LOG_MSG(QStringLiteral("key %1 pressed over D-Bus").arg(keyIndex));
    KeyAction* action = m_core->keyAction();
    QMetaObject::invokeMethod(action, "onKeyPressed", Qt::QueuedConnection, Q_ARG(int, devKeyId));
    QMetaObject::invokeMethod(action, "onKeyRleased", Qt::QueuedConnection, Q_ARG(int, devKeyId));
    emit KeyPressed(keyIndex);
    emit KeyReleased(keyIndex);
}

// As the preference slider does: the level is kept, the dimmer comes back
// to it, and the keypad gets it off the GUI thread.
void ControlAdaptor::SetBrightness(int level, const QDBusMessage& call)
{
    if (!m_core)
        return;
    if (level < SettingsKeys::BrightnessMin || level > SettingsKeys::BrightnessMax) {
        refuse(call, ControlInterface::invalidArgumentError(),
               tr("Brightness %1 is outside %2 to %3.")
                   .arg(level)
                   .arg(SettingsKeys::BrightnessMin)
                   .arg(SettingsKeys::BrightnessMax));
        return;
    }
    m_core->settingsStore()->setValue(SettingsKeys::Brightness, level);
    m_core->keypadDimmer()->noteBrightness(level);
    const QPointer<Hid_Comm> hid = m_core->hidComm();
    if (hid && hid->isOpened() && m_core->taskProxy()) {
        m_core->taskProxy()->runTask(QStringLiteral("brightness"), [hid, level] {
            // Gone only once the task thread, which runs this, has ended.
            if (Hid_Comm* connection = hid.data())
                connection->setBacklight(level);
        });
    }
}

void ControlAdaptor::SetLayout(int layout, const QDBusMessage& call)
{
    if (!m_core)
        return;
    if (!ButtonLayoutConfig::isValidLayout(layout)) {
        refuse(call, ControlInterface::invalidArgumentError(),
               tr("Layout %1 does not exist (0 to %2).").arg(layout).arg(KeypadTable::LayoutCount - 1));
        return;
    }
    if (layout != this->layout())
        m_core->layoutConfig()->changeLayout(layout);
}

void ControlAdaptor::onDeviceKey(int devKeyId, bool pressed)
{
    const int button = KeyAction::buttonIndex(layout(), devKeyId);
    if (button < 0)
        return;
    if (pressed)
        emit KeyPressed(button);
    else
        emit KeyReleased(button);
}

void ControlAdaptor::onPageMayHaveChanged()
{
    const int nowLayout = layout();
    const int nowFolderKey = currentFolderKey();
    if (nowLayout == m_shownLayout && nowFolderKey == m_shownFolderKey)
        return;
    QVariantMap changed{{QStringLiteral("CurrentPage"), currentPage()},
                        {QStringLiteral("CurrentFolderKey"), nowFolderKey}};
    if (nowLayout != m_shownLayout) {
        changed.insert(QStringLiteral("Layout"), nowLayout);
        changed.insert(QStringLiteral("LayoutName"), layoutName());
        changed.insert(QStringLiteral("KeyCount"), keyCount());
        changed.insert(QStringLiteral("Model"), model());
    }
    m_shownLayout = nowLayout;
    m_shownFolderKey = nowFolderKey;
    emit PageChanged(currentPage(), nowFolderKey);
    notifyPropertiesChanged(changed);
}

void ControlAdaptor::onKeypadChanged()
{
    const bool now = connected();
    if (now == m_shownConnected)
        return;
    m_shownConnected = now;
    notifyPropertiesChanged({{QStringLiteral("Connected"), now}, {QStringLiteral("Model"), model()}});
}

void ControlAdaptor::openFolder(KA_Folder* folder)
{
    LOG_MSG(QStringLiteral("folder %1 opened over D-Bus").arg(folder->owner ? folder->owner->keyIdx : -1));
    folder->doAction(0);
}

KA_Folder* ControlAdaptor::rootFolderAt(int keyIndex) const
{
    KeyItemModel* keys = m_core ? m_core->keyItemModel() : nullptr;
    if (!keys)
        return nullptr;
    QMutexLocker locker(keys->updateLock());
    const QList<KeyItem*>* root = keys->rootList(keys->currentLayout());
    for (const KeyItem* item : root ? *root : QList<KeyItem*>()) {
        if (item && item->keyIdx == keyIndex && item->actionType == KAT_FOLDER)
            return qobject_cast<KA_Folder*>(item->currentAction());
    }
    return nullptr;
}

// The exact title first; otherwise the first whose title matches ignoring
// case and surrounding space, as a user types it on a command line.
KA_Folder* ControlAdaptor::rootFolderTitled(const QString& title) const
{
    KeyItemModel* keys = m_core ? m_core->keyItemModel() : nullptr;
    if (!keys || title.trimmed().isEmpty())
        return nullptr;
    QMutexLocker locker(keys->updateLock());
    const QList<KeyItem*>* root = keys->rootList(keys->currentLayout());
    KA_Folder* loose = nullptr;
    for (const KeyItem* item : root ? *root : QList<KeyItem*>()) {
        auto* folder =
            item && item->actionType == KAT_FOLDER ? qobject_cast<KA_Folder*>(item->currentAction()) : nullptr;
        if (!folder)
            continue;
        const QString text = item->currentRender().text;
        if (text == title)
            return folder;
        if (!loose && text.trimmed().compare(title.trimmed(), Qt::CaseInsensitive) == 0)
            loose = folder;
    }
    return loose;
}

void ControlAdaptor::refuse(const QDBusMessage& call, const QString& error, const QString& message)
{
    LOG_MSG(QStringLiteral("ERROR: D-Bus call %1 refused!! %2").arg(call.member(), message));
    if (call.type() != QDBusMessage::MethodCallMessage)
        return;
    call.setDelayedReply(true);
    m_bus.send(call.createErrorReply(error, message));
}

void ControlAdaptor::notifyPropertiesChanged(const QVariantMap& changed)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(ControlInterface::path(), QStringLiteral("org.freedesktop.DBus.Properties"),
                                   QStringLiteral("PropertiesChanged"));
    signal << ControlInterface::name() << changed << QStringList();
    m_bus.send(signal);
}
