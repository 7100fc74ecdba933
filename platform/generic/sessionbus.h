#pragma once

#include <QDBusConnection>

// The user's session bus when the desktop has one, else a connection that is
// not connected. Without an address libdbus would launch a session bus of
// its own, which nobody else would be on.
QDBusConnection sessionBusIfAny();
