#include "fuzzsupport.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

QtMessageHandler defaultHandler = nullptr;

// Damaged inputs make Qt warn for nearly every input (image decoders, SQL,
// JSON); only critical and fatal messages are worth the fuzzer's output.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if ((type == QtCriticalMsg || type == QtFatalMsg) && defaultHandler)
        defaultHandler(type, context, message);
}

} // namespace

// Read by LeakSanitizer: fontconfig, loaded with the fonts of the GUI
// application, keeps allocations for the life of the process on purpose.
// Qt 5.15's JSON parser loses a container on some malformed documents (a
// string cut short inside nested objects): Qt's leak, found by
// fuzz_chromiumbookmarks, 144 bytes per damaged file; the suppression
// matches only with full stacks (see fuzz_chromiumbookmarks.cpp).
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n"
           "leak:QJsonDocument::fromJson\n";
}

namespace FuzzSupport {

void initApplication(const char* name)
{
    if (QCoreApplication::instance())
        return;
    // Images are read as QPixmaps, which need a GUI application; the
    // offscreen platform needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Our own arguments: QGuiApplication would take some of libFuzzer's.
    static int argc = 1;
    static char* argv[] = {const_cast<char*>(name), nullptr};
    // Never destroyed: it must outlive every input, and tearing down the
    // platform plugin after main() only produces leak reports.
    static QGuiApplication* application = new QGuiApplication(argc, argv);
    Q_UNUSED(application);
    defaultHandler = qInstallMessageHandler(quietHandler);
}

QByteArray bytes(const uint8_t* data, size_t size)
{
    if (size > size_t(std::numeric_limits<int>::max()))
        return QByteArray();
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
}

void fail(const char* what)
{
    std::fprintf(stderr, "fuzz target: %s\n", what);
    std::abort();
}

} // namespace FuzzSupport
