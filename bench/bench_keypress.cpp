// From a key report on the (simulated) keypad to the first synthetic key
// event sent through XTest: the device thread, the key action thread, the
// pressed face and the hotkey's first key down. Needs an X server; run it as
//   scripts/with-xvfb.sh -- build/bench/bench_keypress
#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "ka_hotkey.h"
#include "keyaction.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "log.h"
#include "objectregistry.h"
#include "runtimeactionservices.h"
#include "settings.h"
#include "simulatedkeypad.h"
#include "virtualkey.h"
#include "windowsystem.h"
#include "xtestkeystrokebackend.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <vector>

namespace {

QElapsedTimer clockSinceStart;

// XTest with the time of each first key down noted.
class TimedBackend : public XTestKeystrokeBackend
{
public:
    bool keyDown(int virtualKey) override
    {
        qint64 expected = 0;
        firstDownAt.compare_exchange_strong(expected, clockSinceStart.nsecsElapsed());
        return XTestKeystrokeBackend::keyDown(virtualKey);
    }

    std::atomic<qint64> firstDownAt{0};
};

double at(std::vector<double> values, double fraction)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, size_t(fraction * double(values.size())))];
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        std::fprintf(stderr, "bench_keypress needs an X server: scripts/with-xvfb.sh -- %s\n", argv[0]);
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Vantorix"));
    QCoreApplication::setApplicationName(QStringLiteral("Keystage"));
    clockSinceStart.start();

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
    layouts.changeLayout(H_Key_15);
    model.changeLayoutButtonView(H_Key_15);
    model.resetCurrentKeyItemsToDefault();
    if (model.keyItemAt(4))
        model.deleteKeyItem(4);
    model.createKeyAction(4, KAT_HOTKEY);
    static_cast<KA_HotKey*>(model.keyItemAt(4)->action[0])->nativeCode = 0x7C; // F13: types nothing visible

    TimedBackend backend;
    VirtualKey::setBackend(&backend);
    RuntimeActionServices services(WindowSystem::create());
    ActionServices::setInstance(&services);

    Hid_Comm hid;
    ObjectRegistry::registerObject(ComponentId::HidComm, &hid);
    hid.onButtonLayoutChanged(H_Key_15);
    KeyAction keyAction;
    QObject::connect(&hid, &Hid_Comm::keyPressed, &keyAction, &KeyAction::onKeyPressed);
    QObject::connect(&hid, &Hid_Comm::keyReleased, &keyAction, &KeyAction::onKeyRleased);
    while (!hid.isOpened())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);

    std::vector<double> latencies;
    for (int i = 0; i < 200; ++i) {
        backend.firstDownAt.store(0);
        const qint64 start = clockSinceStart.nsecsElapsed();
        keypad.pressKey(0); // key id 1: button 4 on this keypad
        while (backend.firstDownAt.load() == 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        latencies.push_back(double(backend.firstDownAt.load() - start) / 1e6);
        keypad.releaseKey(0);
        QElapsedTimer settle; // the chord's 30 ms and the release's face
        settle.start();
        while (settle.elapsed() < 60)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    std::printf("key report -> first XTest key down: median %.2f ms, 99th percentile %.2f ms (%zu presses)\n",
                at(latencies, 0.5), at(latencies, 0.99), latencies.size());
    std::printf("(the pressed face is drawn first and sent by the GUI thread meanwhile)\n");

    ObjectRegistry::unregisterObject(ComponentId::HidComm);
    VirtualKey::setBackend(nullptr);
    ActionServices::setInstance(nullptr);
    ObjectRegistry::clear();
    HidTransport::setInstance(nullptr);
    return 0;
}
