#include "dragpayload.h"

#include "keyitem.h"
#include "logging.h"

#include <QDataStream>
#include <QMimeData>
#include <QMutex>
#include <QVariant>

namespace {

// Addresses handed out recently; a drag carries one at a time, a few more
// cover drags that were started and abandoned.
constexpr int RememberedAddresses = 16;
QMutex addressMutex;
QList<quintptr> encodedAddresses;

void rememberAddress(quintptr address)
{
    QMutexLocker locker(&addressMutex);
    encodedAddresses.removeAll(address);
    encodedAddresses.append(address);
    while (encodedAddresses.size() > RememberedAddresses)
        encodedAddresses.removeFirst();
}

} // namespace

QByteArray DragPayload::encodeActionType(int actionType)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    stream << qint32(actionType);
    return payload;
}

bool DragPayload::decodeActionType(const QByteArray& payload, int* actionType)
{
    QDataStream stream(payload);
    qint32 value = -1;
    stream >> value;
    if (stream.status() != QDataStream::Ok)
        return false;
    if (actionType)
        *actionType = value;
    return true;
}

QByteArray DragPayload::encodeItem(const KeyItem* item)
{
    const auto address = reinterpret_cast<quintptr>(item);
    rememberAddress(address);
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    stream << QVariant(qlonglong(address));
    return payload;
}

KeyItem* DragPayload::decodeItem(const QByteArray& payload)
{
    QDataStream stream(payload);
    QVariant value;
    stream >> value;
    bool ok = false;
    const qlonglong address = value.toLongLong(&ok);
    if (stream.status() != QDataStream::Ok || !ok)
        return nullptr;
    return reinterpret_cast<KeyItem*>(quintptr(address));
}

bool DragPayload::wasEncodedHere(const KeyItem* item)
{
    QMutexLocker locker(&addressMutex);
    return item && encodedAddresses.contains(reinterpret_cast<quintptr>(item));
}

QMimeData* DragPayload::actionTypeMimeData(int actionType)
{
    auto* mime = new QMimeData;
    mime->setData(QLatin1String(ActionListFormat), encodeActionType(actionType));
    return mime;
}

QMimeData* DragPayload::itemMimeData(const char* format, const KeyItem* item)
{
    auto* mime = new QMimeData;
    mime->setData(QLatin1String(format), encodeItem(item));
    return mime;
}

bool DragPayload::offersKnownFormat(const QMimeData* mime)
{
    return mime &&
           (mime->hasFormat(QLatin1String(ActionListFormat)) || mime->hasFormat(QLatin1String(GridItemFormat)) ||
            mime->hasFormat(QLatin1String(FavoriteItemFormat)));
}

DragPayload::Content DragPayload::read(const QMimeData* mime, bool fromThisApplication)
{
    Content content;
    if (!mime)
        return content;
    if (mime->hasFormat(QLatin1String(ActionListFormat))) {
        int type = -1;
        if (!decodeActionType(mime->data(QLatin1String(ActionListFormat)), &type)) {
            LOG_MSG(QStringLiteral("ERROR: unreadable action type payload!!"));
            return content;
        }
        content.kind = ActionType;
        content.actionType = type;
        return content;
    }
    if (mime->hasFormat(QLatin1String(GridItemFormat)))
        return readItem(mime, GridItemFormat, GridItem, fromThisApplication);
    if (mime->hasFormat(QLatin1String(FavoriteItemFormat)))
        return readItem(mime, FavoriteItemFormat, FavoriteItem, fromThisApplication);
    return content;
}

DragPayload::Content DragPayload::readItem(const QMimeData* mime, const char* format, Kind kind,
                                           bool fromThisApplication)
{
    Content content;
    KeyItem* item = decodeItem(mime->data(QLatin1String(format)));
    if (!item) {
        LOG_MSG(QStringLiteral("ERROR: unreadable key item payload!!"));
        return content;
    }
    // Another program may offer our format name with any number in it.
    if (!fromThisApplication && !wasEncodedHere(item)) {
        LOG_MSG(QStringLiteral("ERROR: key item address from outside this program ignored!!"));
        return content;
    }
    content.kind = kind;
    content.item = item;
    content.actionType = item->actionType;
    return content;
}
