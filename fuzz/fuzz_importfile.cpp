// libFuzzer entry points for the export file reader. The corpus replay test
// links the same two functions, so CI runs exactly this code without libFuzzer.

#include "settings.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>
#include <limits>

namespace {

QtMessageHandler defaultHandler = nullptr;

// Damaged images make the PNG decoder warn for nearly every input; only
// critical and fatal messages are worth the fuzzer's output.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if ((type == QtCriticalMsg || type == QtFatalMsg) && defaultHandler)
        defaultHandler(type, context, message);
}

} // namespace

// Read by LeakSanitizer at exit: fontconfig, loaded with the fonts of the GUI
// application, keeps allocations for the life of the process on purpose.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Images inside the files are read as QPixmaps, which need a GUI
    // application; the offscreen platform needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Our own arguments: QGuiApplication would take some of libFuzzer's.
    static int argc = 1;
    static char name[] = "fuzz_importfile";
    static char* argv[] = {name, nullptr};
    // Never destroyed: it must outlive every input, and tearing down the
    // platform plugin after main() only produces leak reports.
    static QGuiApplication* application = new QGuiApplication(argc, argv);
    Q_UNUSED(application);
    defaultHandler = qInstallMessageHandler(quietHandler);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size > size_t(std::numeric_limits<int>::max()))
        return 0;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    const Settings::ExportFile file = Settings::parseExportFile(bytes);
    // Every answer is either usable content or a reason for the user.
    const bool consistent = file.isValid() ? file.error.isEmpty() && file.problem == Settings::ImportProblem::None
                                           : !file.error.isEmpty() && file.content.isEmpty();
    if (!consistent)
        std::abort();
    return 0;
}
