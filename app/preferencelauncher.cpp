#include "preferencelauncher.h"

#include "aboutpage.h"
#include "dimmingpage.h"
#include "firmwarepage.h"
#include "importexportpage.h"
#include "keypadpage.h"
#include "languagepage.h"
#include "layoutpage.h"
#include "logging.h"
#include "preferencedialog.h"
#include "resetpage.h"
#include "settings.h"
#include "softwareupdatepage.h"
#include "startatloginpage.h"

#include <QWidget>

PreferenceLauncher::PreferenceLauncher(const PreferenceContext& context, QWidget* dialogParent)
    : QObject(dialogParent), m_context(context), m_dialogParent(dialogParent)
{
}

PreferenceDialog* PreferenceLauncher::open()
{
    if (!m_dialog) {
        LOG_MSG(QStringLiteral("preference dialog opened"));
        m_dialog = new PreferenceDialog(m_dialogParent);
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        addPages(m_dialog);
    }
    m_dialog->show();
    if (m_dialog->isMinimized())
        m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
    m_dialog->raise();
    m_dialog->activateWindow();
    return m_dialog;
}

// In the order the list shows them.
void PreferenceLauncher::addPages(PreferenceDialog* dialog)
{
    dialog->addPage(new KeypadPage(m_context));
    if (m_context.dimmer)
        dialog->addPage(new DimmingPage(m_context.dimmer, m_context.screenLock, m_context.store));
    dialog->addPage(new LayoutPage(m_context));
    dialog->addPage(new LanguagePage(m_context));
    dialog->addPage(new ImportExportPage(m_context));
    dialog->addPage(new ResetPage(m_context));
    dialog->addPage(new StartAtLoginPage());
    dialog->addPage(new FirmwarePage());
    auto* update = new SoftwareUpdatePage();
    if (m_context.restart)
        connect(update, &SoftwareUpdatePage::restartRequested, this, m_context.restart);
    dialog->addPage(update);
    dialog->addPage(new AboutPage(m_context.store ? m_context.store->fileName() : QString()));
}

PreferenceDialog* PreferenceLauncher::dialog() const
{
    return m_dialog;
}

bool PreferenceLauncher::canClose(QString& why) const
{
    return !m_dialog || m_dialog->canClose(why);
}

void PreferenceLauncher::closeNow()
{
    if (!m_dialog)
        return;
    // Later, not now: this may run from one of the dialog's own slots.
    m_dialog->hide();
    m_dialog->deleteLater();
}
