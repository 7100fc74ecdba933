// Placeholder until the real widget lands.
#include "applicationentry.h"

QIcon ApplicationEntry::icon() const
{
    if (!iconPath.isEmpty())
        return QIcon(iconPath);
    return QIcon::fromTheme(iconName);
}
