// Firefox's bookmark reader on a copy of places.sqlite: the input is the
// database file. Every bookmark it lists must be one a key can open.

#include "bookmark.h"
#include "firefoxbookmarks.h"
#include "fuzzsupport.h"

#include <QFile>
#include <QTemporaryDir>

namespace {
QTemporaryDir* directory = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::initApplication("fuzz_firefoxplaces");
    directory = new QTemporaryDir;
    if (!directory->isValid())
        FuzzSupport::fail("no temporary directory");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString places = directory->filePath(QStringLiteral("places.sqlite"));
    {
        QFile file(places);
        const QByteArray bytes = FuzzSupport::bytes(data, size);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
            FuzzSupport::fail("cannot write the database");
    }
    for (const Bookmark& bookmark : FirefoxBookmarks::readPlaces(places, QStringLiteral("Firefox"))) {
        if (!isOpenableBookmarkUrl(bookmark.url) || bookmark.title.isEmpty())
            FuzzSupport::fail("a bookmark without an address to open or a title");
    }
    return 0;
}
