#pragma once

#include <QObject>
#include <QThread>

#include <atomic>

class KeyEventFilter;
class KeyItem;

// Turns the keypad's key events into actions. It lives on a thread of its
// own, so a slow action (a macro, a launch) never holds up the GUI or the
// device thread; events queue up meanwhile and are handled one at a time.
class KeyAction : public QObject
{
    Q_OBJECT

public:
    explicit KeyAction(QObject* parent = nullptr);
    ~KeyAction() override;

    // The button of the current page under a device key id, -1 for none.
    static int buttonIndex(int layout, int devKeyId);
    // Sees every key event first and may take it (null: none). It must
    // outlive this object or be removed first.
    void setKeyEventFilter(KeyEventFilter* filter);

signals:
    void updateContent(const KeyItem* keyItem);
    // A button of the current page shows its pressed look (a performed press)
    // or its own face again. Emitted before the face is queued, so whoever
    // redraws the key meanwhile draws the look the keypad is about to show.
    void pressedLookChanged(int keyIdx, bool pressed);

public slots:
    void onKeyPressed(int devKeyId);
    void onKeyRleased(int devKeyId);

private:
    QThread m_thread;
    std::atomic<KeyEventFilter*> m_filter{nullptr};
};
