#pragma once

#include <QStringList>
#include <array>

// What the command line and the instance check decided, in this fixed order.
enum StartupFlag
{
    RunInBackground = 0, // "--runinbk"
    WaitInstance = 1,    // "--waitInst": wait until the previous process has gone (restart)
    OpenFile = 2,        // "--openFile PATH"
    QuitAtOnce = 3,      // another instance runs: hand over and leave
    BringToFront = 4,    // ... and ask it to come to the front
    StartupFlagCount = 5,
};

struct StartupFlags
{
    std::array<bool, StartupFlagCount> flags{};
    QString openFilePath;
    // "--virtual-keypad", anywhere among the arguments.
    bool virtualKeypad = false;

    bool operator[](StartupFlag flag) const { return flags[flag]; }
    void set(StartupFlag flag, bool on = true) { flags[flag] = on; }
};

// "--virtual-keypad" is taken out wherever it stands; of the rest only the
// first argument after the program name counts. Comparisons are exact and
// case-sensitive.
StartupFlags parseCommandLine(QStringList arguments);

// A restart passes "--waitInst", and only the first argument counts; one made
// while the program was in the tray says so in the environment instead, so
// that the new process comes back there too.
constexpr char RestartInBackgroundVariable[] = "KEYSTAGE_RESTART_IN_BACKGROUND";

// With "--waitInst" and the variable set to 1, sets RunInBackground. The
// variable leaves the environment either way: programs started from here
// must not inherit it.
void takeRestartEnvironment(StartupFlags* flags);
