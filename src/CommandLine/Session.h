// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Interruption.h"
#include "CommandLine/Invocation.h"
#include "CommandLine/ProgressLine.h"
#include "CommandLine/Results.h"
#include "CommandLine/Terminal.h"
#include "State/AppState.h"

#include <QObject>

#include <functional>
#include <optional>

namespace CommandLine {

enum class ExitStatus : quint8 { done = 0, failed = 1, wrongUse = 2, interrupted = 130 };

/// What a command works with. The pointers outlive every command.
struct Environment {
    AppState *state = nullptr;
    Terminal *terminal = nullptr;
    Interruption *interruption = nullptr;
    std::optional<FileURL> workingFolder; // absent when it has vanished
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTimeUtc(); };
};

/// One command on its way: the state to drive, the people and programs to answer. Shows progress, and stops what runs
/// when it is interrupted. Main thread.
class Session final : public QObject
{
    Q_OBJECT

public:
    Session(Invocation invocation, Environment environment);

    [[nodiscard]] const Invocation &invocation() const { return m_invocation; }
    [[nodiscard]] AppState &state() const { return *m_environment.state; }
    [[nodiscard]] Interruption &interruption() const { return *m_environment.interruption; }
    [[nodiscard]] const std::optional<FileURL> &workingFolder() const { return m_environment.workingFolder; }
    [[nodiscard]] QDateTime now() const { return m_environment.now(); }
    [[nodiscard]] bool isInterrupted() const { return m_environment.interruption->happened(); }
    /// The newest toast since the session began: the state's own goes after a while.
    [[nodiscard]] const std::optional<ToastData> &toast() const { return m_toast; }
    void forgetToast() { m_toast.reset(); }

    /// Prints what was found or done, in the form asked for.
    void print(const Result &result);
    /// One line on standard error; `message` may hold anything.
    void complain(const QString &message);
    /// Refuses the command line for what it asks.
    [[nodiscard]] ExitStatus refuse(const QString &message);
    [[nodiscard]] bool canAsk() const { return m_environment.terminal->canAsk(); }
    /// Asks on the terminal; only a clear yes is one.
    [[nodiscard]] bool isAccepted(const ConfirmData &question);

Q_SIGNALS:
    /// Something that commands wait for is another: applications and their details, the full rescan, the toast.
    void moved();

private:
    Invocation m_invocation;
    Environment m_environment;
    ProgressLine m_progress;
    std::optional<ToastData> m_toast;
};

} // namespace CommandLine
