// Placeholder until the real widget lands.
#include "macroeditor.h"

#include <QKeySequence>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

MacroEditor::MacroEditor(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_list = new QListWidget(this);
    m_list->setAccessibleName(tr("Steps"));
    layout->addWidget(m_list);
    auto* clear = new QPushButton(tr("Clear"), this);
    clear->setAccessibleName(tr("Clear"));
    layout->addWidget(clear);
    connect(clear, &QPushButton::clicked, this, [this] {
        setSteps({});
        emit stepsChanged(m_steps);
    });
}

void MacroEditor::setSteps(const QList<MarcoKeyItem>& steps)
{
    m_steps = steps;
    m_list->clear();
    for (const MarcoKeyItem& step : steps)
        m_list->addItem(QStringLiteral("%1 %2").arg(QKeySequence(step.qtKeyCode).toString(QKeySequence::NativeText),
                                                    step.isPress ? tr("down") : tr("up")));
}

QList<MarcoKeyItem> MacroEditor::steps() const
{
    return m_steps;
}
