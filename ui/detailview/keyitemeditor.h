#pragma once

#include "keyactiontype.h"
#include "marcokeyitem.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class KeyItem;
class KeyItemModel;
struct KeyChord;
struct KeyRenderInfo;
struct TitleStyle;

// The edits of one key's property form, without widgets. Each edit is one
// update bracket of the key model, so the grid, the outline and the keypad
// redraw at once and the model's save timer merges a burst of edits into one
// save. An edit that changes nothing ends the bracket unchanged.
//
// The editor holds on to the item it was made for: once that item is no
// longer at its key on the page shown (deleted, replaced, the page changed),
// every edit is refused and logged instead of reaching a stale item.
class KeyItemEditor : public QObject
{
    Q_OBJECT
public:
    KeyItemEditor(KeyItemModel* model, int keyIdx, QObject* parent = nullptr);

    KeyItemModel* model() const;
    int keyIdx() const;
    // Null once the item went away.
    KeyItem* item() const;
    KeyActionType actionType() const;

    // The set-title rule of KeyItem: a hotkey titles each slot on its own,
    // every other item writes both.
    bool setTitle(int slot, const QString& text);
    bool setChord(int slot, const KeyChord& chord);
    // Turning the second hotkey off shows the first again.
    bool setMultiFeature(bool on);
    bool setMacroSteps(const QList<MarcoKeyItem>& steps);
    // The launch command or the website address.
    bool setPath(const QString& path);
    bool setText(const QString& text);
    // The executable whose coming to the front opens the folder; empty: none.
    bool setFolderApplication(const QString& path);

    // The face edits keep the set-title rule: a hotkey's slots have faces of
    // their own, every other item shows the same face in both. The back key
    // has no face to edit.
    bool setTitleStyle(int slot, const TitleStyle& style);
    // A picture made by KeyIconImage (key-sized, transparent around); a null
    // image is refused.
    bool setIcon(int slot, const QImage& image);
    // Back to the type's default image.
    bool clearIcon(int slot);
    // What the face shows live (FaceHints::LiveKind; 0: a static face) and
    // whether a sampled figure has its graph. The title and icon stay.
    bool setLiveContent(int slot, int liveKind, bool graph);

private:
    // change: applies the edit to one face, returns whether it changed it.
    bool editFace(const char* what, int slot, bool valid, const std::function<bool(KeyRenderInfo&)>& change);
    // change: applies the edit to the item, returns whether anything changed.
    bool edit(const char* what, bool typeFits, const std::function<bool(KeyItem*)>& change);
    static bool isSlot(int slot);

    KeyItemModel* m_model;
    int m_keyIdx;
    KeyItem* m_item;
};
