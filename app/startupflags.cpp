#include "startupflags.h"

StartupFlags parseCommandLine(const QStringList& arguments)
{
    StartupFlags result;
    if (arguments.size() < 2)
        return result;

    const QString& first = arguments.at(1);
    if (first == QLatin1String("--runinbk")) {
        result.set(RunInBackground);
    } else if (first == QLatin1String("--waitInst")) {
        result.set(WaitInstance);
    } else if (first == QLatin1String("--openFile") && arguments.size() > 2) {
        result.set(OpenFile);
        result.openFilePath = arguments.at(2);
    }
    return result;
}
