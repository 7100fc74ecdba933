#include "macrostepmodel.h"

#include "keymapping.h"
#include "stepbuilder.h"

MacroStepModel::MacroStepModel(QObject* parent) : QAbstractTableModel(parent) {}

void MacroStepModel::setSteps(const QList<MarcoKeyItem>& steps)
{
    KeyMapping::reloadLayout();
    beginResetModel();
    m_steps = steps;
    endResetModel();
}

QList<MarcoKeyItem> MacroStepModel::steps() const
{
    return m_steps;
}

void MacroStepModel::insertSteps(int row, const QList<MarcoKeyItem>& steps)
{
    if (steps.isEmpty())
        return;
    row = qBound(0, row, m_steps.size());
    beginInsertRows(QModelIndex(), row, row + steps.size() - 1);
    for (int i = 0; i < steps.size(); ++i)
        m_steps.insert(row + i, steps.at(i));
    endInsertRows();
}

void MacroStepModel::appendStep(const MarcoKeyItem& step)
{
    insertSteps(m_steps.size(), {step});
}

bool MacroStepModel::moveStep(int row, int delta)
{
    const int target = row + delta;
    if (delta == 0 || row < 0 || row >= m_steps.size() || target < 0 || target >= m_steps.size())
        return false;
    // Qt counts the destination before the move: one further when moving down.
    if (!beginMoveRows(QModelIndex(), row, row, QModelIndex(), delta > 0 ? target + 1 : target))
        return false;
    m_steps.move(row, target);
    endMoveRows();
    return true;
}

void MacroStepModel::clear()
{
    if (m_steps.isEmpty())
        return;
    beginResetModel();
    m_steps.clear();
    endResetModel();
}

QList<int> MacroStepModel::heldKeys() const
{
    QList<int> held;
    for (const MarcoKeyItem& step : m_steps) {
        if (step.isPress && !held.contains(step.nativeKeyCode))
            held << step.nativeKeyCode;
        else if (!step.isPress)
            held.removeOne(step.nativeKeyCode);
    }
    return held;
}

void MacroStepModel::releaseHeldKeys()
{
    const QList<int> held = heldKeys();
    QList<MarcoKeyItem> releases;
    for (int i = held.size() - 1; i >= 0; --i) {
        // The Qt key as the press recorded it, so the release reads the same.
        MarcoKeyItem release = StepBuilder::step(held.at(i), false);
        for (const MarcoKeyItem& step : qAsConst(m_steps)) {
            if (step.isPress && step.nativeKeyCode == held.at(i))
                release.qtKeyCode = step.qtKeyCode;
        }
        releases << release;
    }
    insertSteps(m_steps.size(), releases);
}

int MacroStepModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_steps.size();
}

int MacroStepModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MacroStepModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_steps.size())
        return QVariant();
    const MarcoKeyItem& step = m_steps.at(index.row());
    const QString key = KeyMapping::keyName(step.nativeKeyCode, step.qtKeyCode);
    //: A macro step presses (Down) or releases (Up) a key; read aloud after the key name.
    const QString direction = step.isPress ? tr("Down") : tr("Up");
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == KeyColumn ? key : direction;
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        //: A macro step, as a screen reader reads it: "3: Shift down".
        return tr("%1: %2 %3").arg(index.row() + 1).arg(key, direction.toLower());
    default:
        return QVariant();
    }
}

QVariant MacroStepModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section + 1;
    //: Column header: the keyboard key a macro step presses or releases.
    return section == KeyColumn ? tr("Key") : tr("Press or release");
}

bool MacroStepModel::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || count <= 0 || row < 0 || row + count > m_steps.size())
        return false;
    beginRemoveRows(QModelIndex(), row, row + count - 1);
    for (int i = 0; i < count; ++i)
        m_steps.removeAt(row);
    endRemoveRows();
    return true;
}
