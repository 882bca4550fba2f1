// SPDX-License-Identifier: MIT
#include "CommandLine/PosixTerminal.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace CommandLine {
namespace {

constexpr int kUsualColumns = 80;
constexpr qsizetype kLongestAnswer = 4'096; // bytes; a line that never ends is no answer

int descriptorOf(Stream stream)
{
    return stream == Stream::output ? STDOUT_FILENO : STDERR_FILENO;
}

/// Writes all of it, however often that takes; 0 or the error.
int writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        const int error = written < 0 ? errno : 0;
        if (written >= 0) {
            bytes = bytes.sliced(static_cast<qsizetype>(written));
        } else if (error == EAGAIN || error == EWOULDBLOCK) {
            // Whoever shares the descriptor may have made it non-blocking.
            pollfd ready{.fd = descriptor, .events = POLLOUT, .revents = 0};
            ::poll(&ready, 1, -1);
        } else if (error != EINTR) {
            return error;
        }
    }
    return 0;
}

} // namespace

PosixTerminal::PosixTerminal()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // Opened the wrong way round on purpose: reading and writing a closed stream goes on failing.
        if (::fcntl(descriptor, F_GETFD) < 0 && errno == EBADF)
            (void)::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
    // A reader that went away is an error of the write, not the end of the program.
    std::signal(SIGPIPE, SIG_IGN);
}

bool PosixTerminal::canAsk() const
{
    return ::isatty(STDIN_FILENO) == 1;
}

bool PosixTerminal::isTerminal(Stream stream) const
{
    return ::isatty(descriptorOf(stream)) == 1;
}

bool PosixTerminal::wantsColours(Stream stream) const
{
    return isTerminal(stream) && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

int PosixTerminal::columns() const
{
    winsize size{};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return kUsualColumns;
    return size.ws_col;
}

void PosixTerminal::write(Stream stream, QByteArrayView bytes)
{
    if (stream == Stream::error) {
        m_errorStreamFailed = m_errorStreamFailed || writeAll(STDERR_FILENO, bytes) != 0;
        return;
    }
    if (m_outputError)
        return;
    if (const int error = writeAll(STDOUT_FILENO, bytes); error != 0)
        m_outputError = std::error_code(error, std::generic_category());
}

std::optional<QByteArray> PosixTerminal::readLine()
{
    QByteArray line;
    while (line.size() < kLongestAnswer) {
        std::array<pollfd, 2> waits{pollfd{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0},
                                    pollfd{.fd = m_wake, .events = POLLIN, .revents = 0}};
        if (::poll(waits.data(), waits.size(), -1) < 0) {
            if (errno == EINTR)
                continue; // the signal has made the other descriptor readable
            return std::nullopt;
        }
        if (waits[1].revents != 0)
            return std::nullopt;
        char byte = 0;
        const ssize_t got = ::read(STDIN_FILENO, &byte, 1);
        if (got < 0 && errno == EINTR)
            continue;
        if (got != 1)
            return std::nullopt;
        if (byte == '\n')
            return line;
        line.append(byte);
    }
    return std::nullopt;
}

} // namespace CommandLine
