// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Session.h"

#include <QCoro/QCoroTask>

#include <functional>
#include <memory>

/// The commands, each an operation or two of the state and an answer. Main thread.
namespace CommandLine {

using SessionPointer = std::shared_ptr<Session>;

/// Carries out the command that the session was made for, prints its answer and says how the program ends.
[[nodiscard]] QCoro::Task<ExitStatus> carryOut(const SessionPointer &session);

namespace Commands {

/// What went wrong whatever was looked for: an interruption, or no home to work on. It has been said on standard error.
[[nodiscard]] std::optional<ExitStatus> scanTrouble(Session &session);
/// The folders given in place of the saved list; absent when none were given.
[[nodiscard]] std::optional<QList<FileURL>> givenFolders(Session &session);
/// The startup item that the command's operand means.
[[nodiscard]] std::optional<StartupItem> listedStartupItem(const Session &session);

// Scans with the folders and the size of the command line.
[[nodiscard]] QCoro::Task<> lookForLargeFiles(const SessionPointer &session);
[[nodiscard]] QCoro::Task<> lookForDuplicates(const SessionPointer &session);
/// Waits until `holds`, which is asked again whenever the session has moved.
[[nodiscard]] QCoro::Task<> until(SessionPointer session, std::function<bool()> holds);
/// Waits for the details of every application too.
[[nodiscard]] QCoro::Task<> scanAppsWithDetails(SessionPointer session);

QCoro::Task<ExitStatus> scanJunk(SessionPointer session);
QCoro::Task<ExitStatus> scanLargeFiles(SessionPointer session);
QCoro::Task<ExitStatus> scanDuplicates(SessionPointer session);
QCoro::Task<ExitStatus> scanApps(SessionPointer session);
QCoro::Task<ExitStatus> scanStartup(SessionPointer session);
QCoro::Task<ExitStatus> scanAll(SessionPointer session);

QCoro::Task<ExitStatus> cleanJunk(SessionPointer session);
QCoro::Task<ExitStatus> removeLargeFiles(SessionPointer session);
QCoro::Task<ExitStatus> removeDuplicates(SessionPointer session);
QCoro::Task<ExitStatus> uninstall(SessionPointer session);
QCoro::Task<ExitStatus> removeStartupItem(SessionPointer session);

QCoro::Task<ExitStatus> switchStartupItem(SessionPointer session);
QCoro::Task<ExitStatus> showStats(SessionPointer session);
QCoro::Task<ExitStatus> checkForUpdates(SessionPointer session);
QCoro::Task<ExitStatus> showHistory(SessionPointer session);
QCoro::Task<ExitStatus> editFolders(SessionPointer session);

} // namespace Commands
} // namespace CommandLine
