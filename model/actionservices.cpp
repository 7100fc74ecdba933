#include "actionservices.h"

#include <atomic>

namespace {
std::atomic<ActionServices*> installed{nullptr};
} // namespace

ActionServices* ActionServices::instance()
{
    return installed.load();
}

void ActionServices::setInstance(ActionServices* services)
{
    installed.store(services);
}
