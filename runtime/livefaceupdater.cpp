#include "livefaceupdater.h"

#include "facehints.h"
#include "hid_comm.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypaddimmer.h"
#include "logging.h"
#include "sysmonitor.h"

#include <QTime>
#include <QTimer>

namespace {

constexpr int MsPerMinute = 60 * 1000;
// Past the minute, so the clock never draws the minute before.
constexpr int MinuteSlackMs = 50;

FaceHints::LiveKind liveKindOf(const KeyItem* item)
{
    if (!item || item->actionType == KAT_INVALID)
        return FaceHints::LiveKind::None;
    const int slot = qBound(0, item->cfIdx, KeyItem::SlotCount - 1);
    return FaceHints::liveKind(item->render[slot].hintFlags);
}

} // namespace

LiveFaceUpdater::LiveFaceUpdater(KeyItemModel* model, Hid_Comm* hid, SysMonitor* monitor, KeypadDimmer* dimmer,
                                 QObject* parent)
    : QObject(parent), m_model(model), m_hid(hid), m_monitor(monitor), m_dimmer(dimmer)
{
    m_minute = new QTimer(this);
    m_minute->setSingleShot(true);
    m_minute->setTimerType(Qt::PreciseTimer);
    connect(m_minute, &QTimer::timeout, this, [this] {
        refresh();
        armClock();
    });
    connect(m_monitor, &SysMonitor::sampled, this, &LiveFaceUpdater::refresh);
    connect(m_model, &KeyItemModel::updateContent, this, &LiveFaceUpdater::rescan, Qt::QueuedConnection);
    if (m_hid) {
        m_keypadOpen = m_hid->isOpened();
        connect(m_hid, &Hid_Comm::KeyboardStatusChange, this, &LiveFaceUpdater::onKeypadStatus, Qt::QueuedConnection);
    }
    if (m_dimmer) {
        connect(m_dimmer, &KeypadDimmer::backlightChanged, this, [this] {
            sendPending();
            updateDemand();
        });
    }
    rescan();
}

LiveFaceUpdater::~LiveFaceUpdater()
{
    m_monitor->setActive(false);
}

bool LiveFaceUpdater::isClockRunning() const
{
    return m_minute->isActive();
}

void LiveFaceUpdater::setEditorVisible(bool visible)
{
    if (m_editorVisible == visible)
        return;
    m_editorVisible = visible;
    updateDemand();
}

void LiveFaceUpdater::setPressedLook(int keyIdx, bool pressed)
{
    if (pressed)
        m_pressed.insert(keyIdx);
    else
        m_pressed.remove(keyIdx);
}

void LiveFaceUpdater::setSystemAsleep(bool asleep)
{
    if (m_asleep == asleep)
        return;
    m_asleep = asleep;
    sendPending();
    updateDemand();
}

void LiveFaceUpdater::onKeypadStatus(bool connected)
{
    m_keypadOpen = connected;
    // A keypad that has just opened gets the whole page anyway.
    rescan();
}

bool LiveFaceUpdater::keypadLit() const
{
    if (!m_hid || !m_keypadOpen || m_asleep)
        return false;
    return !m_dimmer || (!m_dimmer->isDimmed() && m_dimmer->level() > 0);
}

void LiveFaceUpdater::rescan(const KeyItem* changed)
{
    {
        QMutexLocker locker(m_model->updateLock());
        const QList<KeyItem*>* page = m_model->getCurrentLayoutListHead();
        QList<LiveKey> live;
        QHash<int, QImage> drawn;
        for (const KeyItem* item : page ? *page : QList<KeyItem*>()) {
            const FaceHints::LiveKind kind = liveKindOf(item);
            if (kind == FaceHints::LiveKind::None)
                continue;
            live.append({item->keyIdx, FaceHints::isSampled(kind)});
            const bool sentJustNow = !changed || changed == item;
            if (sentJustNow || !m_drawn.contains(item->keyIdx))
                drawn.insert(item->keyIdx, KeyFaceRenderer::render(item));
            else
                drawn.insert(item->keyIdx, m_drawn.value(item->keyIdx));
            if (sentJustNow)
                m_pending.remove(item->keyIdx);
        }
        m_live = live;
        m_drawn = drawn;
    }
    if (!changed)
        m_pending.clear();
    for (auto it = m_pending.begin(); it != m_pending.end();)
        it = m_drawn.contains(*it) ? std::next(it) : m_pending.erase(it);
    updateDemand();
}

void LiveFaceUpdater::refresh()
{
    if (m_live.isEmpty())
        return;
    QList<const KeyItem*> changed;
    {
        QMutexLocker locker(m_model->updateLock());
        for (const LiveKey& key : qAsConst(m_live)) {
            const KeyItem* item = m_model->keyItemAt(key.keyIdx);
            if (liveKindOf(item) == FaceHints::LiveKind::None)
                continue;
            const QImage face = KeyFaceRenderer::render(item);
            if (face == m_drawn.value(key.keyIdx))
                continue;
            m_drawn.insert(key.keyIdx, face);
            m_pending.insert(key.keyIdx);
            changed.append(item);
        }
    }
    for (const KeyItem* item : qAsConst(changed))
        emit faceChanged(item);
    sendPending();
}

void LiveFaceUpdater::sendPending()
{
    if (m_pending.isEmpty() || !keypadLit())
        return;
    const int layout = m_hid->currentLayout();
    for (int keyIdx : qAsConst(m_pending)) {
        const int deviceKey = Hid_Comm::deviceKeyNumber(layout, keyIdx);
        if (deviceKey >= 0)
            m_hid->sendIcon(deviceKey, m_drawn.value(keyIdx), m_pressed.contains(keyIdx));
    }
    m_pending.clear();
}

void LiveFaceUpdater::updateDemand()
{
    const bool seen = !m_asleep && (keypadLit() || m_editorVisible);
    bool sampled = false;
    bool timed = false;
    for (const LiveKey& key : qAsConst(m_live)) {
        sampled |= key.sampled;
        timed |= !key.sampled;
    }
    m_monitor->setActive(seen && sampled);
    if (seen && timed) {
        if (!m_minute->isActive())
            armClock();
    } else {
        m_minute->stop();
    }
}

void LiveFaceUpdater::armClock()
{
    const int intoMinute = QTime::currentTime().msecsSinceStartOfDay() % MsPerMinute;
    m_minute->start(MsPerMinute - intoMinute + MinuteSlackMs);
}
