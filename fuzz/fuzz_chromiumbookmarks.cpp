// Chromium's bookmark reader: the input is a profile's "Bookmarks" file.
// Every bookmark it lists must be one a key can open.

#include "bookmark.h"
#include "chromiumbookmarks.h"
#include "fuzzsupport.h"

#include <QFile>
#include <QTemporaryDir>

namespace {
QTemporaryDir* directory = nullptr;
}

// Qt is built without frame pointers: only the slow unwinder gives leak
// stacks that reach QJsonDocument::fromJson, which the suppression of Qt's
// own parser leak needs (fuzzsupport.cpp).
extern "C" const char* __asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzSupport::initApplication("fuzz_chromiumbookmarks");
    directory = new QTemporaryDir;
    if (!directory->isValid())
        FuzzSupport::fail("no temporary directory");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString path = directory->filePath(QStringLiteral("Bookmarks"));
    {
        QFile file(path);
        const QByteArray bytes = FuzzSupport::bytes(data, size);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
            FuzzSupport::fail("cannot write the bookmark file");
    }
    for (const Bookmark& bookmark : ChromiumBookmarks::readBookmarksFile(path, QStringLiteral("Chromium"))) {
        if (!isOpenableBookmarkUrl(bookmark.url) || bookmark.title.isEmpty())
            FuzzSupport::fail("a bookmark without an address to open or a title");
    }
    return 0;
}
