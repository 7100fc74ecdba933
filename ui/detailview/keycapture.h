#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QWidget;

// While active, every key that reaches the target widget goes to the owner's
// handlers with the keyboard grabbed, so the window's shortcuts and, under
// X11, the desktop's (Alt+Tab, Super, Print) are recorded instead of acted
// on. Losing the focus or hiding ends the capture through the interrupt
// handler, so a recorder never keeps the keyboard it can no longer show.
class KeyCapture : public QObject
{
public:
    using KeyHandler = std::function<void(const QKeyEvent&)>;

    KeyCapture(QWidget* target, KeyHandler onPress, KeyHandler onRelease, std::function<void()> onInterrupted);

    void start();
    void stop();
    bool isActive() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_target;
    KeyHandler m_onPress;
    KeyHandler m_onRelease;
    std::function<void()> m_onInterrupted;
    bool m_active = false;
};
