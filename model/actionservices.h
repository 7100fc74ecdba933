#pragma once

#include "marcokeyitem.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

// What the key actions need of the desktop: keystrokes, the clipboard,
// starting programs and opening addresses, work off the GUI thread, and the
// application in front. The model has no desktop of its own; the runtime
// installs the real services at start and tests install recording ones.
// Without services installed the actions that need them do nothing and
// report false.
class ActionServices
{
public:
    virtual ~ActionServices() = default;

    // One chord: the modifiers down in the order Super, Alt, Control, Shift,
    // then the key; 30 ms; the ups in reverse. Codes are Windows virtual keys.
    virtual void sendKeyEvent(int nativeKey, bool win, bool alt, bool ctrl, bool shift) = 0;
    // A recorded list of downs and ups, 30 ms after each.
    virtual void sendMacroKeyEvent(QList<MarcoKeyItem> steps) = 0;
    // Puts the text on the clipboard and returns once it is there.
    virtual bool setClipboardText(const QString& text) = 0;
    // Runs a named piece of work on the background task thread.
    virtual bool runTask(const QString& name, std::function<void()> work) = 0;
    virtual bool startDetached(const QString& program, const QStringList& arguments,
                               const QString& workingDirectory) = 0;
    virtual bool openUrl(const QUrl& url) = 0;
    // The executable base name of the foreground application; empty when
    // the desktop does not tell.
    virtual QString foregroundApplicationName() = 0;

    static ActionServices* instance();
    // The caller keeps ownership; reinstall null before destroying it.
    static void setInstance(ActionServices* services);
};
