#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSet>

class Hid_Comm;
class KeyItem;
class KeyItemModel;
class KeypadDimmer;
class QTimer;
class SysMonitor;

// Keeps the live key faces of the current page up to date, on the keypad
// and in the editor, at almost no cost:
// - the sampler runs only while the current page has a key showing a
//   sampled figure and someone can see it: the keypad is connected and lit,
//   or the editor window is shown;
// - clock and date keys are redrawn once a minute, on the minute;
// - after each sample or minute only the keys whose face changed are sent,
//   each as one key's image, never the whole page; while the keypad is
//   dimmed, dark or away, or the computer asleep, nothing is sent, and what
//   changed meanwhile is sent when it lights up again.
// faceChanged tells the editor's grid which keys to redraw.
//
// Lives on the GUI thread. The model's notices (connected queued, since the
// key action thread edits the model too) tell it when the page changed; a
// page, a layout or an edit is sent by the ordinary full or single-key
// update, which draws the same live faces.
class LiveFaceUpdater : public QObject
{
    Q_OBJECT

public:
    // hid and dimmer may be null (no keypad; never dimmed).
    LiveFaceUpdater(KeyItemModel* model, Hid_Comm* hid, SysMonitor* monitor, KeypadDimmer* dimmer = nullptr,
                    QObject* parent = nullptr);
    ~LiveFaceUpdater() override;

    bool isClockRunning() const;
    // Live keys on the current page, all kinds.
    int liveKeyCount() const { return m_live.size(); }

public slots:
    void setEditorVisible(bool visible);
    // A held key keeps its pressed look while its figure changes.
    void setPressedLook(int keyIdx, bool pressed);
    // The computer going to sleep and back: nothing is sampled or sent
    // meanwhile.
    void setSystemAsleep(bool asleep);
    // Looks at the current page again: which keys are live, whether the
    // sampler and the clock must run. The model's notices call it with the
    // item that changed, null for the whole page; the faces the ordinary
    // updates have just sent count as sent.
    void rescan(const KeyItem* changed = nullptr);
    // Draws the live keys, sends those that changed; the sampler and the
    // minute call it.
    void refresh();

signals:
    void faceChanged(const KeyItem* item);

private:
    struct LiveKey
    {
        int keyIdx = -1;
        bool sampled = false;
    };

    bool keypadLit() const;
    void onKeypadStatus(bool connected);
    void updateDemand();
    void armClock();
    void sendPending();

    KeyItemModel* m_model;
    QPointer<Hid_Comm> m_hid;
    SysMonitor* m_monitor;
    QPointer<KeypadDimmer> m_dimmer;
    QTimer* m_minute = nullptr;
    bool m_editorVisible = false;
    bool m_keypadOpen = false;
    bool m_asleep = false;

    QList<LiveKey> m_live;
    // By key index: the face last drawn, and the keys the keypad still has
    // to be sent.
    QHash<int, QImage> m_drawn;
    QSet<int> m_pending;
    QSet<int> m_pressed;
};
