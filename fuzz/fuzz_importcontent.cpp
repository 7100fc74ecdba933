// The export file reader past its checksum: the input is the content of a
// layout or favourites file (its first byte says which), wrapped into a file
// whose checksum is computed for it. So every mutation reaches the readers of
// items, faces, actions, macro steps and folders, as a hostile file with a
// valid checksum would.

#include "favoritekeyitemmodel.h"
#include "fuzzsupport.h"
#include "keyitem.h"
#include "keyitemserialization.h"
#include "settings.h"
#include "settingskeys.h"
#include "userquestion.h"

#include <QCryptographicHash>
#include <QDataStream>

namespace {

QByteArray streamed(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QByteArray streamedString(const QString& text)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << text;
    return bytes;
}

QByteArray count(quint32 entries)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << entries;
    return bytes;
}

// Pages go through the item reader as the key model reads them.
void readPage(const QVariantMap& page)
{
    const int keys = Settings::boundedCount(page, SettingsKeys::KeyCnt, page.size());
    for (int i = 0; i < keys; ++i) {
        const QVariant value = page.value(SettingsKeys::keyMapKey(i));
        if (value.userType() != QMetaType::QVariantMap)
            continue;
        KeyItem item;
        value.toMap() >> item;
    }
}

// The file as the program would write it for this content entry.
QByteArray exportFile(const QString& contentKey, const QByteArray& contentValue)
{
    const QByteArray entry = streamedString(contentKey) + contentValue;
    const QString sum =
        QString::fromLatin1(QCryptographicHash::hash(count(1) + entry, QCryptographicHash::Md5).toHex());
    return count(2) + entry + streamedString(SettingsKeys::ChecksumTag) + streamed(sum);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::initApplication("fuzz_importcontent");
    // Imports past the limit go on, so the walk over the items is reached.
    UserQuestions::setHandler([](const UserQuestion&) { return UserAnswer{UserQuestion::Continue, false}; });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const bool favourites = data[0] & 1;
    const QByteArray content = FuzzSupport::bytes(data + 1, size - 1);
    const QString contentKey = favourites ? SettingsKeys::MyFavorite : SettingsKeys::MyLayout;
    const Settings::ExportFile file = Settings::parseExportFile(exportFile(contentKey, content));
    if (!file.isValid()) {
        if (file.problem == Settings::ImportProblem::ChecksumMismatch)
            FuzzSupport::fail("a file with a checksum computed over its bytes is refused for its checksum");
        return 0;
    }
    if (!favourites) {
        readPage(file.content);
        return 0;
    }
    FavoriteKeyItemModel model;
    model.appendKeyItemFromImportedFile(file.content);
    if (model.count() > FavoriteKeyItemModel::MaxItems)
        FuzzSupport::fail("more favourites than the limit");
    return 0;
}
