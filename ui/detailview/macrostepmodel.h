#pragma once

#include "marcokeyitem.h"

#include <QAbstractTableModel>
#include <QList>

// The steps of a macro as a table: the key's name and whether it goes down
// or up. Edits keep the order of steps as the macro plays them.
class MacroStepModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        KeyColumn,
        DirectionColumn,
        ColumnCount
    };

    explicit MacroStepModel(QObject* parent = nullptr);

    void setSteps(const QList<MarcoKeyItem>& steps);
    QList<MarcoKeyItem> steps() const;

    void insertSteps(int row, const QList<MarcoKeyItem>& steps);
    void appendStep(const MarcoKeyItem& step);
    // Moves one step by delta rows; false when it would leave the list.
    bool moveStep(int row, int delta);
    void clear();

    // The virtual keys the macro leaves held down (pressed without a later
    // release), in the order they were pressed.
    QList<int> heldKeys() const;
    // Appends the missing releases, the last pressed key first.
    void releaseHeldKeys();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

private:
    QList<MarcoKeyItem> m_steps;
};
