#include "focuschain.h"

#include <QApplication>
#include <QWidget>

namespace {

bool stopsTab(const QWidget* widget, const QWidget* window)
{
    // A widget with a focus proxy hands the focus on; its proxy is in the chain too.
    return (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isVisibleTo(window) &&
           widget->isEnabled() && !widget->focusProxy();
}

bool inRegion(const QWidget* widget, const QWidget* region)
{
    return widget == region || region->isAncestorOf(widget);
}

// Every widget of the region in the window's focus order, the region first.
QVector<QWidget*> chainOf(QWidget* region)
{
    QVector<QWidget*> chain;
    QWidget* widget = region;
    do {
        if (inRegion(widget, region))
            chain.append(widget);
        widget = widget->nextInFocusChain();
    } while (widget && widget != region);
    return chain;
}

} // namespace

void FocusChain::setRegions(const QVector<QWidget*>& regions)
{
    m_regions.clear();
    for (QWidget* region : regions)
        m_regions.append(region);
}

QVector<QWidget*> FocusChain::controls(QWidget* region)
{
    QVector<QWidget*> found;
    if (!region || !region->isVisible())
        return found;
    for (QWidget* widget : chainOf(region)) {
        if (stopsTab(widget, region->window()))
            found.append(widget);
    }
    return found;
}

int FocusChain::regionOf(const QWidget* widget) const
{
    for (int idx = 0; widget && idx < m_regions.size(); ++idx) {
        if (m_regions.at(idx) && inRegion(widget, m_regions.at(idx)))
            return idx;
    }
    return -1;
}

bool FocusChain::move(bool next) const
{
    const int count = m_regions.size();
    if (count == 0)
        return false;
    const Qt::FocusReason reason = next ? Qt::TabFocusReason : Qt::BacktabFocusReason;
    QWidget* focused = QApplication::focusWidget();
    int region = regionOf(focused);
    if (region >= 0) {
        // The controls before the focused widget; it may be no Tab stop itself
        // (a clicked list, say), then Tab goes to the next one after it.
        const QVector<QWidget*> chain = chainOf(m_regions.at(region));
        const QVector<QWidget*> here = controls(m_regions.at(region));
        const int rank = chain.indexOf(focused);
        int before = 0;
        while (before < here.size() && chain.indexOf(here.at(before)) < rank)
            ++before;
        const bool isControl = before < here.size() && here.at(before) == focused;
        const int to = next ? before + (isControl ? 1 : 0) : before - 1;
        if (to >= 0 && to < here.size()) {
            here.at(to)->setFocus(reason);
            return true;
        }
    } else {
        // Outside every region, the walk starts before the first or after the last.
        region = next ? count - 1 : 0;
    }
    for (int step = 1; step <= count; ++step) {
        const int idx = ((region + (next ? step : -step)) % count + count) % count;
        const QVector<QWidget*> there = controls(m_regions.at(idx));
        if (there.isEmpty())
            continue;
        there.at(next ? 0 : there.size() - 1)->setFocus(reason);
        return true;
    }
    return false;
}
