#pragma once

#include <QDBusConnection>
#include <QObject>

class AgentCore;
class ControlAdaptor;

// Puts the control interface on a bus: the program's application id as the
// service name, ControlAdaptor at its path. The session bus only: it belongs
// to the user, so no other user can reach the keypad through it. Taken off
// the bus again when destroyed.
class ControlService : public QObject
{
    Q_OBJECT

public:
    ControlService(AgentCore* core, const QDBusConnection& bus, QObject* parent = nullptr);
    ~ControlService() override;

    // Whether the service name and the object are both on the bus.
    bool isPublished() const;
    ControlAdaptor* adaptor() const;

private:
    QDBusConnection m_bus;
    ControlAdaptor* m_adaptor = nullptr;
    bool m_published = false;
};
