#include "buttonlayoutconfig.h"

#include "keypadtable.h"
#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"

ButtonLayoutConfig::ButtonLayoutConfig(QObject* parent) : QObject(parent) {}

bool ButtonLayoutConfig::isValidLayout(int layout)
{
    return KeypadTable::isValidLayout(layout);
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
    return KeypadTable::keyCount(layout);
}

QSize ButtonLayoutConfig::iconSize(int layout)
{
    return KeypadTable::iconSize(layout);
}

QSize ButtonLayoutConfig::panelSize(int layout)
{
    return KeypadTable::panelSize(layout);
}

QString ButtonLayoutConfig::layoutName(int layout)
{
    return KeypadTable::layoutName(layout);
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
