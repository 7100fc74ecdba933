#include "macroeditor.h"

#include "addtextdialog.h"
#include "insertkeydialog.h"
#include "keycapture.h"
#include "keymapping.h"
#include "macrostepmodel.h"
#include "stepbuilder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr Qt::KeyboardModifiers ChordModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier;

} // namespace

MacroEditor::MacroEditor(QWidget* parent)
    : QWidget(parent), m_model(new MacroStepModel(this)), m_view(new QTableView(this)), m_status(new QLabel(this)),
      m_warning(new QFrame(this)), m_warningText(new QLabel(m_warning))
{
    m_recordButton = addButton(tr("Record"), &MacroEditor::startRecording);
    m_stopButton = addButton(tr("Stop"), &MacroEditor::stopRecording);
    m_capture = new KeyCapture(
        m_stopButton, [this](const QKeyEvent& event) { onKeyPress(event); },
        [this](const QKeyEvent& event) { onKeyRelease(event); }, [this] { stopRecording(); });
    m_status->setWordWrap(true);

    auto* stepsLabel = new QLabel(tr("&Steps:"), this);
    stepsLabel->setBuddy(m_view);
    m_view->setModel(m_model);
    m_view->setAccessibleName(tr("Steps:"));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setTabKeyNavigation(false);
    m_view->horizontalHeader()->setSectionResizeMode(MacroStepModel::KeyColumn, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(MacroStepModel::DirectionColumn, QHeaderView::ResizeToContents);
    m_view->verticalHeader()->hide();
    m_view->setMinimumHeight(120);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MacroEditor::updateControls);

    QPushButton* insert = addButton(tr("Insert key…"), &MacroEditor::insertKey);
    QPushButton* text = addButton(tr("Add text…"), &MacroEditor::addText);
    m_deleteButton = addButton(tr("Delete"), &MacroEditor::deleteSteps);
    m_upButton = addButton(tr("Move up"), &MacroEditor::moveUp);
    m_downButton = addButton(tr("Move down"), &MacroEditor::moveDown);
    //: Removes every step of the macro.
    m_clearButton = addButton(tr("Clear"), &MacroEditor::clearSteps);

    auto* fix = new QPushButton(tr("Add the missing releases"), m_warning);
    fix->setAccessibleName(fix->text());
    connect(fix, &QPushButton::clicked, this, &MacroEditor::releaseHeldKeys);
    m_warningText->setWordWrap(true);
    m_warning->setFrameShape(QFrame::StyledPanel);
    // Stacked, so the warning fits the editor's narrow column.
    auto* warningLayout = new QVBoxLayout(m_warning);
    warningLayout->addWidget(m_warningText);
    warningLayout->addWidget(fix, 0, Qt::AlignLeft);

    auto* recordRow = new QHBoxLayout;
    recordRow->addWidget(m_recordButton);
    recordRow->addWidget(m_stopButton);
    recordRow->addWidget(m_status, 1);
    // Three rows of two: wider rows do not fit the editor's column in every
    // language.
    auto* editRow = new QGridLayout;
    int index = 0;
    for (QPushButton* button : {insert, text, m_clearButton, m_deleteButton, m_upButton, m_downButton}) {
        editRow->addWidget(button, index / 2, index % 2);
        ++index;
    }
    setTabOrder(text, m_clearButton);
    setTabOrder(m_clearButton, m_deleteButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(recordRow);
    layout->addWidget(stepsLabel);
    layout->addWidget(m_view, 1);
    layout->addLayout(editRow);
    layout->addWidget(m_warning);

    connect(m_model, &MacroStepModel::rowsInserted, this, &MacroEditor::updateControls);
    connect(m_model, &MacroStepModel::rowsRemoved, this, &MacroEditor::updateControls);
    connect(m_model, &MacroStepModel::rowsMoved, this, &MacroEditor::updateControls);
    connect(m_model, &MacroStepModel::modelReset, this, &MacroEditor::updateControls);
    updateControls();
}

QPushButton* MacroEditor::addButton(const QString& text, void (MacroEditor::*slot)())
{
    auto* button = new QPushButton(text, this);
    button->setAccessibleName(text);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void MacroEditor::setSteps(const QList<MarcoKeyItem>& steps)
{
    if (m_recording)
        stopRecording();
    m_model->setSteps(steps);
}

QList<MarcoKeyItem> MacroEditor::steps() const
{
    return m_model->steps();
}

bool MacroEditor::isRecording() const
{
    return m_recording;
}

void MacroEditor::startRecording()
{
    if (m_recording)
        return;
    KeyMapping::reloadLayout();
    m_recording = true;
    m_downKeys.clear();
    m_skippedKeys = 0;
    updateControls();
    // The Stop button holds the focus and the grab: losing the focus ends
    // the recording, and a click on it still works.
    m_stopButton->setFocus(Qt::OtherFocusReason);
    m_capture->start();
}

void MacroEditor::stopRecording()
{
    if (!m_recording)
        return;
    m_recording = false;
    m_capture->stop();
    updateControls();
    m_recordButton->setFocus(Qt::OtherFocusReason);
}

void MacroEditor::onKeyPress(const QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return;
    if (event.key() == Qt::Key_Escape && (event.modifiers() & ChordModifiers) == Qt::NoModifier &&
        m_downKeys.isEmpty()) {
        stopRecording();
        return;
    }
    const int virtualKey = KeyMapping::virtualKey(event);
    if (virtualKey == 0) {
        ++m_skippedKeys;
        updateControls();
        return;
    }
    m_downKeys << virtualKey;
    m_model->appendStep({event.key(), quint16(virtualKey), true});
    m_view->scrollToBottom();
    edited();
}

// A release whose press came before the recording (the Space that pressed
// Record, a modifier already held) is not recorded.
void MacroEditor::onKeyRelease(const QKeyEvent& event)
{
    const int virtualKey = KeyMapping::virtualKey(event);
    if (event.isAutoRepeat() || !m_downKeys.removeOne(virtualKey))
        return;
    m_model->appendStep({event.key(), quint16(virtualKey), false});
    m_view->scrollToBottom();
    edited();
}

void MacroEditor::insertKey()
{
    auto* dialog = new InsertKeyDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { insertAtSelection(StepBuilder::fromChord(dialog->chord())); });
    dialog->open();
}

void MacroEditor::addText()
{
    auto* dialog = new AddTextDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { insertAtSelection(dialog->steps()); });
    dialog->open();
}

// New steps go after the selected ones, or at the end.
void MacroEditor::insertAtSelection(const QList<MarcoKeyItem>& steps)
{
    if (steps.isEmpty())
        return;
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    int row = m_model->rowCount();
    if (!rows.isEmpty()) {
        row = 0;
        for (const QModelIndex& index : rows)
            row = qMax(row, index.row() + 1);
    }
    m_model->insertSteps(row, steps);
    m_view->selectionModel()->select(
        QItemSelection(m_model->index(row, 0), m_model->index(row + steps.size() - 1, MacroStepModel::ColumnCount - 1)),
        QItemSelectionModel::ClearAndSelect);
    m_view->setCurrentIndex(m_model->index(row, 0));
    edited();
}

void MacroEditor::deleteSteps()
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    int first = rows.first().row();
    for (const QModelIndex& index : rows)
        first = qMin(first, index.row());
    m_model->removeRows(first, rows.size());
    if (m_model->rowCount() > 0)
        m_view->selectRow(qMin(first, m_model->rowCount() - 1));
    edited();
}

void MacroEditor::moveUp()
{
    move(-1);
}

void MacroEditor::moveDown()
{
    move(1);
}

void MacroEditor::move(int delta)
{
    const int row = currentRow();
    if (!m_model->moveStep(row, delta))
        return;
    m_view->selectRow(row + delta);
    edited();
}

void MacroEditor::clearSteps()
{
    if (m_model->rowCount() == 0)
        return;
    m_model->clear();
    edited();
}

void MacroEditor::releaseHeldKeys()
{
    m_model->releaseHeldKeys();
    edited();
}

void MacroEditor::edited()
{
    updateControls();
    emit stepsChanged(m_model->steps());
}

int MacroEditor::currentRow() const
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.first().row() : -1;
}

void MacroEditor::updateControls()
{
    const int row = currentRow();
    const bool selected = !m_view->selectionModel()->selectedRows().isEmpty();
    m_recordButton->setEnabled(!m_recording);
    m_stopButton->setEnabled(m_recording);
    m_deleteButton->setEnabled(selected);
    m_upButton->setEnabled(row > 0);
    m_downButton->setEnabled(row >= 0 && row < m_model->rowCount() - 1);
    m_clearButton->setEnabled(m_model->rowCount() > 0);

    // Whole sentences for each case: languages join sentences differently.
    QString status;
    if (m_recording && m_skippedKeys > 0)
        status = tr("Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that "
                    "cannot be typed left out.",
                    nullptr, m_skippedKeys);
    else if (m_recording)
        status = tr("Recording: press the keys of the macro. Esc alone or Stop ends the recording.");
    else if (m_skippedKeys > 0)
        status = tr("%n key(s) that cannot be typed left out.", nullptr, m_skippedKeys);
    m_status->setText(status);
    m_status->setAccessibleName(status);

    const QList<int> held = m_model->heldKeys();
    m_warning->setVisible(!held.isEmpty() && !m_recording);
    QStringList names;
    for (const int key : held)
        names << KeyMapping::keyName(key);
    m_warningText->setText(tr("The macro leaves %1 held down: it stays pressed after the macro has played.")
                               .arg(names.join(QLatin1String(", "))));
}
