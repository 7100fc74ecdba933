#include "macroform.h"

#include "ka_marcokey.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "macroeditor.h"

#include <QVBoxLayout>

MacroForm::MacroForm(KeyItemEditor* editor, QWidget* parent) : KeyItemForm(editor, tr("Macro"), parent)
{
    m_steps = new MacroEditor(this);
    addField(tr("Steps"), m_steps);
    body()->setStretchFactor(m_steps, 1);
    connect(m_steps, &MacroEditor::stepsChanged, this,
            [this](const QList<MarcoKeyItem>& steps) { this->editor()->setMacroSteps(steps); });
}

MacroEditor* MacroForm::macroEditor() const
{
    return m_steps;
}

void MacroForm::refreshFields(const KeyItem& item)
{
    const QList<MarcoKeyItem>& steps = static_cast<const KA_MarcoKey*>(item.action[0])->marcoKeyItemList;
    if (m_steps->steps() != steps)
        m_steps->setSteps(steps);
}
