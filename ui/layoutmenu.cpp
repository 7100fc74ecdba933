#include "layoutmenu.h"

#include "buttonlayoutconfig.h"
#include "widgetlook.h"

#include <QActionGroup>
#include <QIcon>

namespace {

QIcon layoutIcon(int layout)
{
    return QIcon(WidgetLook::imagePath(QStringLiteral("icn_layout%1").arg(ButtonLayoutConfig::keyCount(layout))));
}

} // namespace

QString LayoutMenu::layoutText(int layout)
{
    const int keys = ButtonLayoutConfig::keyCount(layout);
    const bool vertical = layout == V_Key_6 || layout == V_Key_15 || layout == V_Key_32;
    return vertical ? tr("%1 keys, vertical").arg(keys) : tr("%1 keys, horizontal").arg(keys);
}

LayoutMenu::LayoutMenu(QWidget* parent) : QMenu(tr("Keypad layout"), parent)
{
    setObjectName(QStringLiteral("LayoutMenu"));
    m_group = new QActionGroup(this);
    m_group->setExclusive(true);
    for (int layout = H_Key_6; layout <= V_Key_32; ++layout) {
        QAction* action = addAction(layoutIcon(layout), layoutText(layout));
        action->setCheckable(true);
        action->setData(layout);
        m_group->addAction(action);
        connect(action, &QAction::triggered, this, [this, layout] { emit layoutChosen(layout); });
    }
}

void LayoutMenu::setCurrentLayout(int layout)
{
    QAction* action = layoutAction(layout);
    if (action) {
        action->setChecked(true);
        return;
    }
    if (QAction* checked = m_group->checkedAction())
        checked->setChecked(false);
}

int LayoutMenu::checkedLayout() const
{
    const QAction* checked = m_group->checkedAction();
    return checked ? checked->data().toInt() : -1;
}

QAction* LayoutMenu::layoutAction(int layout) const
{
    const QList<QAction*> actions = m_group->actions();
    return layout >= 0 && layout < actions.size() ? actions.at(layout) : nullptr;
}
