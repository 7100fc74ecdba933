#pragma once

#include <QByteArray>

class KeyItem;
class QMimeData;

// The in-process drag formats of the editor, one coder for every side of a
// drag so that the palette, My Favorite, the grid and the tests agree byte for
// byte:
// - ActionListFormat: a qint32 action type;
// - GridItemFormat and FavoriteItemFormat: a QVariant holding the KeyItem's
//   address as a qlonglong.
// Addresses are only meaningful inside this process. A drop from another
// program could offer the same format name, so an address is trusted only if
// it came from a drag of this application or was encoded here.
class DragPayload
{
public:
    static constexpr char ActionListFormat[] = "VSE/ActionList-item";
    static constexpr char GridItemFormat[] = "VSE/KeyItemGridView-item";
    static constexpr char FavoriteItemFormat[] = "VSE/FavoriteGridView-item";

    enum Kind
    {
        None,
        ActionType,
        GridItem,
        FavoriteItem,
    };

    // What a drag offers, read from the first format present in the order above.
    struct Content
    {
        Kind kind = None;
        int actionType = -1;     // ActionType: the type; item kinds: the item's type
        KeyItem* item = nullptr; // GridItem, FavoriteItem
    };

    static QByteArray encodeActionType(int actionType);
    static bool decodeActionType(const QByteArray& payload, int* actionType);
    // Remembers the address as one this process handed out.
    static QByteArray encodeItem(const KeyItem* item);
    // The address as stored; null when the payload is malformed.
    static KeyItem* decodeItem(const QByteArray& payload);
    static bool wasEncodedHere(const KeyItem* item);

    // New mime data, owned by the caller (or by the QDrag it is given to).
    static QMimeData* actionTypeMimeData(int actionType);
    static QMimeData* itemMimeData(const char* format, const KeyItem* item);

    // fromThisApplication: the drop event's source() is set, i.e. the drag
    // started in this process.
    static Content read(const QMimeData* mime, bool fromThisApplication);
    static bool offersKnownFormat(const QMimeData* mime);

private:
    static Content readItem(const QMimeData* mime, const char* format, Kind kind, bool fromThisApplication);
};
