// SPDX-License-Identifier: MIT
#include "CommandLine/Interruption.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace CommandLine {
namespace {

// A signal handler takes no arguments: what it reaches has to stand here.
std::atomic<bool> s_signalled = false;
std::atomic<int> s_writeEnd = -1;
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

extern "C" void onSignal(int)
{
    const int before = errno;
    s_signalled = true;
    const char byte = 0;
    if (const int end = s_writeEnd; end >= 0)
        (void)!::write(end, &byte, 1); // a full pipe is as readable as can be
    errno = before;
}

} // namespace

Interruption::Interruption(QObject *parent)
    : QObject(parent)
{
}

Interruption::~Interruption()
{
    if (!m_readEnd.isOpen())
        return;
    // The handlers stay: a signal that comes while the program leaves must not end it in the middle.
    const Descriptor writeEnd(s_writeEnd.exchange(-1));
}

void Interruption::watchSignals()
{
    std::array<int, 2> ends{-1, -1};
    if (::pipe(ends.data()) != 0)
        return;
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_readEnd = Descriptor(ends[0]);
    s_writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &Interruption::interrupt);

    struct sigaction action {
    };
    action.sa_handler = onSignal;
    // Workers are in the middle of system calls that must not fail for this.
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before {
        };
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
}

bool Interruption::happened() const
{
    return m_sent || (m_readEnd.isOpen() && s_signalled);
}

void Interruption::interrupt()
{
    if (m_notifier)
        m_notifier->setEnabled(false); // the pipe stays readable for good
    if (std::exchange(m_sent, true))
        return;
    Q_EMIT interrupted();
}

} // namespace CommandLine
