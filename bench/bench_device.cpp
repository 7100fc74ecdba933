// The keypad's side of the program against the simulated keypad:
//  - host cost of one full page (render, rotate, encode) per layout size,
//    without the protocol's pauses;
//  - the whole page as sent, against the floor the protocol's pauses set;
//  - key report to keyPressed latency through the device thread;
//  - processor use of the idle polling thread, with a keypad open and none.
#include "benchhome.h"
#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "keypadprotocol.h"
#include "keypadtable.h"
#include "log.h"
#include "objectregistry.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "updatedevicon.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <unistd.h>
#include <vector>

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, size_t(p * double(values.size())))];
}

void fillPage(KeyItemModel& model, int layout)
{
    model.resetCurrentKeyItemsToDefault();
    for (int key = 0; key < ButtonLayoutConfig::keyCount(layout); ++key) {
        if (!model.keyItemAt(key))
            model.createKeyAction(key, KeyActionType(KAT_HOTKEY + key % 5));
        model.keyItemAt(key)->setTitle(0, QStringLiteral("Key %1").arg(key + 1));
    }
}

// What a full update costs the host: faces, orientation and encoding.
double hostPageMs(const KeyItemModel& model, int layout, int rounds)
{
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round) {
        for (int key = 0; key < ButtonLayoutConfig::keyCount(layout); ++key) {
            const QImage face = Hid_Comm::orientForLayout(KeyFaceRenderer::render(model.keyItemAt(key)), layout);
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            face.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP");
        }
    }
    return double(timer.nsecsElapsed()) / 1e6 / rounds;
}

// The pauses the protocol asks for, per key image of this many bytes.
double floorMsPerKey(int layout, int imageBytes)
{
    if (KeypadTable::usesSmallPackets(layout))
        return imageBytes % KeypadProtocol::SmallChunkCapacity ? 3.0 : 2.0;
    const int capacity = KeypadProtocol::LargeChunkCapacity;
    const double chunks = (imageBytes + capacity - 1) / capacity;
    return 2.0 * chunks + KeypadTable::writePauseMs(layout);
}

void pageCosts(KeyItemModel& model, ButtonLayoutConfig& layouts, Hid_Comm& hid, SimulatedKeypad& keypad)
{
    std::printf("%-10s %14s %14s %12s %8s\n", "layout", "host ms/page", "sent ms/page", "floor ms", "ratio");
    for (int layout : {H_Key_6, V_Key_6, H_Key_15, V_Key_15, H_Key_32, V_Key_32}) {
        layouts.changeLayout(layout);
        model.changeLayoutButtonView(KeyLayout(layout));
        hid.onButtonLayoutChanged(KeyLayout(layout));
        fillPage(model, layout);
        const double host = hostPageMs(model, layout, 20);

        constexpr int rounds = 10;
        QElapsedTimer timer;
        timer.start();
        for (int round = 0; round < rounds; ++round)
            UpdateDevIcon::updateAllIcon();
        const double sent = double(timer.nsecsElapsed()) / 1e6 / rounds;
        const int imageBytes = keypad.keyImageBytes(Hid_Comm::deviceKeyNumber(layout, 0)).size();
        const double floorMs = floorMsPerKey(layout, imageBytes) * ButtonLayoutConfig::keyCount(layout);
        std::printf("%-10s %14.2f %14.2f %12.1f %8.3f\n", qPrintable(ButtonLayoutConfig::layoutName(layout)), host,
                    sent, floorMs, sent / floorMs);
    }
}

void keyLatency(Hid_Comm& hid, SimulatedKeypad& keypad)
{
    hid.onButtonLayoutChanged(H_Key_15);
    std::atomic<qint64> signalledAt{0};
    QElapsedTimer clock;
    clock.start();
    auto stamp = [&](int) { signalledAt.store(clock.nsecsElapsed()); };
    QObject::connect(&hid, &Hid_Comm::keyPressed, &hid, stamp, Qt::DirectConnection);
    QObject::connect(&hid, &Hid_Comm::keyReleased, &hid, stamp, Qt::DirectConnection);

    std::vector<double> latencies;
    for (int i = 0; i < 1000; ++i) {
        for (bool press : {true, false}) {
            signalledAt.store(0);
            const qint64 start = clock.nsecsElapsed();
            press ? keypad.pressKey(i % 15) : keypad.releaseKey(i % 15);
            while (signalledAt.load() == 0)
                QThread::yieldCurrentThread();
            if (press)
                latencies.push_back(double(signalledAt.load() - start) / 1e3);
        }
    }
    std::printf("\nkey report -> keyPressed: median %.1f us, 99th percentile %.1f us (%zu presses)\n",
                median(latencies), percentile(latencies, 0.99), latencies.size());
}

// Processor time of the thread named "Comm", from /proc.
double commThreadCpuSeconds()
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString& tid : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(tasks.filePath(tid + QStringLiteral("/comm")));
        if (!comm.open(QIODevice::ReadOnly) || comm.readAll().trimmed() != "Comm")
            continue;
        QFile stat(tasks.filePath(tid + QStringLiteral("/stat")));
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = stat.readAll();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
        return ticks / double(sysconf(_SC_CLK_TCK));
    }
    return -1;
}

void idleCpu(const char* what, int seconds)
{
    const double before = commThreadCpuSeconds();
    QThread::sleep(unsigned(seconds));
    const double used = commThreadCpuSeconds() - before;
    std::printf("idle polling thread, %s: %.3f %% of one core over %d s\n", what, 100.0 * used / seconds, seconds);
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    useScratchHome(home);
    preferOffscreen();
    QGuiApplication app(argc, argv);
    nameAsProgram();

    QObject mainWindow;
    Log log;
    ObjectRegistry::registerMainWindow(&mainWindow, &log); // log records cost what they cost in the program
    SimulatedKeypad keypad;
    HidTransport::setInstance(&keypad);
    Settings settings;
    ButtonLayoutConfig layouts;
    ObjectRegistry::registerObject(ComponentId::Settings, &settings);
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
    KeyItemModel model;
    ObjectRegistry::registerObject(ComponentId::KeyItemModel, &model);
    {
        Hid_Comm hid;
        ObjectRegistry::registerObject(ComponentId::HidComm, &hid);
        while (!hid.isOpened())
            QThread::msleep(10);
        pageCosts(model, layouts, hid, keypad);
        keyLatency(hid, keypad);
        std::printf("\n");
        idleCpu("keypad open", 10);
        ObjectRegistry::unregisterObject(ComponentId::HidComm);
    }
    keypad.unplug();
    Hid_Comm idle;
    QThread::msleep(200);
    idleCpu("no keypad", 10);
    ObjectRegistry::clear();
    HidTransport::setInstance(nullptr);
    return 0;
}
