// SPDX-License-Identifier: MIT
#include "CommandLine/Commands.h"
#include "CommandLine/Matching.h"
#include "CommandLine/Printer.h"
#include "Platform/FileSystem.h"
#include "State/Outcomes.h"
#include "Support/Text.h"

#include <QCoro/QCoroFuture>
#include <QPromise>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

JunkResult junkOf(const AppState &state)
{
    return {.categories = state.junkCategories(), .reclaimable = state.junkReclaimable()};
}

LargeFilesResult largeFilesOf(const AppState &state)
{
    return {.files = state.largeFiles(), .totalSize = state.largeFilesTotalSize()};
}

DuplicatesResult duplicatesOf(const AppState &state)
{
    return {.groups = state.duplicateGroups(), .reclaimable = state.duplicateReclaimable()};
}

AppsResult appsOf(const Session &session)
{
    const AppState &state = session.state();
    return {.apps = state.apps(), .unusedSize = state.unusedAppsSize(), .now = session.now()};
}

/// Prints what a scan found. A scan that was stopped, or had no home to work on, is no finding: people are told, and
/// programs get their object with what there is.
ExitStatus finish(Session &session, const Result &result)
{
    const std::optional<ExitStatus> trouble = Commands::scanTrouble(session);
    if (!trouble || session.invocation().json)
        session.print(result);
    return trouble.value_or(ExitStatus::done);
}

} // namespace

std::optional<ExitStatus> Commands::scanTrouble(Session &session)
{
    if (session.isInterrupted()) {
        session.complain(Text::lookup(u"Stopped."));
        return ExitStatus::interrupted;
    }
    if (!session.state().hasUsableHome()) {
        session.complain(Text::lookup(u"No usable home folder"));
        return ExitStatus::failed;
    }
    return std::nullopt;
}

std::optional<QList<FileURL>> Commands::givenFolders(Session &session)
{
    if (session.invocation().folders.isEmpty())
        return std::nullopt;
    QList<FileURL> folders;
    for (const QByteArray &argument : session.invocation().folders) {
        const auto folder = Matching::locate(argument, session.workingFolder());
        const auto found = folder ? FileSystem::attributes(*folder, FileSystem::Root::follow)
                                  : std::unexpected(std::make_error_code(std::errc::no_such_file_or_directory));
        if (found && found->kind == FileSystem::Kind::folder) {
            folders.append(*folder);
            continue;
        }
        // A scan passes over what it cannot read, but a misspelt folder should not look like an empty one.
        const std::error_code why = found ? std::make_error_code(std::errc::not_a_directory) : found.error();
        session.complain(u"brisko: "_s + escaped(argument) + u": "_s + Outcomes::words(why));
    }
    return folders;
}

QCoro::Task<> Commands::until(SessionPointer session, std::function<bool()> holds)
{
    if (holds())
        co_return;
    // Not the signal itself: one that comes twice in a row would wake the waiter twice.
    const auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    const QObject context;
    QObject::connect(session.get(), &Session::moved, &context, [promise, holds] {
        if (holds())
            promise->finish();
    });
    const QFuture<void> future = promise->future();
    co_await future;
}

QCoro::Task<> Commands::scanAppsWithDetails(SessionPointer session)
{
    const AppState *state = &session->state();
    co_await session->state().scanApps();
    const std::function<bool()> isOver = [state] { return !state->appDetailsLoading(); };
    co_await until(session, isOver);
}

QCoro::Task<ExitStatus> Commands::scanJunk(SessionPointer session)
{
    co_await session->state().scanJunkAsync();
    co_return finish(*session, junkOf(session->state()));
}

QCoro::Task<> Commands::lookForLargeFiles(const SessionPointer &session)
{
    return session->state().scanLargeFilesAsync(givenFolders(*session), session->invocation().minSize);
}

QCoro::Task<ExitStatus> Commands::scanLargeFiles(SessionPointer session)
{
    co_await lookForLargeFiles(session);
    co_return finish(*session, largeFilesOf(session->state()));
}

QCoro::Task<> Commands::lookForDuplicates(const SessionPointer &session)
{
    const auto folders = givenFolders(*session);
    return folders ? session->state().scanDuplicates(*folders) : session->state().scanDuplicates();
}

QCoro::Task<ExitStatus> Commands::scanDuplicates(SessionPointer session)
{
    co_await lookForDuplicates(session);
    co_return finish(*session, duplicatesOf(session->state()));
}

QCoro::Task<ExitStatus> Commands::scanApps(SessionPointer session)
{
    co_await scanAppsWithDetails(session);
    co_return finish(*session, appsOf(*session));
}

QCoro::Task<ExitStatus> Commands::scanStartup(SessionPointer session)
{
    co_await session->state().scanStartupItems();
    co_return finish(*session, StartupResult{session->state().startupItems()});
}

QCoro::Task<ExitStatus> Commands::scanAll(SessionPointer session)
{
    AppState *state = &session->state();
    state->rescanAll();
    // The closing message follows the flag; a scan that was stopped has none.
    Session *waiting = session.get();
    const std::function<bool()> isOver = [waiting, state] {
        return !state->scanning() && !state->appDetailsLoading() && (waiting->toast() || waiting->isInterrupted());
    };
    co_await until(session, isOver);
    co_return finish(*session, FullScanResult{.apps = appsOf(*session),
                                              .duplicates = duplicatesOf(*state),
                                              .junk = junkOf(*state),
                                              .largeFiles = largeFilesOf(*state),
                                              .toast = session->toast()});
}

} // namespace CommandLine
