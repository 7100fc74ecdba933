#include "applicationentry.h"

QIcon ApplicationEntry::icon() const
{
    if (!iconPath.isEmpty()) {
        const QIcon fromFile(iconPath);
        if (!fromFile.availableSizes().isEmpty() || !fromFile.pixmap(32).isNull())
            return fromFile;
    }
    const QIcon generic = QIcon::fromTheme(QStringLiteral("application-x-executable"));
    return iconName.isEmpty() ? generic : QIcon::fromTheme(iconName, generic);
}
