#include "keypadpause.h"

#include "hid_comm.h"
#include "objectregistry.h"

namespace {
// Dialogs open on the GUI thread only.
int g_depth = 0;
} // namespace

KeypadPause::KeypadPause() : m_hid(qobject_cast<Hid_Comm*>(ObjectRegistry::find(ComponentId::HidComm)))
{
    if (g_depth++ == 0 && m_hid)
        m_hid->setPaused(true);
}

KeypadPause::~KeypadPause()
{
    if (--g_depth == 0 && m_hid)
        m_hid->setPaused(false);
}
