#include "common/StopSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace trel::hosts {

namespace {

/// A handler may do next to nothing, so it writes a byte here, and the event loop reads it.
std::array<int, 2> pipeEnds = {-1, -1};

void handle(int /*number*/)
{
    const int kept = errno;
    const char byte = 0;
    // A full pipe holds a byte already, which is enough.
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
    errno = kept;
}

} // namespace

StopSignals::StopSignals()
{
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qFatal("no pipe to be had");
    }
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &StopSignals::read);

    struct sigaction action = {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, &m_formerInterrupt);
    sigaction(SIGTERM, &action, &m_formerTerminate);
}

StopSignals::~StopSignals()
{
    sigaction(SIGINT, &m_formerInterrupt, nullptr);
    sigaction(SIGTERM, &m_formerTerminate, nullptr);
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}

void StopSignals::read()
{
    std::array<char, 16> bytes;
    while (::read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
    }
    emit stopped();
}

} // namespace trel::hosts
