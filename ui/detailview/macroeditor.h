// Placeholder until the real widget lands: shows the steps, can only clear
// them.
#pragma once

#include "marcokeyitem.h"

#include <QList>
#include <QWidget>

class QListWidget;

class MacroEditor : public QWidget
{
    Q_OBJECT
public:
    explicit MacroEditor(QWidget* parent = nullptr);

    void setSteps(const QList<MarcoKeyItem>& steps);
    QList<MarcoKeyItem> steps() const;

signals:
    void stepsChanged(const QList<MarcoKeyItem>& steps);

private:
    QListWidget* m_list = nullptr;
    QList<MarcoKeyItem> m_steps;
};
