#pragma once

#include <functional>

class QObject;
class TaskProxy;

// Runs work off the GUI thread (device calls that may block for a second)
// and then done on the GUI thread, unless the context object has gone by
// then. The preference pages get one from their context; tests may run both
// on the spot.
using BackgroundRunner = std::function<void(QObject* context, std::function<void()> work, std::function<void()> done)>;

namespace BackgroundTask {

// On the program's task thread. Once the proxy has gone, nothing runs.
BackgroundRunner onTaskProxy(TaskProxy* proxy);

// Through the runner; an empty runner runs work and done at once.
void run(const BackgroundRunner& runner, QObject* context, std::function<void()> work, std::function<void()> done);

} // namespace BackgroundTask
