// The installed application list's reading of one desktop entry: the input
// is the text of a .desktop file. An entry that is listed must give a
// command line to start it.

#include "applicationentry.h"
#include "fuzzsupport.h"
#include "installedapplications.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::initApplication("fuzz_desktopentry");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ApplicationEntry entry;
    if (InstalledApplications::readDesktopEntry(FuzzSupport::bytes(data, size), &entry) &&
        (entry.commandLine.isEmpty() || entry.executable.isEmpty()))
        FuzzSupport::fail("a listed application without a command line");
    return 0;
}
