// The export file reader as a file arrives: every input is a whole file, so
// nearly every mutation fails the checksum. fuzz_importcontent gets past it.

#include "fuzzsupport.h"
#include "settings.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::initApplication("fuzz_importfile");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const Settings::ExportFile file = Settings::parseExportFile(FuzzSupport::bytes(data, size));
    // Every answer is either usable content or a reason for the user.
    const bool consistent = file.isValid() ? file.error.isEmpty() && file.problem == Settings::ImportProblem::None
                                           : !file.error.isEmpty() && file.content.isEmpty();
    if (!consistent)
        FuzzSupport::fail("an export file is neither valid nor refused with a reason");
    return 0;
}
