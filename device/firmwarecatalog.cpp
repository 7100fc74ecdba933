#include "firmwarecatalog.h"

#include "keypadtable.h"

#include <QDir>
#include <QStandardPaths>
#include <QtEndian>

namespace {
const QString OwnVersionPrefix = QStringLiteral("1.0.");

void putBigEndian(QByteArray& bytes, int at, quint32 value)
{
    qToBigEndian(value, reinterpret_cast<uchar*>(bytes.data() + at));
}

QString stripped(QString name, const QString& prefix, const QString& suffix)
{
    name.remove(prefix);
    if (name.endsWith(suffix))
        name.chop(suffix.size());
    return name;
}
} // namespace

QStringList FirmwareCatalog::searchDirectories()
{
    return {QStringLiteral(":/firmware"),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/firmware")};
}

bool FirmwareCatalog::isKnownDevice(const QString& id)
{
    return id != QLatin1String(KeypadTable::UnknownDevice);
}

bool FirmwareCatalog::packagedVersion(const QString& id, bool vendorLibrary, Entry& entry)
{
    if (id.isEmpty() || !isKnownDevice(id))
        return false;
    for (const QString& directory : searchDirectories()) {
        const QStringList names = QDir(directory).entryList(QDir::Files, QDir::Name);
        for (const QString& name : names) {
            if (!name.contains(id, Qt::CaseSensitive))
                continue;
            entry.directory = directory;
            entry.version = vendorLibrary
                                ? stripped(name, id + QStringLiteral("_V"), QStringLiteral(".sys"))
                                : OwnVersionPrefix + stripped(name, id + QStringLiteral("_"), QStringLiteral(".bin"));
            return true;
        }
    }
    return false;
}

QString FirmwareCatalog::imagePath(const QString& id, const Entry& entry, bool vendorLibrary)
{
    if (vendorLibrary)
        return entry.directory + QLatin1Char('/') + id + QStringLiteral("_V") + entry.version + QStringLiteral(".sys");
    QString build = entry.version;
    if (build.startsWith(OwnVersionPrefix))
        build.remove(0, OwnVersionPrefix.size());
    return entry.directory + QLatin1Char('/') + id + QLatin1Char('_') + build + QStringLiteral(".bin");
}

quint32 FirmwareCatalog::checksum(const QByteArray& image)
{
    quint32 sum = 0;
    for (char byte : image)
        sum += quint8(byte);
    return sum;
}

QByteArray FirmwareCatalog::hostHeader(const QByteArray& image)
{
    QByteArray header(HeaderSize, '\0');
    header.replace(0, 27, "kelvaris industrial product");
    header.replace(32, 7, "version");
    putBigEndian(header, 56, quint32(image.size()));
    putBigEndian(header, 60, checksum(image));
    return header;
}
