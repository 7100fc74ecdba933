#include "formarea.h"

#include "focuschain.h"
#include "folderform.h"
#include "functiondescription.h"
#include "hotkeyform.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "keyitemmodel.h"
#include "launchform.h"
#include "macroform.h"
#include "objectregistry.h"
#include "textstringform.h"
#include "websiteform.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

FormArea::FormArea(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("FormArea"));
    setAttribute(Qt::WA_StyledBackground);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);

    // Forms are as wide as the column and scroll when taller than the area.
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("FormScroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_layout->addWidget(m_scroll);
    m_scroll->hide();
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

KeyItemForm* FormArea::keyForm() const
{
    return m_form;
}

KeyItemModel* FormArea::model()
{
    if (!m_model) {
        m_model = COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
        // Queued: the keypad's thread changes the model too (toggling a
        // hotkey, opening a folder).
        if (m_model)
            connect(m_model, &KeyItemModel::updateContent, this, &FormArea::onModelContentChanged,
                    Qt::QueuedConnection);
    }
    return m_model;
}

KeyItemForm* FormArea::createForm(KeyItemModel* model, int keyIdx, QWidget* parent)
{
    auto* editor = new KeyItemEditor(model, keyIdx);
    KeyItemForm* form = nullptr;
    switch (editor->actionType()) {
    case KAT_FOLDER:
        form = new FolderForm(editor, parent);
        break;
    case KAT_HOTKEY:
        form = new HotkeyForm(editor, parent);
        break;
    case KAT_MACROKEY:
        form = new MacroForm(editor, parent);
        break;
    case KAT_EXE_APP_FILE:
        form = new LaunchForm(editor, parent);
        break;
    case KAT_OPEN_WEBSITE:
        form = new WebsiteForm(editor, parent);
        break;
    case KAT_PASTE_STRING:
        form = new TextStringForm(editor, parent);
        break;
    default:
        delete editor;
        return nullptr;
    }
    form->refresh();
    return form;
}

void FormArea::showKeyForm(int keyIdx)
{
    KeyItemModel* keyModel = model();
    const KeyItem* item = keyModel ? keyModel->keyItemAt(keyIdx) : nullptr;
    if (m_form && item && m_form->editor()->item() == item) {
        m_form->refresh();
        return;
    }
    closeFunctionDescription();
    m_form = item ? createForm(keyModel, keyIdx, m_scroll) : nullptr;
    if (!m_form) {
        showFunctionDescription(NoDescription);
        return;
    }
    m_scroll->setWidget(m_form);
    m_scroll->verticalScrollBar()->setValue(0);
    m_scroll->show();
}

bool FormArea::focusFirstControl()
{
    const QVector<QWidget*> controls = FocusChain::controls(m_form);
    if (controls.isEmpty())
        return false;
    controls.constFirst()->setFocus(Qt::TabFocusReason);
    m_scroll->ensureWidgetVisible(controls.constFirst());
    return true;
}

void FormArea::closeKeyForm()
{
    if (!m_form)
        return;
    m_scroll->hide();
    // Late, because the close may come from inside one of the form's events.
    KeyItemForm* form = qobject_cast<KeyItemForm*>(m_scroll->takeWidget());
    m_form = nullptr;
    if (form) {
        form->hide();
        form->deleteLater();
    }
}

void FormArea::onModelContentChanged()
{
    if (m_form && !m_form->refresh()) {
        closeKeyForm();
        showFunctionDescription(NoDescription);
    }
}

void FormArea::closeFunctionDescription()
{
    closeKeyForm();
    m_shownType = NoDescription;
    if (!m_description)
        return;
    m_layout->removeWidget(m_description);
    // Late, because the close may come from inside one of its own events.
    m_description->hide();
    m_description->deleteLater();
    m_description = nullptr;
}
