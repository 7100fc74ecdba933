#pragma once

#include "keylayout.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>
#include <QtGlobal>

#include <array>

// What the program knows about the keypad models and the six ways of holding
// them, in one place: sizes, key numbering, image orientation, packets,
// firmware and USB identities. The model, the device thread, the key
// dispatch, the editor and the simulated keypad all read it here, so a new
// model is one more row.
namespace KeypadTable {

// Every keypad enumerates with this vendor id.
constexpr quint32 VendorId = 0xFFFF;
// The firmware boot loader of the NUC442 models enumerates as a device of
// its own.
constexpr quint32 BootLoaderProductId = 0xFF00;
// The model driven through its maker's closed library.
constexpr quint32 VendorLibraryProductId = 0x110E;

constexpr int LayoutCount = 6;
constexpr int MaxKeys = 32;
// Every key's screen, in pixels (width and height); the editor's icons are
// smaller on the 32-key layouts.
constexpr int KeyImageSize = 72;

// How a key image is turned before it goes to the keypad: the way the
// layout's keypad has its screens mounted.
enum class ImageTurn
{
    None,
    Rotate90,
    MirrorVertical, // 180 degrees about the X axis
    Rotate180,
    Rotate270,
};

// Which image write the layout's keypad takes.
enum class ImagePackets
{
    Large, // vT_WriteImage
    Small, // vT_WriteImageNUC442
};

struct LayoutFacts
{
    KeyLayout layout;
    const char* name; // appended to storage keys
    int keys;
    QSize panel; // the editor's key panel
    QSize icon;  // a key button's icon
    QSize grid;  // columns x rows as the user sees the keypad held that way
    ImageTurn turn;
    ImagePackets packets;
    int writePauseMs; // with each key image written
    const char* modelName;
    const char* firmwareId;
    // On the maker's library path, when it differs; null otherwise.
    const char* vendorLibraryFirmwareId;
    // The model a simulated keypad becomes in this layout.
    quint32 productId;
    // Grid position -> key number in the image reports.
    std::array<qint8, MaxKeys> deviceKeyNumbers;
    // Device key id -> grid position (button index); -1 for none.
    std::array<qint8, MaxKeys> buttons;
};

struct ProductFacts
{
    quint32 productId;
    bool vendorLibrary; // driven through the maker's library
};

// Null for anything but 0..5.
const LayoutFacts* layout(int layout);
bool isValidLayout(int layout);

// Null for an unknown product id.
const ProductFacts* product(quint32 productId);
// The keypads' product ids, in the order the device thread tries them.
QVector<quint32> productIds();
// A keypad (not its boot loader).
bool isKeypad(quint32 vendorId, quint32 productId);
// The NUC442 models, which take small packets and have a boot loader.
bool hasBootLoader(quint32 productId);

int keyCount(int layout);
QSize panelSize(int layout);
QSize iconSize(int layout);
QSize gridShape(int layout);
QString layoutName(int layout);

// -1 beyond the layout's keys or for an invalid layout.
int deviceKeyNumber(int layout, int position);
// Read at layout * 32 + id over all rows as one: on layout 4 the id 32
// reaches the first entry of layout 5's row. -1 beyond the table.
int buttonIndex(int layout, int devKeyId);
// The lowest id within the layout's keys that reaches the button; -1 if none.
int deviceKeyId(int layout, int button);

bool usesSmallPackets(int layout);
int writePauseMs(int layout);
// The image as the layout's keypad must be sent it, and back again.
QImage turnedForDevice(const QImage& image, int layout);
QImage uprightFromDevice(const QImage& deviceImage, int layout);

// Model name and firmware id of the layout's keypad; "Unknown Device" for
// an invalid layout.
constexpr char UnknownDevice[] = "Unknown Device";
QString modelName(int layout);
QString firmwareId(int layout, bool vendorLibrary);

} // namespace KeypadTable
