#pragma once

#include <QString>

// The title font compiled into the program (Liberation Sans, resources
// ":/fonts/"), so that key faces look the same on every machine whatever
// fonts it has installed. Liberation Sans has Arial's metrics, which keeps
// titles as wide as the user saw them when the layout was made elsewhere.
class BundledFonts
{
public:
    static QString family();

    // Registers the bundled faces with the font database and maps "Arial"
    // onto them, once per process; safe from any thread. Returns whether
    // the faces are available. Without a QGuiApplication nothing can be
    // registered: it returns false and tries again on the next call.
    static bool ensureLoaded();

    // The family a key title is drawn with: "Arial" (any case) and families
    // this machine does not have become the bundled family, so that a layout
    // made on another machine never falls back to an arbitrary local font.
    static QString titleFamily(const QString& requested);

    // Text needs the font database of a QGuiApplication; without one faces
    // are drawn without titles.
    static bool canDrawText();

private:
    static bool registerFaces();
    static int addFace(const QString& path);
    static bool isInstalled(const QString& family);
};
