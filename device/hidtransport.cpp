#include "hidtransport.h"

#include "hidapitransport.h"

#include <atomic>

namespace {
std::atomic<HidTransport*> installedTransport{nullptr};
} // namespace

HidTransport* HidTransport::instance()
{
    if (HidTransport* transport = installedTransport.load())
        return transport;
    static HidapiTransport hidapi;
    return &hidapi;
}

void HidTransport::setInstance(HidTransport* transport)
{
    installedTransport.store(transport);
}
