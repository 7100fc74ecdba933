#include "keyitemsummary.h"

#include "actionlist.h"
#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "keychord.h"
#include "keyitem.h"

#include <algorithm>

namespace {

// Long texts and paths are cut for a tool tip; the form shows them whole.
constexpr int MaxDetailLength = 80;

QString shortened(QString text)
{
    text = text.simplified();
    if (text.size() > MaxDetailLength)
        text = text.left(MaxDetailLength - 1) + QChar(0x2026);
    return text;
}

} // namespace

QString KeyItemSummary::title(const KeyItem* item)
{
    return item ? item->currentRender().text.simplified() : QString();
}

QString KeyItemSummary::detail(const KeyItem* item)
{
    const KeyActionAbstr* action = item->currentAction();
    if (!action)
        return QString();
    if (const auto* hotKey = qobject_cast<const KA_HotKey*>(action))
        return KeyChord::fromHotKey(*hotKey).text();
    if (const auto* execute = qobject_cast<const KA_Execute*>(action))
        return shortened(execute->path);
    if (const auto* text = qobject_cast<const KA_PastString*>(action))
        return text->strText.isEmpty() ? QString() : QStringLiteral("\u201c%1\u201d").arg(shortened(text->strText));
    if (const auto* macro = qobject_cast<const KA_MarcoKey*>(action)) {
        const int steps = macro->marcoKeyItemList.size();
        return steps ? tr("%n step(s)", nullptr, steps) : QString();
    }
    if (const auto* folder = qobject_cast<const KA_Folder*>(action)) {
        const int keys =
            int(std::count_if(folder->childList.cbegin(), folder->childList.cend(), [](const KeyItem* child) {
                return child && child->actionType != KAT_LINK_BUTTON && child->actionType != KAT_NUM;
            }));
        return tr("%n key(s)", nullptr, keys);
    }
    return QString();
}

QString KeyItemSummary::action(const KeyItem* item)
{
    if (!item)
        return QString();
    const QString type = ActionList::actionName(item->actionType);
    const QString what = item->isValid() ? detail(item) : QString();
    return what.isEmpty() ? type : tr("%1: %2").arg(type, what);
}

QString KeyItemSummary::toolTip(const KeyItem* item)
{
    const QString name = title(item);
    return name.isEmpty() ? action(item) : name + QLatin1Char('\n') + action(item);
}

QString KeyItemSummary::accessibleName(const KeyItem* item)
{
    const QString name = title(item);
    const QString type = item ? ActionList::actionName(item->actionType) : QString();
    return name.isEmpty() ? type : tr("%1, %2").arg(name, type);
}
