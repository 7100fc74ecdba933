// Live key faces against the simulated keypad, with the real /proc:
//  - the floor: the same process with no live key (the device thread polls);
//  - four live keys on the current page (processor, memory, network with its
//    graph, clock): processor use of sampling, drawing and sending above the
//    floor, and image writes per live key per second counted at the keypad;
//  - the same keys only on a page not shown: nothing samples, nothing wakes.
// Usage: bench_livefaces [seconds per phase, default 60]
#include "buttonlayoutconfig.h"
#include "facehints.h"
#include "hid_comm.h"
#include "ka_folder.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "livefaceupdater.h"
#include "log.h"
#include "objectregistry.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "sysmonitor.h"

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <sys/resource.h>

namespace {

constexpr int Layout = H_Key_15;

double processCpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Wake-ups of the thread with this name: its context switches so far.
long threadSwitches(const QByteArray& name)
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString& tid : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(tasks.filePath(tid + QStringLiteral("/comm")));
        if (!comm.open(QIODevice::ReadOnly) || comm.readAll().trimmed() != name)
            continue;
        QFile status(tasks.filePath(tid + QStringLiteral("/status")));
        if (!status.open(QIODevice::ReadOnly))
            return -1;
        long switches = 0;
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.contains("ctxt_switches:"))
                switches += line.mid(line.indexOf(':') + 1).trimmed().toLong();
        }
        return switches;
    }
    return -1;
}

struct Phase
{
    double cpuPercent = 0;
    int writes = 0;
    int samples = 0;
    long samplerSwitches = 0;
};

Phase run(int seconds, SimulatedKeypad& keypad, SysMonitor& monitor)
{
    // What the last change started (a page sent, the sampler told to stop)
    // is over before the phase counts.
    QEventLoop settle;
    QTimer::singleShot(500, &settle, &QEventLoop::quit);
    settle.exec();
    keypad.clearReports();
    const int samplesBefore = monitor.sampleCount();
    const long switchesBefore = threadSwitches("SysMonitor");
    const double before = processCpuSeconds();
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    Phase phase;
    phase.cpuPercent = 100.0 * (processCpuSeconds() - before) / seconds;
    phase.writes = keypad.reportCount(SimulatedKeypad::ReportKind::ShowImage);
    phase.samples = monitor.sampleCount() - samplesBefore;
    phase.samplerSwitches = threadSwitches("SysMonitor") - switchesBefore;
    return phase;
}

// On the page the model shows, over whatever the keys held.
void addLiveKey(KeyItemModel& model, int keyIdx, FaceHints::LiveKind kind, bool graph)
{
    if (!model.keyItemAt(keyIdx))
        model.createKeyAction(keyIdx, KAT_PASTE_STRING);
    model.beginUpdate();
    KeyItem* item = model.keyItemAt(keyIdx);
    for (KeyRenderInfo& face : item->render)
        face.hintFlags = FaceHints::withGraph(FaceHints::withLiveKind(face.hintFlags, kind), graph);
    model.endUpdate(true, item);
}

void addFourLiveKeys(KeyItemModel& model)
{
    addLiveKey(model, 0, FaceHints::LiveKind::Processor, false);
    addLiveKey(model, 1, FaceHints::LiveKind::Memory, false);
    addLiveKey(model, 2, FaceHints::LiveKind::Network, true);
    addLiveKey(model, 3, FaceHints::LiveKind::Clock, false);
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));
    QCoreApplication::setApplicationName(QStringLiteral("Keystage"));
    const int seconds = argc > 1 ? qMax(1, QByteArray(argv[1]).toInt()) : 60;

    QObject mainWindow;
    Log log;
    ObjectRegistry::registerMainWindow(&mainWindow, &log);
    SimulatedKeypad keypad;
    HidTransport::setInstance(&keypad);
    Settings settings;
    ButtonLayoutConfig layouts;
    ObjectRegistry::registerObject(ComponentId::Settings, &settings);
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
    KeyItemModel model;
    ObjectRegistry::registerObject(ComponentId::KeyItemModel, &model);
    Hid_Comm hid;
    ObjectRegistry::registerObject(ComponentId::HidComm, &hid);
    while (!hid.isOpened())
        QThread::msleep(10);
    layouts.changeLayout(Layout);
    model.changeLayoutButtonView(KeyLayout(Layout));
    hid.onButtonLayoutChanged(KeyLayout(Layout));
    model.resetCurrentKeyItemsToDefault();

    SysMonitor monitor;
    LiveFaceUpdater updater(&model, &hid, &monitor);
    QCoreApplication::processEvents();

    std::printf("%d s per phase, layout %s, keypad simulated, /proc real\n\n", seconds,
                qPrintable(ButtonLayoutConfig::layoutName(Layout)));
    const Phase floor = run(seconds, keypad, monitor);
    std::printf("floor, no live key:              %.3f %% of one core\n", floor.cpuPercent);

    addFourLiveKeys(model);
    QCoreApplication::processEvents(); // the model's notice: the page is sent once
    const Phase shown = run(seconds, keypad, monitor);
    std::printf("four live keys on the page shown: %.3f %% of one core, %.3f %% above the floor\n", shown.cpuPercent,
                shown.cpuPercent - floor.cpuPercent);
    std::printf("    %d samples, %d image writes: %.3f per live key per second\n", shown.samples, shown.writes,
                double(shown.writes) / 4.0 / seconds);

    model.resetCurrentKeyItemsToDefault();
    model.createKeyAction(5, KAT_FOLDER);
    auto* folder = static_cast<KA_Folder*>(model.keyItemAt(5)->action[0]);
    model.changeListHead(folder, &folder->childList);
    addFourLiveKeys(model);
    model.changeListToRoot();
    QCoreApplication::processEvents();
    const Phase hidden = run(seconds, keypad, monitor);
    std::printf("live keys only on a hidden page:  %.3f %% of one core, %.3f %% above the floor\n", hidden.cpuPercent,
                hidden.cpuPercent - floor.cpuPercent);
    std::printf("    %d samples, %d image writes, sampler thread woke %ld times, clock %s\n", hidden.samples,
                hidden.writes, hidden.samplerSwitches, updater.isClockRunning() ? "running" : "stopped");
    ObjectRegistry::clear();
    HidTransport::setInstance(nullptr);
    return 0;
}
