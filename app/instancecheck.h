#pragma once

#include <QString>
#include <functional>

// Base name of this process's executable image ("keystage" for
// /usr/bin/keystage), the name the instance check looks for.
QString ownImageBaseName();

// Image base name of a running process's executable, extension and the
// kernel's " (deleted)" mark removed; empty when it cannot be read.
QString processImageBaseName(qint64 pid);

// True when two or more processes of the calling user run an executable with
// this image base name: the caller is always one of them. Processes of other
// users never count, and a process list that cannot be read counts as none.
bool isAnotherInstanceRunning(const QString& imageBaseName);

// The start-up wait: with waitForOther the loop waits (500 ms steps, no
// bound) until no other instance runs; without it, an instance that runs
// means this one must hand over and quit. Returns true when it must quit.
bool mustQuitForOtherInstance(bool waitForOther, const std::function<bool()>& otherRunning,
                              const std::function<void()>& sleepBetweenChecks);
