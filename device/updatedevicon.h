#pragma once

#include <QImage>
#include <QObject>

class KeyItem;

// Brings the keypad's screens in line with the current page: all keys after
// a page change, a layout change or a reconnect, one key after an edit. It
// finds the key model, the device connection and the layouts through the
// object registry.
class UpdateDevIcon : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    static bool updateAllIcon();
    static bool updateKeyIcon(const KeyItem* keyItem);

    // The images of the last full update, by grid position, as sent.
    static const QImage* lastImages();
};
