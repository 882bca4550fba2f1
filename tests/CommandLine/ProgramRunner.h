// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/ScratchTree.h"
#include "Platform/Descriptor.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QTest>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/// How a run of the program ended. `status` is the exit status, or minus the signal that ended it.
struct ProgramEnd {
    int status = -1000;
    QByteArray output;
    QByteArray errors; // with a terminal: what was shown on it

    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(output).object(); }
};

/// The real program in a home of its own: HOME, the XDG folders and TMPDIR lie in a scratch folder, which is the
/// working folder too. Arguments are bytes.
class ProgramRunner
{
public:
    ProgramRunner()
    {
        tree.folder("home/tmp");
        const QByteArray home = tree.at("home").path();
        variables = {"HOME=" + home,
                     "XDG_CONFIG_HOME=" + home + "/.config",
                     "XDG_DATA_HOME=" + home + "/.local/share",
                     "XDG_CACHE_HOME=" + home + "/.cache",
                     "XDG_STATE_HOME=" + home + "/.local/state",
                     "TMPDIR=" + home + "/tmp",
                     "PATH=/usr/bin:/bin",
                     "LC_ALL=C.UTF-8",
                     "TZ=UTC"};
    }

    enum class Input { nothing, terminal };
    /// What standard output is; a regular file unless the test says otherwise.
    enum class Output { file, closed, full, brokenPipe };

    /// Starts the program. With a terminal, standard input and standard error are one.
    void start(const QList<QByteArray> &arguments, Input input = Input::nothing, Output output = Output::file)
    {
        m_output =
            Descriptor(::open(tree.at("output").path().constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
        Descriptor in(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        Descriptor err;
        Descriptor out(::dup(m_output.get()));
        int ends[2] = {-1, -1};
        if (input == Input::terminal) {
            if (::openpty(&ends[0], &ends[1], nullptr, nullptr, nullptr) != 0)
                qFatal("no terminal could be made");
            in = Descriptor(ends[1]);
            err = Descriptor(::dup(ends[1]));
        } else {
            if (::pipe(ends) != 0)
                qFatal("no pipe could be made");
            err = Descriptor(ends[1]);
        }
        m_errors = Descriptor(ends[0]);
        ::fcntl(m_errors.get(), F_SETFD, FD_CLOEXEC);
        ::fcntl(m_errors.get(), F_SETFL, O_NONBLOCK);
        if (output == Output::full)
            out = Descriptor(::open("/dev/full", O_WRONLY | O_CLOEXEC));
        if (output == Output::brokenPipe) {
            int pipe[2] = {-1, -1};
            if (::pipe(pipe) != 0)
                qFatal("no pipe could be made");
            ::close(pipe[0]);
            out = Descriptor(pipe[1]);
        }
        std::vector<QByteArray> kept{BRISKO_PROGRAM};
        kept.insert(kept.end(), arguments.cbegin(), arguments.cend());
        std::vector<char *> values = pointers(kept);
        std::vector<QByteArray> keptVariables(variables.cbegin(), variables.cend());
        std::vector<char *> environment = pointers(keptVariables);
        const QByteArray folder = tree.root().path();

        m_process = ::fork();
        if (m_process < 0)
            qFatal("the program could not be started");
        if (m_process == 0) {
            ::setsid();
            if (input == Input::terminal)
                ::ioctl(in.get(), TIOCSCTTY, 0);
            ::dup2(in.get(), 0);
            ::dup2(out.get(), 1);
            ::dup2(err.get(), 2);
            if (output == Output::closed)
                ::close(1);
            std::signal(SIGHUP, ignoresHangUp ? SIG_IGN : SIG_DFL);
            std::signal(SIGPIPE, SIG_DFL);
            if (::chdir(folder.constData()) == 0)
                ::execve(values[0], values.data(), environment.data());
            ::_exit(127);
        }
        m_seen.clear();
    }

    /// Waits until the program has shown `text` on standard error, or the terminal; false when it ended before.
    [[nodiscard]] bool waitFor(const QByteArray &text)
    {
        return spin([&] { return m_seen.contains(text); });
    }
    /// Waits until something is so, or the program has ended.
    [[nodiscard]] bool waitUntil(const std::function<bool()> &isSo) { return spin(isSo); }
    void type(const QByteArray &text) const
    {
        if (::write(m_errors.get(), text.constData(), static_cast<size_t>(text.size())) != text.size())
            qFatal("the terminal takes no text");
    }
    void signal(int number) const { ::kill(m_process, number); }

    /// Waits for the end.
    ProgramEnd end()
    {
        (void)spin([] { return false; });
        ProgramEnd ended;
        ended.status = m_status;
        ended.output = ScratchTree::content(tree.at("output"));
        ended.errors = m_seen;
        return ended;
    }

    ProgramEnd run(const QList<QByteArray> &arguments, Output output = Output::file)
    {
        start(arguments, Input::nothing, output);
        return end();
    }

    ScratchTree tree;
    QList<QByteArray> variables;
    bool ignoresHangUp = false;

private:
    static std::vector<char *> pointers(std::vector<QByteArray> &texts)
    {
        std::vector<char *> made;
        for (QByteArray &text : texts)
            made.push_back(text.data());
        made.push_back(nullptr);
        return made;
    }

    /// Reads what is shown, and lets the test's own servers work, until `isSo`; false when the program ended before.
    bool spin(const std::function<bool()> &isSo)
    {
        QElapsedTimer since;
        since.start();
        while (m_process > 0) {
            const bool ended = ::waitpid(m_process, &m_raw, WNOHANG) == m_process;
            readErrors();
            if (ended) {
                m_process = -1;
                m_status = WIFEXITED(m_raw) ? WEXITSTATUS(m_raw) : -WTERMSIG(m_raw);
                return isSo();
            }
            if (isSo())
                return true;
            if (since.hasExpired(120'000)) {
                ::kill(m_process, SIGKILL);
                qWarning("the program did not end in time");
                since.start();
            }
            QTest::qWait(1);
        }
        return isSo();
    }

    void readErrors()
    {
        char bytes[4'096];
        ssize_t got = 0;
        while ((got = ::read(m_errors.get(), bytes, sizeof bytes)) > 0)
            m_seen.append(bytes, static_cast<qsizetype>(got));
    }

    Descriptor m_output;
    Descriptor m_errors;
    pid_t m_process = -1;
    int m_raw = 0;
    int m_status = -1000;
    QByteArray m_seen;
};
