#include "startupflags.h"

#include <QtGlobal>

StartupFlags parseCommandLine(QStringList arguments)
{
    StartupFlags result;
    // Taken out first, so that it never hides the option the rest begins with.
    for (int i = arguments.size() - 1; i >= 1; --i) {
        if (arguments.at(i) == QLatin1String("--virtual-keypad")) {
            arguments.removeAt(i);
            result.virtualKeypad = true;
        }
    }
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

void takeRestartEnvironment(StartupFlags* flags)
{
    const bool background = qEnvironmentVariableIntValue(RestartInBackgroundVariable) == 1;
    qunsetenv(RestartInBackgroundVariable);
    if (background && (*flags)[WaitInstance])
        flags->set(RunInBackground);
}
