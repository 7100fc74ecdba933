#include "formarea.h"

#include "functiondescription.h"

#include <QVBoxLayout>

FormArea::FormArea(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("FormArea"));
    setAttribute(Qt::WA_StyledBackground);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
}

void FormArea::showFunctionDescription(int actionType)
{
    if (m_description && m_shownType == actionType)
        return;
    closeFunctionDescription();
    m_description = new FunctionDescription(actionType, this);
    m_layout->addWidget(m_description);
    m_description->show();
    m_shownType = actionType;
}

int FormArea::shownActionType() const
{
    return m_shownType;
}

FunctionDescription* FormArea::functionDescription() const
{
    return m_description;
}

void FormArea::closeFunctionDescription()
{
    m_shownType = NoDescription;
    if (!m_description)
        return;
    m_layout->removeWidget(m_description);
    // Late, because the close may come from inside one of its own events.
    m_description->hide();
    m_description->deleteLater();
    m_description = nullptr;
}
