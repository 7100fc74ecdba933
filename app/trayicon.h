#pragma once

#include "keypadstatus.h"

#include <QIcon>
#include <QObject>

class QAction;
class QMenu;
class QSystemTrayIcon;

// The notification-area icon with the program's menu. Its picture and tool
// tip tell the keypad's state. Where the desktop has no tray host, nothing is
// shown and the main window never hides itself.
class TrayIcon : public QObject
{
    Q_OBJECT
public:
    explicit TrayIcon(QObject* parent = nullptr);
    ~TrayIcon() override;

    // Whether a tray host exists right now (it may appear after we start).
    static bool isTrayAvailable();

    void setVisible(bool visible);
    QMenu* menu() const;
    QAction* showAction() const;
    QAction* virtualKeypadAction() const;
    QAction* settingsAction() const;
    QAction* quitAction() const;
    QIcon icon() const;
    QString toolTip() const;

    // The picture for each keypad state.
    static QString iconPath(KeypadStatus::State state);

signals:
    void showRequested();
    void toggleRequested();
    void aboutRequested();
    void settingsRequested();
    void quitRequested();
    void virtualKeypadToggled(bool on);

public slots:
    // Shows the state without asking for it again.
    void setVirtualKeypadChecked(bool on);
    // text: what the status line says about the keypad.
    void showKeypadState(KeypadStatus::State state, const QString& text);

private:
    QSystemTrayIcon* m_icon = nullptr;
    QMenu* m_menu = nullptr;
    QAction* m_show = nullptr;
    QAction* m_virtualKeypad = nullptr;
    QAction* m_about = nullptr;
    QAction* m_settings = nullptr;
    QAction* m_quit = nullptr;
};
