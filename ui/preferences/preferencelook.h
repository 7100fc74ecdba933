#pragma once

#include <QString>

class QLabel;
class QVBoxLayout;
class QWidget;

// What every preference page shares in its looks: a heading, section titles
// and notes, named for the style sheet.
namespace PreferenceLook {

// The page's layout, headed by its title.
QVBoxLayout* pageLayout(QWidget* page, const QString& heading);
QLabel* section(const QString& text, QWidget* parent);
// A wrapped explanation in the muted colour.
QLabel* note(const QString& text, QWidget* parent);
// A line that reports what just happened; "problem" turns it red.
QLabel* status(QWidget* parent);
void setStatus(QLabel* label, const QString& text, bool problem = false);

} // namespace PreferenceLook
