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

    // Nothing here draws with OpenGL, yet Qt's xcb platform loads the GL
    // driver at start (with Mesa's llvmpipe some 50 MB). Before the
    // application object: switches the xcb GL integration off unless the
    // user chose one in QT_XCB_GL_INTEGRATION; true when it did.
    static bool switchOffOpenGl();
    // After the first window is made (Qt reads the switch then, not when
    // the application object is made): takes the switch back out of the
    // environment, so programs that keys start do not inherit it.
    static void forgetOpenGlSwitch(bool switchedOff);

private:
    static void setIdentity();
};
