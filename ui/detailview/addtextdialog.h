#pragma once

#include "marcokeyitem.h"

#include <QDialog>

class QLabel;
class QPlainTextEdit;

// "Add text…" of the macro editor: a text turned into the presses and
// releases that type it, by the keys of a US keyboard.
class AddTextDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AddTextDialog(QWidget* parent = nullptr);

    void setText(const QString& text);
    QList<MarcoKeyItem> steps() const;

private:
    void showSummary();

    QPlainTextEdit* m_text;
    QLabel* m_summary;
};
