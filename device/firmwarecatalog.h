#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The firmware images the program can offer and what it knows about them.
// Images travel inside the program under ":/firmware/" and may also be put
// in the "firmware" folder of the application data location by a user who
// has one. A name says which keypad an image is for and its version:
// firmware id + "_" + build + ".bin" for our own protocol (version
// "1.0." + build), firmware id + "_V" + version + ".sys" for the model driven
// through its maker's library. Which id a keypad needs is in KeypadTable.
class FirmwareCatalog
{
public:
    static constexpr int HeaderSize = 64;

    struct Entry
    {
        QString version;   // as shown to the user
        QString directory; // where the image was found
    };

    // Searched in this order; the first image that matches wins.
    static QStringList searchDirectories();

    static bool isKnownDevice(const QString& firmwareId);

    // The first image whose name contains the id (case-sensitive).
    static bool packagedVersion(const QString& firmwareId, bool vendorLibrary, Entry& entry);
    static QString imagePath(const QString& firmwareId, const Entry& entry, bool vendorLibrary);

    // The 64 bytes the host puts in front of an image of our own protocol.
    static QByteArray hostHeader(const QByteArray& image);
    static quint32 checksum(const QByteArray& image);
};
