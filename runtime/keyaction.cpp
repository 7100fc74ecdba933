#include "keyaction.h"

#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keyactionabstr.h"
#include "keyeventfilter.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypadtable.h"
#include "keyrenderinfo.h"
#include "logging.h"
#include "objectregistry.h"

#include <QMutex>

namespace {

int currentLayout()
{
    auto* layouts = COMPONENT(ButtonLayoutConfig, ComponentId::ButtonLayoutConfig);
    return layouts ? layouts->currentLayout() : -1;
}

// The item under a button and its current action, when both exist and the
// action is configured; an unconfigured key does nothing and shows nothing.
KeyItem* configuredItem(KeyItemModel* model, int button)
{
    if (!model || button < 0 || button >= KeyItemModel::MaxKeys)
        return nullptr;
    KeyItem* item = model->keyItemAt(button);
    if (!item || !item->currentAction() || !item->currentAction()->isValid())
        return nullptr;
    return item;
}

// Feedback goes to the screen of the button's own key. (The image reports
// number keys from 0 on some models where key reports count from 1.) The
// face is drawn and sent by the GUI thread, so a press starts its action at
// once instead of after drawing and the protocol's pauses for one image. The
// job is queued before the action runs: whatever the action changes on the
// keypad (a folder's page) and the release's face are queued after it, so
// the keypad shows them in order.
void showFace(const KeyRenderInfo& face, int layout, int button, bool pressedLook)
{
    auto* hid = COMPONENT(Hid_Comm, ComponentId::HidComm);
    if (!hid)
        return;
    const int imageKey = Hid_Comm::deviceKeyNumber(layout, button);
    QMetaObject::invokeMethod(
        hid,
        [hid, imageKey, face, pressedLook] { hid->sendIcon(imageKey, KeyFaceRenderer::render(face), pressedLook); },
        Qt::QueuedConnection);
}

} // namespace

KeyAction::KeyAction(QObject* parent) : QObject(parent)
{
    m_thread.setObjectName(QStringLiteral("KeyAction"));
    moveToThread(&m_thread);
    m_thread.start(QThread::InheritPriority);
}

KeyAction::~KeyAction()
{
    m_thread.quit();
    m_thread.wait();
}

int KeyAction::buttonIndex(int layout, int devKeyId)
{
    return KeypadTable::buttonIndex(layout, devKeyId);
}

void KeyAction::setKeyEventFilter(KeyEventFilter* filter)
{
    m_filter.store(filter);
}

// Nothing but the lookup stands between the report and the action; the log
// record is written after it.
void KeyAction::onKeyPressed(int devKeyId)
{
    KeyEventFilter* filter = m_filter.load();
    if (filter && filter->takeKeyPress(devKeyId)) {
        LOG_MSG(QStringLiteral("devKeyId: %1, taken before dispatch").arg(devKeyId));
        return;
    }
    const int layout = currentLayout();
    if (!ButtonLayoutConfig::isValidLayout(layout)) {
        LOG_MSG(QStringLiteral("devKeyId: %1").arg(devKeyId));
        LOG_MSG(QStringLiteral("layoutType out of range!!!"));
        return;
    }
    const int button = buttonIndex(layout, devKeyId);
    auto* model = COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
    KeyActionAbstr* action = nullptr;
    KeyRenderInfo face;
    {
        // The editor changes items under the model's lock: look and copy the
        // face under it too. The action runs outside it, so a slow one never
        // holds up the editor (an item outlives its removal by seconds).
        QMutexLocker locker(model ? model->updateLock() : nullptr);
        KeyItem* item = configuredItem(model, button);
        if (item) {
            action = item->currentAction();
            face = item->render[item->cfIdx];
        }
    }
    if (action) {
        emit pressedLookChanged(button, true);
        showFace(face, layout, button, true);
        action->doAction(0);
    }
    LOG_MSG(QStringLiteral("devKeyId: %1").arg(devKeyId));
}

// A release shows the face again; a two-feature hotkey switches to its other
// feature, so the next press performs that one.
void KeyAction::onKeyRleased(int devKeyId)
{
    LOG_MSG(QStringLiteral("devKeyId: %1").arg(devKeyId));
    KeyEventFilter* filter = m_filter.load();
    if (filter && filter->takeKeyRelease(devKeyId))
        return;
    const int layout = currentLayout();
    if (!ButtonLayoutConfig::isValidLayout(layout)) {
        LOG_MSG(QStringLiteral("layoutType out of range!!!"));
        return;
    }
    auto* model = COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
    if (!model)
        return;
    const int button = buttonIndex(layout, devKeyId);
    model->beginUpdate();
    KeyItem* item = configuredItem(model, button);
    const bool toggled = item && item->multiFeatureFlag;
    emit pressedLookChanged(button, false);
    if (toggled)
        item->cfIdx = (item->cfIdx + 1) % KeyItem::SlotCount;
    else if (item)
        showFace(item->render[item->cfIdx], layout, button, false);
    // Only a toggle changes the model. Its notification redraws the key on
    // the keypad and in the editor and saves the new slot; a plain release
    // neither redraws twice nor starts a save of the whole configuration.
    model->endUpdate(toggled, item);
    if (toggled)
        emit updateContent(item);
}
