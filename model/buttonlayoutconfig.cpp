#include "buttonlayoutconfig.h"

#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"

namespace {

struct LayoutInfo
{
    const char* name;
    int keys;
    QSize panel;
    QSize icon;
};

const LayoutInfo Layouts[] = {
    {"H_Key_6", 6, QSize(316, 523), QSize(72, 72)},   {"V_Key_6", 6, QSize(316, 523), QSize(72, 72)},
    {"H_Key_15", 15, QSize(466, 523), QSize(72, 72)}, {"V_Key_15", 15, QSize(466, 523), QSize(72, 72)},
    {"H_Key_32", 32, QSize(508, 523), QSize(48, 48)}, {"V_Key_32", 32, QSize(508, 523), QSize(48, 48)},
};

} // namespace

ButtonLayoutConfig::ButtonLayoutConfig(QObject* parent) : QObject(parent) {}

bool ButtonLayoutConfig::isValidLayout(int layout)
{
    return layout >= 0 && layout < int(std::size(Layouts));
}

int ButtonLayoutConfig::currentLayout() const
{
    return m_layout;
}

int ButtonLayoutConfig::keyCount() const
{
    return keyCount(m_layout);
}

QSize ButtonLayoutConfig::iconSize() const
{
    return iconSize(m_layout);
}

int ButtonLayoutConfig::keyCount(int layout)
{
    return isValidLayout(layout) ? Layouts[layout].keys : 0;
}

QSize ButtonLayoutConfig::iconSize(int layout)
{
    return isValidLayout(layout) ? Layouts[layout].icon : QSize();
}

QSize ButtonLayoutConfig::panelSize(int layout)
{
    return isValidLayout(layout) ? Layouts[layout].panel : QSize();
}

QString ButtonLayoutConfig::layoutName(int layout)
{
    return isValidLayout(layout) ? QLatin1String(Layouts[layout].name) : QString();
}

int ButtonLayoutConfig::currentLayoutOf(int fallback)
{
    const auto* config = qobject_cast<ButtonLayoutConfig*>(ObjectRegistry::find(ComponentId::ButtonLayoutConfig));
    const int layout = config ? config->currentLayout() : -1;
    return isValidLayout(layout) ? layout : fallback;
}

bool ButtonLayoutConfig::changeLayout(int layout)
{
    if (!isValidLayout(layout)) {
        LOG_MSG(QStringLiteral("ERROR: Invalid layout."));
        return false;
    }
    m_layout = layout;
    emit buttonLayoutChanged(KeyLayout(layout));
    return true;
}

void ButtonLayoutConfig::reloadLayout()
{
    int layout = DefaultLayout;
    if (auto* settings = COMPONENT(Settings, ComponentId::Settings))
        layout = settings->value(SettingsKeys::LastKbLayout, DefaultLayout).toInt();
    changeLayout(layout);
}
