#pragma once

// The program's reverse-DNS application id: its name on the session bus and
// the prefix of its D-Bus interfaces and errors. The macro is for places that
// need a literal (moc's class info); code uses ApplicationId.
#define KEYSTAGE_APPLICATION_ID "io.github.keystage.Keystage"

constexpr char ApplicationId[] = KEYSTAGE_APPLICATION_ID;
