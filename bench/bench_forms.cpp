// The property form area of the editor, offscreen, with the program's style
// sheet: the time from selecting a key to its form being laid out and
// painted, against two baselines measured in the same run: selecting the key
// already shown (the form only reads the key again) and switching the
// palette's description (the panel the area showed before forms existed).
// Goal: a form switch under 16 ms, one frame.
#include "benchhome.h"
#include "buttonlayoutconfig.h"
#include "formarea.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "log.h"
#include "objectregistry.h"
#include "settings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int Rounds = 300;

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, size_t(p * values.size()))];
}

// One round: the step, then everything the event loop does before the next
// frame (late deletes, layout, paint).
void measure(const char* name, FormArea& area, const std::function<void(int round)>& step)
{
    std::vector<double> ms;
    for (int round = 0; round < Rounds + 20; ++round) {
        QElapsedTimer timer;
        timer.start();
        step(round);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        area.repaint();
        if (round >= 20) // warm-up
            ms.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::printf("%-34s median %6.2f ms   p95 %6.2f ms   max %6.2f ms\n", name, percentile(ms, 0.5),
                percentile(ms, 0.95), percentile(ms, 1.0));
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir home;
    useScratchHome(home);
    preferOffscreen();
    QApplication app(argc, argv);
    nameAsProgram();
    QFile style(QStringLiteral(":/style/keystage.qss"));
    if (style.open(QIODevice::ReadOnly | QIODevice::Text))
        app.setStyleSheet(QString::fromUtf8(style.readAll()));

    QObject mainWindow;
    Log log;
    ObjectRegistry::registerMainWindow(&mainWindow, &log);
    Settings settings;
    ButtonLayoutConfig layouts;
    ObjectRegistry::registerObject(ComponentId::Settings, &settings);
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
    KeyItemModel model;
    ObjectRegistry::registerObject(ComponentId::KeyItemModel, &model);
    layouts.changeLayout(V_Key_15);
    model.changeLayoutButtonView(V_Key_15);
    // One key of every type on the page.
    model.beginUpdate();
    for (int type = KAT_FOLDER; type <= KAT_PASTE_STRING; ++type) {
        model.deleteKeyItem(type);
        model.createKeyAction(type, KeyActionType(type));
    }
    model.endUpdate(true);

    FormArea area;
    area.resize(384, 420);
    area.show();
    QCoreApplication::processEvents();

    std::printf("Form area, %d rounds each (offscreen, style sheet applied)\n", Rounds);
    area.showKeyForm(KAT_HOTKEY);
    measure("baseline: same key again", area, [&area](int) { area.showKeyForm(KAT_HOTKEY); });
    measure("baseline: description switch", area,
            [&area](int round) { area.showFunctionDescription(round % 2 ? KAT_MACROKEY : KAT_OPEN_WEBSITE); });
    measure("form switch: next type", area, [&area](int round) { area.showKeyForm(round % (KAT_PASTE_STRING + 1)); });
    measure("form switch: hotkey <-> text", area,
            [&area](int round) { area.showKeyForm(round % 2 ? KAT_HOTKEY : KAT_PASTE_STRING); });
    ObjectRegistry::clear();
    ObjectRegistry::unregisterMainWindow();
    return 0;
}
