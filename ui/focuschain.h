#pragma once

#include <QPointer>
#include <QVector>

class QWidget;

// Tab order by regions: Tab goes through the controls of the region that has
// the focus, in the window's own focus order, and then on to the first
// control of the next region that has one (Shift+Tab backwards), round the
// end. Controls made later, such as a new property form, take their place in
// their region whatever the order they were made in.
class FocusChain
{
public:
    void setRegions(const QVector<QWidget*>& regions);

    // Moves the focus one control on; false when no region has a control.
    bool move(bool next) const;

    // The controls in a region that Tab stops at (the region itself first,
    // if it takes the focus): visible, enabled, with Tab focus.
    static QVector<QWidget*> controls(QWidget* region);

private:
    int regionOf(const QWidget* widget) const;

    QVector<QPointer<QWidget>> m_regions;
};
