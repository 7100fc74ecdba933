#pragma once

#include "startupflags.h"

// The program's entry sequence: identity, command line, single instance,
// hand-over, translation, main window, event loop.
class Startup
{
public:
    // Returns the exit code: -1 when another instance runs and this process
    // only handed its request over.
    static int run(int& argc, char** argv);

    // Applies the single-instance rule to the parsed flags and sends the
    // hand-over token; sets QuitAtOnce and BringToFront as needed.
    static void resolveInstance(StartupFlags* flags);

    // A stored language index outside 0..5 means no translation (-1).
    static int checkedLanguageIndex(int stored);

    // The application's look: the style sheet compiled into the program.
    static void applyStyleSheet();

private:
    static void setIdentity();
};
