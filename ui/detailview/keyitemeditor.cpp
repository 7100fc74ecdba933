#include "keyitemeditor.h"

#include "facehints.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keychord.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "titlestyle.h"

namespace {

template <class Action>
Action* actionOf(KeyItem* item, int slot = 0)
{
    return static_cast<Action*>(item->action[slot]);
}

// Assigns and tells whether the value differed.
template <class T>
bool assign(T& field, const T& value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

bool sameChord(const KA_HotKey& hotKey, const KeyChord& chord)
{
    const KeyChord now = KeyChord::fromHotKey(hotKey);
    return now.keyCmd == chord.keyCmd && now.keyOption == chord.keyOption && now.keyCtrl == chord.keyCtrl &&
           now.keyShift == chord.keyShift && now.qtKeyCode == chord.qtKeyCode && now.nativeCode == chord.nativeCode;
}

} // namespace

KeyItemEditor::KeyItemEditor(KeyItemModel* model, int keyIdx, QObject* parent)
    : QObject(parent), m_model(model), m_keyIdx(keyIdx), m_item(model ? model->keyItemAt(keyIdx) : nullptr)
{
}

KeyItemModel* KeyItemEditor::model() const
{
    return m_model;
}

int KeyItemEditor::keyIdx() const
{
    return m_keyIdx;
}

KeyItem* KeyItemEditor::item() const
{
    return m_item && m_model && m_model->keyItemAt(m_keyIdx) == m_item ? m_item : nullptr;
}

KeyActionType KeyItemEditor::actionType() const
{
    const KeyItem* current = item();
    return current ? current->actionType : KAT_INVALID;
}

bool KeyItemEditor::isSlot(int slot)
{
    return slot >= 0 && slot < KeyItem::SlotCount;
}

bool KeyItemEditor::edit(const char* what, bool typeFits, const std::function<bool(KeyItem*)>& change)
{
    if (!logMsgWhenRetFail(m_model != nullptr, QStringLiteral("Err: no key model!!")))
        return false;
    m_model->beginUpdate(m_item);
    // Checked inside the bracket: the keypad may open a page meanwhile.
    KeyItem* current = item();
    bool changed = false;
    if (!current)
        LOG_MSG(QStringLiteral("ERROR: key %1 went away, %2 dropped!!").arg(m_keyIdx).arg(QLatin1String(what)));
    else if (!typeFits)
        LOG_MSG(QStringLiteral("ERROR: %1 does not fit a %2 key!!")
                    .arg(QLatin1String(what), keyActionTypeToString(current->actionType)));
    else
        changed = change(current);
    m_model->endUpdate(changed, current);
    return changed;
}

bool KeyItemEditor::setTitle(int slot, const QString& text)
{
    const KeyActionType type = actionType();
    return edit("title", isSlot(slot) && type != KAT_LINK_BUTTON, [slot, &text](KeyItem* item) {
        if (item->render[slot].text == text && item->render[KeyItem::SlotCount - 1 - slot].text == text)
            return false;
        const QString before[] = {item->render[0].text, item->render[1].text};
        item->setTitle(slot, text);
        return item->render[0].text != before[0] || item->render[1].text != before[1];
    });
}

bool KeyItemEditor::setChord(int slot, const KeyChord& chord)
{
    return edit("chord", isSlot(slot) && actionType() == KAT_HOTKEY, [slot, &chord](KeyItem* item) {
        auto* hotKey = actionOf<KA_HotKey>(item, slot);
        if (sameChord(*hotKey, chord))
            return false;
        chord.applyTo(hotKey);
        return true;
    });
}

bool KeyItemEditor::setMultiFeature(bool on)
{
    return edit("toggle", actionType() == KAT_HOTKEY, [on](KeyItem* item) {
        if (!assign(item->multiFeatureFlag, on))
            return false;
        if (!on)
            item->cfIdx = 0;
        return true;
    });
}

bool KeyItemEditor::setMacroSteps(const QList<MarcoKeyItem>& steps)
{
    return edit("macro steps", actionType() == KAT_MACROKEY,
                [&steps](KeyItem* item) { return assign(actionOf<KA_MarcoKey>(item)->marcoKeyItemList, steps); });
}

bool KeyItemEditor::setPath(const QString& path)
{
    const KeyActionType type = actionType();
    return edit("path", type == KAT_EXE_APP_FILE || type == KAT_OPEN_WEBSITE, [&path](KeyItem* item) {
        // Both slots, as copying and the stored form treat them alike.
        bool changed = false;
        for (int slot = 0; slot < KeyItem::SlotCount; ++slot)
            changed |= assign(actionOf<KA_Execute>(item, slot)->path, path);
        return changed;
    });
}

bool KeyItemEditor::setText(const QString& text)
{
    return edit("text", actionType() == KAT_PASTE_STRING, [&text](KeyItem* item) {
        bool changed = false;
        for (int slot = 0; slot < KeyItem::SlotCount; ++slot)
            changed |= assign(actionOf<KA_PastString>(item, slot)->strText, text);
        return changed;
    });
}

bool KeyItemEditor::setFolderApplication(const QString& path)
{
    return edit("folder application", actionType() == KAT_FOLDER,
                [&path](KeyItem* item) { return assign(actionOf<KA_Folder>(item)->appName, path); });
}

bool KeyItemEditor::editFace(const char* what, int slot, bool valid, const std::function<bool(KeyRenderInfo&)>& change)
{
    const KeyActionType type = actionType();
    return edit(what, valid && isSlot(slot) && type != KAT_LINK_BUTTON, [slot, &change](KeyItem* item) {
        if (item->actionType == KAT_HOTKEY)
            return change(item->render[slot]);
        bool changed = false;
        for (KeyRenderInfo& face : item->render)
            changed |= change(face);
        return changed;
    });
}

bool KeyItemEditor::setTitleStyle(int slot, const TitleStyle& style)
{
    return editFace("title style", slot, true, [&style](KeyRenderInfo& face) {
        if (style.isIn(face))
            return false;
        style.applyTo(face);
        return true;
    });
}

bool KeyItemEditor::setIcon(int slot, const QImage& image)
{
    // One pixmap for both slots: the settings store writes it once.
    const QPixmap icon = QPixmap::fromImage(image);
    return editFace("icon", slot, !image.isNull(), [&icon, &image](KeyRenderInfo& face) {
        if (!face.userImg.isNull() && face.userImg.toImage() == image)
            return false;
        face.userImg = icon;
        return true;
    });
}

bool KeyItemEditor::setLiveContent(int slot, int liveKind, bool graph)
{
    const bool known = liveKind >= 0 && liveKind < FaceHints::LiveKindCount;
    const auto kind = FaceHints::LiveKind(known ? liveKind : 0);
    const bool withGraph = graph && FaceHints::canShowGraph(kind);
    return editFace("live content", slot, known, [kind, withGraph](KeyRenderInfo& face) {
        const int flags = FaceHints::withGraph(FaceHints::withLiveKind(face.hintFlags, kind), withGraph);
        if (flags == face.hintFlags)
            return false;
        face.hintFlags = flags;
        return true;
    });
}

bool KeyItemEditor::clearIcon(int slot)
{
    return editFace("icon", slot, true, [](KeyRenderInfo& face) {
        if (face.userImg.isNull())
            return false;
        face.userImg = QPixmap();
        return true;
    });
}
