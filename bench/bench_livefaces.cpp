// Live key faces against the simulated keypad, with the real /proc:
//  - the floor: the same process with no live key (the device thread polls);
//  - four live keys on the current page (processor, memory and network with
//    their graphs, clock): processor use of sampling, drawing and sending above the
//    floor, and image writes per live key per second counted at the keypad
//    (each write also waits 2 ms per 8000-byte chunk, asleep);
//  - the same keys only on a page not shown: nothing samples, nothing wakes.
// Usage: bench_livefaces [seconds per phase, default 60]
#include "benchhome.h"
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
#include <unistd.h>

namespace {

constexpr int Layout = H_Key_15;

double processCpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Processor time of the calling thread.
double threadCpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Processor time of the thread with this name, from /proc.
double namedThreadCpuSeconds(const QByteArray& name)
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString& tid : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(tasks.filePath(tid + QStringLiteral("/comm")));
        if (!comm.open(QIODevice::ReadOnly) || comm.readAll().trimmed() != name)
            continue;
        QFile stat(tasks.filePath(tid + QStringLiteral("/stat")));
        if (!stat.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray line = stat.readAll();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        return (fields.value(11).toDouble() + fields.value(12).toDouble()) / double(sysconf(_SC_CLK_TCK));
    }
    return 0;
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
    double guiPercent = 0;     // drawing and sending
    double samplerPercent = 0; // reading /proc
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
    const double guiBefore = threadCpuSeconds();
    const double samplerBefore = namedThreadCpuSeconds("SysMonitor");
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    Phase phase;
    phase.cpuPercent = 100.0 * (processCpuSeconds() - before) / seconds;
    phase.guiPercent = 100.0 * (threadCpuSeconds() - guiBefore) / seconds;
    phase.samplerPercent = 100.0 * (namedThreadCpuSeconds("SysMonitor") - samplerBefore) / seconds;
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
    // With their graphs, which move every second: the faces change as often
    // as they can.
    addLiveKey(model, 0, FaceHints::LiveKind::Processor, true);
    addLiveKey(model, 1, FaceHints::LiveKind::Memory, true);
    addLiveKey(model, 2, FaceHints::LiveKind::Network, true);
    addLiveKey(model, 3, FaceHints::LiveKind::Clock, false);
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    useScratchHome(home);
    preferOffscreen();
    QGuiApplication app(argc, argv);
    nameAsProgram();
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
    std::printf("    GUI thread (drawing, sending) %.3f %% (floor %.3f %%), sampler thread %.3f %%\n", shown.guiPercent,
                floor.guiPercent, shown.samplerPercent);
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
