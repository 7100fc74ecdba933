#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <memory>

class ButtonLayoutConfig;
class Hid_Comm;
class SimulatedKeypad;
class VirtualKeypadWindow;
class QWidget;

// Runs the program against a keypad made of software and shows it: while
// active, the device thread talks to a SimulatedKeypad instead of hidapi and
// the keypad's window stands beside the main window. Closing that window
// turns it off, which puts hidapi back.
//
// A SimulatedKeypad already installed as the transport when this is made
// (the "--virtual-keypad" start) is taken over and turned on at once; its
// owner must keep it alive until the device thread has ended.
class VirtualKeypad : public QObject
{
    Q_OBJECT

public:
    VirtualKeypad(Hid_Comm* hid, ButtonLayoutConfig* layouts, QWidget* mainWindow);
    ~VirtualKeypad() override;

    bool isActive() const { return m_active; }
    SimulatedKeypad* keypad() const { return m_keypad; }
    VirtualKeypadWindow* window() const { return m_window.get(); }

    // The product id of the model that a layout belongs to (the one its
    // firmware images are named for); never the one driven through the
    // maker's library.
    static unsigned short productIdForLayout(int layout);

public slots:
    void setActive(bool active);

signals:
    void activeChanged(bool active);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onLayoutChanged(int layout);
    int currentLayout() const;
    void showWindow();
    // Stands the keypad beside the main window, on the side with room.
    void dockBesideMainWindow();

    QPointer<Hid_Comm> m_hid;
    QPointer<ButtonLayoutConfig> m_layouts;
    QPointer<QWidget> m_mainWindow;
    SimulatedKeypad* m_keypad = nullptr;
    std::unique_ptr<SimulatedKeypad> m_ownKeypad;
    std::unique_ptr<VirtualKeypadWindow> m_window;
    bool m_active = false;
    // The window follows the main window (the window manager places that
    // one after we show it) until the user moves the keypad elsewhere.
    bool m_docked = true;
    QPoint m_dockedPosition;
};
