#include "controlservice.h"

#include "controladaptor.h"
#include "controlinterface.h"
#include "logging.h"

#include <QDBusConnectionInterface>

ControlService::ControlService(AgentCore* core, const QDBusConnection& bus, QObject* parent)
    : QObject(parent), m_bus(bus), m_adaptor(new ControlAdaptor(core, bus, this))
{
    if (!logMsgWhenRetFail(m_bus.isConnected(), QStringLiteral("no session bus, no control interface!!")))
        return;
    if (!logMsgWhenRetFail(m_bus.registerObject(ControlInterface::path(), this),
                           QStringLiteral("control object not registered!!")))
        return;
    if (!m_bus.registerService(ControlInterface::service())) {
        LOG_MSG(QStringLiteral("ERROR: %1 is taken on the session bus: %2!!")
                    .arg(ControlInterface::service(), m_bus.lastError().message()));
        m_bus.unregisterObject(ControlInterface::path());
        return;
    }
    m_published = true;
    LOG_MSG(QStringLiteral("control interface on the session bus as %1").arg(ControlInterface::service()));
}

ControlService::~ControlService()
{
    if (!m_published)
        return;
    m_bus.unregisterService(ControlInterface::service());
    m_bus.unregisterObject(ControlInterface::path());
}

bool ControlService::isPublished() const
{
    return m_published;
}

ControlAdaptor* ControlService::adaptor() const
{
    return m_adaptor;
}
