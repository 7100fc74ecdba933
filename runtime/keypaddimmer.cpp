#include "keypaddimmer.h"

#include "logging.h"

#include <QTimer>

#include <limits>

KeypadDimmer::KeypadDimmer(QObject* parent) : KeypadDimmer(Clock(), MsPerMinute, parent) {}

KeypadDimmer::KeypadDimmer(Clock clock, int msPerMinute, QObject* parent)
    : QObject(parent), m_clock(std::move(clock)), m_msPerMinute(qMax(1, msPerMinute))
{
    m_elapsed.start();
    if (!m_clock)
        m_clock = [this] { return m_elapsed.elapsed(); };
    m_lastActivity = m_clock();
    m_idleTimer = new QTimer(this);
    m_idleTimer->setSingleShot(true);
    connect(m_idleTimer, &QTimer::timeout, this, &KeypadDimmer::checkIdle);
}

KeypadDimmer::~KeypadDimmer() = default;

DimmingSettings KeypadDimmer::settings() const
{
    QMutexLocker locker(&m_mutex);
    return m_settings;
}

int KeypadDimmer::level() const
{
    QMutexLocker locker(&m_mutex);
    return levelLocked();
}

int KeypadDimmer::levelLocked() const
{
    if (m_locked && m_settings.offWhileLocked)
        return 0;
    if (m_dimmed)
        return qMin(m_settings.dimLevel, m_settings.brightness);
    return m_settings.brightness;
}

bool KeypadDimmer::isDimmed() const
{
    QMutexLocker locker(&m_mutex);
    return m_dimmed;
}

bool KeypadDimmer::isLocked() const
{
    QMutexLocker locker(&m_mutex);
    return m_locked;
}

bool KeypadDimmer::isIdleTimerActive() const
{
    return m_idleTimer->isActive();
}

// ---- key events, on the key action thread ----

bool KeypadDimmer::takeKeyPress(int devKeyId)
{
    bool woke = false;
    {
        QMutexLocker locker(&m_mutex);
        m_lastActivity = m_clock();
        m_takenKey = -1;
        // A dark keypad for a locked screen: nothing shows what a key
        // would do, and nothing should happen behind the lock.
        if (m_locked && m_settings.offWhileLocked) {
            m_takenKey = devKeyId;
            return true;
        }
        if (!m_dimmed)
            return false;
        m_dimmed = false;
        m_takenKey = devKeyId;
        woke = true;
    }
    if (woke)
        QMetaObject::invokeMethod(this, &KeypadDimmer::onWoken, Qt::QueuedConnection);
    return true;
}

bool KeypadDimmer::takeKeyRelease(int devKeyId)
{
    QMutexLocker locker(&m_mutex);
    if (m_takenKey < 0 || m_takenKey != devKeyId)
        return false;
    m_takenKey = -1;
    return true;
}

// ---- state changes, on the GUI thread ----

void KeypadDimmer::onWoken()
{
    LOG_MSG(QStringLiteral("keypad woken by a key press"));
    apply(false);
    armIdleTimer();
}

void KeypadDimmer::setSettings(const DimmingSettings& settings)
{
    {
        QMutexLocker locker(&m_mutex);
        m_settings = settings.bounded();
        m_dimmed = false;
        m_lastActivity = m_clock();
    }
    apply(false);
    armIdleTimer();
}

void KeypadDimmer::noteBrightness(int level)
{
    {
        QMutexLocker locker(&m_mutex);
        m_settings.brightness = qBound(0, level, int(DimmingSettings::MaxLevel));
        m_dimmed = false;
        m_lastActivity = m_clock();
        // The slider has sent it; sending it again would only slow the keypad.
        m_lastSent = levelLocked();
    }
    armIdleTimer();
}

void KeypadDimmer::setLocked(bool locked)
{
    {
        QMutexLocker locker(&m_mutex);
        if (m_locked == locked)
            return;
        m_locked = locked;
        // Back at the desk: the keypad comes back at full brightness.
        if (!locked) {
            m_dimmed = false;
            m_lastActivity = m_clock();
        }
    }
    apply(false);
    armIdleTimer();
}

void KeypadDimmer::reapply()
{
    apply(true);
}

void KeypadDimmer::checkIdle()
{
    bool dimNow = false;
    {
        QMutexLocker locker(&m_mutex);
        const qint64 dimAfter = qint64(m_settings.dimAfterMinutes) * m_msPerMinute;
        if (dimAfter <= 0 || m_dimmed)
            return;
        if (m_clock() - m_lastActivity >= dimAfter)
            m_dimmed = dimNow = true;
    }
    if (dimNow) {
        LOG_MSG(QStringLiteral("keypad idle: dimmed"));
        apply(false);
    }
    armIdleTimer();
}

// The timer runs to the moment the keypad would dim if no key came; a press
// meanwhile only moves that moment, which checkIdle finds out.
void KeypadDimmer::armIdleTimer()
{
    qint64 remaining = -1;
    {
        QMutexLocker locker(&m_mutex);
        const qint64 dimAfter = qint64(m_settings.dimAfterMinutes) * m_msPerMinute;
        if (dimAfter > 0 && !m_dimmed)
            remaining = qMax<qint64>(0, dimAfter - (m_clock() - m_lastActivity));
    }
    if (remaining < 0)
        m_idleTimer->stop();
    else
        m_idleTimer->start(int(qMin<qint64>(remaining, std::numeric_limits<int>::max())));
}

void KeypadDimmer::apply(bool always)
{
    const int now = level();
    if (!always && now == m_lastSent)
        return;
    m_lastSent = now;
    emit backlightChanged(now);
}
