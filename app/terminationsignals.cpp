#include "terminationsignals.h"

#include "logging.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int signalPipe[2] = {-1, -1};

// Only async-signal-safe work here: hand the number to the event loop.
void onSignal(int signalNumber)
{
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    const ssize_t written = ::write(signalPipe[1], &byte, 1);
    (void)written;
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent) : QObject(parent)
{
    if (signalPipe[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0) {
        LOG_MSG(QStringLiteral("ERROR: no socket pair for termination signals!!"));
        return;
    }
    ::fcntl(signalPipe[1], F_SETFL, O_NONBLOCK);
    m_notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::readSignal);

    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int number : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(number, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    sigemptyset(&action.sa_mask);
    for (int number : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(number, &action, nullptr);
}

void TerminationSignals::readSignal()
{
    unsigned char byte = 0;
    if (::read(signalPipe[0], &byte, 1) == 1)
        emit terminationRequested(byte);
}
