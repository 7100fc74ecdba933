#include "bundledfonts.h"

#include "logging.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QResource>
#include <QStringList>

namespace {

const char* const FaceFiles[] = {
    ":/fonts/LiberationSans-Regular.ttf",
    ":/fonts/LiberationSans-Bold.ttf",
    ":/fonts/LiberationSans-Italic.ttf",
    ":/fonts/LiberationSans-BoldItalic.ttf",
};

QMutex& fontMutex()
{
    static QMutex mutex;
    return mutex;
}

} // namespace

QString BundledFonts::family()
{
    return QStringLiteral("Liberation Sans");
}

bool BundledFonts::ensureLoaded()
{
    static bool done = false;
    static bool available = false;
    static bool warned = false;
    QMutexLocker lock(&fontMutex());
    if (done)
        return available;
    if (!canDrawText()) {
        if (!warned)
            LOG_MSG(QStringLiteral("ERR: no QGuiApplication, title fonts not loaded!!"));
        warned = true;
        return false;
    }
    done = true;
    available = registerFaces();
    if (available)
        QFont::insertSubstitution(QStringLiteral("Arial"), family());
    return available;
}

// The font database keeps the bytes of every font for the life of the
// process; read from the resource they would be a heap copy of some 1.6 MB.
// Stored uncompressed, the built-in bytes serve without a copy, and only the
// pages the font engine reads become resident.
int BundledFonts::addFace(const QString& path)
{
    const QResource resource(path);
    if (resource.isValid() && resource.compressionAlgorithm() == QResource::NoCompression && resource.data())
        return QFontDatabase::addApplicationFontFromData(
            QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), int(resource.size())));
    return QFontDatabase::addApplicationFont(path);
}

bool BundledFonts::registerFaces()
{
    bool regularLoaded = false;
    for (const char* file : FaceFiles) {
        const QString path = QString::fromLatin1(file);
        const int id = addFace(path);
        if (!logMsgWhenRetFail(id >= 0, QStringLiteral("cannot load the bundled font!! -> %1").arg(path)))
            continue;
        if (path.endsWith(QLatin1String("-Regular.ttf")))
            regularLoaded = QFontDatabase::applicationFontFamilies(id).contains(family());
    }
    return regularLoaded;
}

bool BundledFonts::canDrawText()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

QString BundledFonts::titleFamily(const QString& requested)
{
    if (requested.isEmpty() || requested.compare(QLatin1String("Arial"), Qt::CaseInsensitive) == 0)
        return family();
    return isInstalled(requested) ? requested : family();
}

bool BundledFonts::isInstalled(const QString& family)
{
    static QHash<QString, bool> known;
    QMutexLocker lock(&fontMutex());
    const auto found = known.constFind(family);
    if (found != known.constEnd())
        return found.value();
    if (!canDrawText())
        return false;
    const bool installed = QFontDatabase().hasFamily(family);
    if (known.size() < 256)
        known.insert(family, installed);
    return installed;
}
