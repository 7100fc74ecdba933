#include "trayicon.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QSignalBlocker>
#include <QSystemTrayIcon>

TrayIcon::TrayIcon(QObject* parent) : QObject(parent)
{
    m_menu = new QMenu();
    m_show = m_menu->addAction(tr("Show"));
    m_virtualKeypad = m_menu->addAction(tr("Virtual Keypad"));
    m_virtualKeypad->setCheckable(true);
    m_settings = m_menu->addAction(tr("Settings…"));
    m_about = m_menu->addAction(tr("About"));
    m_menu->addSeparator();
    m_quit = m_menu->addAction(tr("Quit"));
    connect(m_show, &QAction::triggered, this, &TrayIcon::showRequested);
    connect(m_virtualKeypad, &QAction::toggled, this, &TrayIcon::virtualKeypadToggled);
    connect(m_settings, &QAction::triggered, this, &TrayIcon::settingsRequested);
    connect(m_about, &QAction::triggered, this, &TrayIcon::aboutRequested);
    connect(m_quit, &QAction::triggered, this, &TrayIcon::quitRequested);

    m_icon = new QSystemTrayIcon(this);
    showKeypadState(KeypadStatus::Absent, QString());
    m_icon->setContextMenu(m_menu);
    connect(m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit toggleRequested();
    });
}

TrayIcon::~TrayIcon()
{
    delete m_menu;
}

bool TrayIcon::isTrayAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void TrayIcon::setVisible(bool visible)
{
    m_icon->setVisible(visible);
}

QMenu* TrayIcon::menu() const
{
    return m_menu;
}

QAction* TrayIcon::showAction() const
{
    return m_show;
}

QAction* TrayIcon::virtualKeypadAction() const
{
    return m_virtualKeypad;
}

QAction* TrayIcon::settingsAction() const
{
    return m_settings;
}

void TrayIcon::setVirtualKeypadChecked(bool on)
{
    const QSignalBlocker blocker(m_virtualKeypad);
    m_virtualKeypad->setChecked(on);
}

QAction* TrayIcon::quitAction() const
{
    return m_quit;
}

QIcon TrayIcon::icon() const
{
    return m_icon->icon();
}

QString TrayIcon::toolTip() const
{
    return m_icon->toolTip();
}

QString TrayIcon::iconPath(KeypadStatus::State state)
{
    switch (state) {
    case KeypadStatus::Connected:
        return QStringLiteral(":/image/icn_tray.png");
    case KeypadStatus::NoPermission:
        return QStringLiteral(":/image/icn_tray_denied.png");
    case KeypadStatus::Absent:
        break;
    }
    return QStringLiteral(":/image/icn_tray_absent.png");
}

void TrayIcon::showKeypadState(KeypadStatus::State state, const QString& text)
{
    m_icon->setIcon(QIcon(iconPath(state)));
    const QString name = QCoreApplication::applicationName();
    m_icon->setToolTip(text.isEmpty() ? name : name + QLatin1Char('\n') + text);
}
