#pragma once

#include "keystageappid.h"

#include <QString>

// Where the program answers on the session bus, and the errors it gives:
// shared by the adaptor and keystagectl, so the two cannot drift apart.
#define KEYSTAGE_CONTROL_INTERFACE KEYSTAGE_APP_ID ".Control"

namespace ControlInterface {

inline QString service()
{
    return QStringLiteral(KEYSTAGE_APP_ID);
}

inline QString path()
{
    // The id with its dots as slashes.
    return QLatin1Char('/') + service().replace(QLatin1Char('.'), QLatin1Char('/'));
}

inline QString name()
{
    return QStringLiteral(KEYSTAGE_CONTROL_INTERFACE);
}

// A key index outside the layout, a brightness outside 0..100, a layout
// that does not exist.
inline QString invalidArgumentError()
{
    return QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
}

inline QString noSuchFolderError()
{
    return QStringLiteral(KEYSTAGE_APP_ID ".Error.NoSuchFolder");
}

inline QString noActionError()
{
    return QStringLiteral(KEYSTAGE_APP_ID ".Error.NoAction");
}

} // namespace ControlInterface
