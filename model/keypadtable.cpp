#include "keypadtable.h"

#include <QTransform>

#include <algorithm>
#include <iterator>

namespace KeypadTable {

namespace {

constexpr QSize Icon72(72, 72);
constexpr QSize Icon48(48, 48);

// The device key numbers and the buttons of the device key ids are how each
// model numbers its keys; they are data, kept exactly. The first layout's
// key numbers run on to 14, past its six keys. Device key id 0 reaches
// button 31 on layouts 0 and 5.
// clang-format off
constexpr LayoutFacts Layouts[LayoutCount] = {
    {H_Key_6, "H_Key_6", 6, QSize(316, 523), Icon72, QSize(3, 2),
     ImageTurn::Rotate90, ImagePackets::Small, 0,
     "VKP-6P", "F28B23P1F43", nullptr, 0x1F43,
     {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
     {31, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14,
      -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}},
    {V_Key_6, "V_Key_6", 6, QSize(316, 523), Icon72, QSize(2, 3),
     ImageTurn::MirrorVertical, ImagePackets::Small, 0,
     "VKP-6P", "F28B23P1F42", nullptr, 0x1F42,
     {4, 1, 5, 2, 6, 3},
     {-1, 1, 3, 5, 0, 2, 4, -1, -1, -1, -1, -1, -1, -1, -1, -1,
      -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}},
    {H_Key_15, "H_Key_15", 15, QSize(466, 523), Icon72, QSize(5, 3),
     ImageTurn::Rotate180, ImagePackets::Large, 0,
     "VKP-15P", "F43B35P1F41", nullptr, 0x1F41,
     {5, 4, 3, 2, 1, 10, 9, 8, 7, 6, 15, 14, 13, 12, 11},
     {-1, 4, 3, 2, 1, 0, 9, 8, 7, 6, 5, 14, 13, 12, 11, 10,
      -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}},
    {V_Key_15, "V_Key_15", 15, QSize(466, 523), Icon72, QSize(3, 5),
     ImageTurn::Rotate270, ImagePackets::Large, 0,
     "VKP-15P", "F43B35P1F40", "VKP15-01-0", 0x1F40,
     {1, 6, 11, 2, 7, 12, 3, 8, 13, 4, 9, 14, 5, 10, 15},
     {-1, 0, 3, 6, 9, 12, 1, 4, 7, 10, 13, 2, 5, 8, 11, 14,
      -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}},
    {H_Key_32, "H_Key_32", 32, QSize(508, 523), Icon48, QSize(8, 4),
     ImageTurn::Rotate180, ImagePackets::Large, 1,
     "VKP-32L", "F70B48P1F44", nullptr, 0x1F44,
     {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16,
      17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32},
     {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14,
      15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30}},
    {V_Key_32, "V_Key_32", 32, QSize(508, 523), Icon48, QSize(4, 8),
     ImageTurn::Rotate270, ImagePackets::Large, 0,
     "VKP-32L", "F70B48P1F44", nullptr, 0x1F44,
     {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
      16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31},
     {31, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14,
      15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30}},
};

// In the order the device thread tries them. 0x1F45 is a keypad no layout
// selects (its firmware is packaged all the same).
constexpr ProductFacts Products[] = {
    {0x1F43, false}, {0x1F42, false}, {0x1F41, false}, {0x1F40, false},
    {0x1F45, false}, {0x1F44, false}, {VendorLibraryProductId, true},
};
// clang-format on

QImage turned(const QImage& image, ImageTurn turn)
{
    switch (turn) {
    case ImageTurn::Rotate90:
        return image.transformed(QTransform().rotate(90));
    case ImageTurn::MirrorVertical:
        return image.mirrored(false, true);
    case ImageTurn::Rotate180:
        return image.transformed(QTransform().rotate(180));
    case ImageTurn::Rotate270:
        return image.transformed(QTransform().rotate(270));
    case ImageTurn::None:
        break;
    }
    return image;
}

ImageTurn inverse(ImageTurn turn)
{
    switch (turn) {
    case ImageTurn::Rotate90:
        return ImageTurn::Rotate270;
    case ImageTurn::Rotate270:
        return ImageTurn::Rotate90;
    default:
        return turn; // a mirror and a half turn undo themselves
    }
}

} // namespace

const LayoutFacts* layout(int value)
{
    return isValidLayout(value) ? &Layouts[value] : nullptr;
}

bool isValidLayout(int value)
{
    return value >= 0 && value < LayoutCount;
}

const ProductFacts* product(quint32 productId)
{
    const auto* found = std::find_if(std::begin(Products), std::end(Products),
                                     [productId](const ProductFacts& facts) { return facts.productId == productId; });
    return found == std::end(Products) ? nullptr : found;
}

QVector<quint32> productIds()
{
    QVector<quint32> ids;
    for (const ProductFacts& facts : Products)
        ids.append(facts.productId);
    return ids;
}

bool isKeypad(quint32 vendorId, quint32 productId)
{
    return vendorId == VendorId && product(productId) != nullptr;
}

bool hasBootLoader(quint32 productId)
{
    return std::any_of(std::begin(Layouts), std::end(Layouts), [productId](const LayoutFacts& facts) {
        return facts.productId == productId && facts.packets == ImagePackets::Small;
    });
}

int keyCount(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? facts->keys : 0;
}

QSize panelSize(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? facts->panel : QSize();
}

QSize iconSize(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? facts->icon : QSize();
}

QSize gridShape(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? facts->grid : QSize();
}

QString layoutName(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? QLatin1String(facts->name) : QString();
}

int deviceKeyNumber(int value, int position)
{
    const LayoutFacts* facts = layout(value);
    if (!facts || position < 0 || position >= facts->keys)
        return -1;
    return facts->deviceKeyNumbers[size_t(position)];
}

int buttonIndex(int value, int devKeyId)
{
    if (!isValidLayout(value) || devKeyId < 0)
        return -1;
    const int at = value * MaxKeys + devKeyId;
    if (at >= LayoutCount * MaxKeys)
        return -1;
    return Layouts[at / MaxKeys].buttons[size_t(at % MaxKeys)];
}

int deviceKeyId(int value, int button)
{
    const int keys = keyCount(value);
    if (button < 0 || button >= keys)
        return -1;
    // The device thread only looks at the layout's own key bits, and a key's
    // id is its bit + 1.
    for (int id = 1; id <= keys; ++id) {
        if (buttonIndex(value, id) == button)
            return id;
    }
    return -1;
}

bool usesSmallPackets(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts && facts->packets == ImagePackets::Small;
}

int writePauseMs(int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? facts->writePauseMs : 0;
}

QImage turnedForDevice(const QImage& image, int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? turned(image, facts->turn) : image;
}

QImage uprightFromDevice(const QImage& deviceImage, int value)
{
    const LayoutFacts* facts = layout(value);
    return facts ? turned(deviceImage, inverse(facts->turn)) : deviceImage;
}

QString modelName(int value)
{
    const LayoutFacts* facts = layout(value);
    return QLatin1String(facts ? facts->modelName : UnknownDevice);
}

QString firmwareId(int value, bool vendorLibrary)
{
    const LayoutFacts* facts = layout(value);
    if (!facts)
        return QLatin1String(UnknownDevice);
    if (vendorLibrary && facts->vendorLibraryFirmwareId)
        return QLatin1String(facts->vendorLibraryFirmwareId);
    return QLatin1String(facts->firmwareId);
}

} // namespace KeypadTable
