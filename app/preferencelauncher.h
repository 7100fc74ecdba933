#pragma once

#include "preferencecontext.h"

#include <QObject>
#include <QPointer>

class PreferenceDialog;
class QWidget;

// The one preference dialog of the program: made with its pages when first
// asked for, raised when asked for again, gone when closed.
class PreferenceLauncher : public QObject
{
    Q_OBJECT
public:
    PreferenceLauncher(const PreferenceContext& context, QWidget* dialogParent);

    // Shows the dialog, made anew or raised.
    PreferenceDialog* open();
    // Null while the dialog is closed.
    PreferenceDialog* dialog() const;
    // True when no dialog is open or every page agrees to close.
    bool canClose(QString& why) const;
    // Closes the dialog without asking the pages (the program ends).
    void closeNow();

private:
    void addPages(PreferenceDialog* dialog);

    PreferenceContext m_context;
    QWidget* m_dialogParent = nullptr;
    QPointer<PreferenceDialog> m_dialog;
};
