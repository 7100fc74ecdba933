#pragma once

#include <QImage>
#include <QPointer>
#include <QSize>
#include <QVector>
#include <QWidget>

class ButtonLayoutConfig;
class QLabel;
class QVBoxLayout;
class SimulatedKeypad;

// A simulated keypad on screen, seen as the user holding it in the current
// layout sees it: every key shows the picture the program sent to that key,
// upright, and a left click holds the key down until the button is let go.
// It only looks at and presses the keypad; which transport the program uses
// is not its business.
class VirtualKeypadWindow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int KeySpacing = 10;
    static constexpr int BodyMargin = 18;
    static constexpr int PressTravel = 2;

    // Without a layout configuration the registered one is used.
    explicit VirtualKeypadWindow(SimulatedKeypad* keypad, ButtonLayoutConfig* layouts = nullptr,
                                 QWidget* parent = nullptr);
    ~VirtualKeypadWindow() override;

    int layout() const { return m_layout; }
    int keyCount() const { return m_keys.size(); }
    QLabel* key(int button) const;
    int pressedButton() const { return m_pressedButton; }

    // Columns x rows of a layout; buttons run row by row.
    static QSize gridShape(int layout);
    // The 1-based key id whose report the program takes for this button;
    // -1 when no key the keypad can report reaches it.
    static int deviceKeyId(int layout, int button);
    // Undoes Hid_Comm::orientForLayout: what the keypad holds, as the user
    // holding it that way sees it.
    static QImage upright(const QImage& deviceImage, int layout);

public slots:
    void pressButton(int button);
    void releaseButton();

signals:
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void rebuild(int layout);
    void showKeyImage(int deviceKey);
    void showButtonImage(int button);
    void showConnection(bool pluggedIn);
    void setPressedLook(int button, bool pressed);

    QPointer<SimulatedKeypad> m_keypad;
    int m_layout = -1;
    QWidget* m_body = nullptr;
    QVBoxLayout* m_bodyLayout = nullptr;
    QWidget* m_keyArea = nullptr;
    QLabel* m_status = nullptr;
    QVector<QLabel*> m_keys;
    int m_pressedButton = -1;
    int m_pressedBit = -1;
};
