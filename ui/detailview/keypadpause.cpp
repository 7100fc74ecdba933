#include "keypadpause.h"

#include "hid_comm.h"
#include "objectregistry.h"

namespace {

// Pauses nest (a file dialog opened from a chooser): the keypad resumes when
// the outermost one ends. Dialogs live on the GUI thread only.
int depth = 0;

// Found without a log line: the editor's tests and a session without the
// keypad thread run without one.
void setKeypadPaused(bool paused)
{
    if (auto* hid = qobject_cast<Hid_Comm*>(ObjectRegistry::find(ComponentId::HidComm)))
        hid->setPaused(paused);
}

} // namespace

KeypadPause::KeypadPause()
{
    if (depth++ == 0)
        setKeypadPaused(true);
}

KeypadPause::~KeypadPause()
{
    if (--depth == 0)
        setKeypadPaused(false);
}
