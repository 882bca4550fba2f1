// SPDX-License-Identifier: MIT
#include "CommandLine/Commands.h"
#include "CommandLine/Matching.h"
#include "CommandLine/Printer.h"
#include "Platform/FileSystem.h"
#include "Support/Text.h"

#include <QCoro/QCoroFuture>
#include <QCoro/QCoroTimer>
#include <QPromise>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

constexpr std::chrono::milliseconds kSampleTime{1'000};

/// Waits, but not longer than until the interruption.
QCoro::Task<> pause(SessionPointer session, std::chrono::milliseconds time)
{
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer); // a coarse one may end early
    timer.start(session->isInterrupted() ? std::chrono::milliseconds{0} : time);
    QObject::connect(&session->interruption(), &Interruption::interrupted, &timer, [&timer] { timer.start(0); });
    co_await timer;
}

/// A figure that nothing real has the value 0 of.
std::optional<qint64> known(qint64 figure)
{
    return figure > 0 ? std::optional{figure} : std::nullopt;
}

struct UpdateCheck {
    QPromise<void> over; // also when nobody waits for the server any more
    UpdateOutcome outcome = UpdateOutcome::unreachable;
};

QCoro::Task<> runCheck(SessionPointer session, std::shared_ptr<UpdateCheck> check)
{
    check->outcome = co_await session->state().checkForUpdates(false);
    check->over.finish();
}

const QList<FileURL> &foldersOf(const Session &session)
{
    return session.invocation().list == FolderList::duplicates ? session.state().duplicateFolders()
                                                               : session.state().largeFileFolders();
}

void addFolder(Session &session, const FileURL &folder)
{
    if (session.invocation().list == FolderList::duplicates)
        session.state().addDuplicateFolder(folder);
    else
        session.state().addLargeFileFolder(folder);
}

void removeFolder(Session &session, const FileURL &folder)
{
    if (session.invocation().list == FolderList::duplicates)
        session.state().removeDuplicateFolder(folder);
    else
        session.state().removeLargeFileFolder(folder);
}

/// The saved folder that an argument means.
std::optional<FileURL> savedFolder(const Session &session, const QByteArray &argument)
{
    const auto isSaved = [&session](const FileURL &folder) { return foldersOf(session).contains(folder); };
    if (const auto folder = Matching::locate(argument, session.workingFolder()); folder && isSaved(*folder))
        return folder;
    return Matching::listedFile(argument, session.workingFolder(), isSaved);
}

} // namespace

std::optional<StartupItem> Commands::listedStartupItem(const Session &session)
{
    const QList<StartupItem> &items = session.state().startupItems();
    const auto path = Matching::listedFile(
        session.invocation().operands.first(), session.workingFolder(),
        [&items](const FileURL &url) { return std::ranges::find(items, url, &StartupItem::path) != items.cend(); });
    return path.transform([&items](const FileURL &url) { return *std::ranges::find(items, url, &StartupItem::path); });
}

QCoro::Task<ExitStatus> Commands::switchStartupItem(SessionPointer session)
{
    AppState *state = &session->state();
    co_await state->scanStartupItems();
    if (const auto trouble = scanTrouble(*session)) {
        if (session->invocation().json)
            session->print(SwitchResult{});
        co_return *trouble;
    }
    const std::optional<StartupItem> item = listedStartupItem(*session);
    if (!item)
        co_return session->refuse(u"no such startup item: \""_s + escaped(session->invocation().operands.first()) +
                                  u'"');
    const bool wanted = session->invocation().command == Command::startupEnable;
    SwitchResult result{.item = item, .toast = {}};
    if (item->isEnabled != wanted) {
        if (const auto now = co_await state->toggleStartupItem(*item))
            result.item = now;
        result.toast = session->toast();
    }
    session->print(result);
    co_return result.item->isEnabled == wanted ? ExitStatus::done : ExitStatus::failed;
}

QCoro::Task<ExitStatus> Commands::showStats(SessionPointer session)
{
    AppState *state = &session->state();
    // The load is what happens between two looks; a temperature, which takes its time, arrives in between.
    state->refreshSystemStats();
    co_await pause(session, kSampleTime);
    state->refreshSystemStats();
    state->refreshAvailableDisk();
    session->print(StatsResult{.cpuUsage = state->cpuUsage(),
                               .memoryUsed = known(state->memoryUsed()),
                               .memoryTotal = known(state->memoryTotal()),
                               .availableDisk = state->availableDisk(),
                               .diskTemperature = state->diskTemperature()});
    co_return session->isInterrupted() ? ExitStatus::interrupted : ExitStatus::done;
}

QCoro::Task<ExitStatus> Commands::checkForUpdates(SessionPointer session)
{
    if (const auto address = session->state().appcastURL(); !address)
        session->complain(address.error());
    const auto check = std::make_shared<UpdateCheck>();
    check->over.start();
    QObject::connect(&session->interruption(), &Interruption::interrupted, session.get(),
                     [check] { check->over.finish(); });
    detach(runCheck(session, check));
    co_await check->over.future();
    session->print(UpdateResult{.info = session->state().updateInfo(), .toast = session->toast()});
    if (session->isInterrupted())
        co_return ExitStatus::interrupted;
    co_return check->outcome == UpdateOutcome::unreachable ? ExitStatus::failed : ExitStatus::done;
}

QCoro::Task<ExitStatus> Commands::showHistory(SessionPointer session)
{
    const std::optional<ExitStatus> trouble = scanTrouble(*session);
    if (!trouble || session->invocation().json)
        session->print(HistoryResult{session->state().activities()});
    co_return trouble.value_or(ExitStatus::done);
}

QCoro::Task<ExitStatus> Commands::editFolders(SessionPointer session)
{
    const Invocation &invocation = session->invocation();
    const std::optional<ExitStatus> trouble = scanTrouble(*session);
    if (!trouble && invocation.command == Command::addFolder) {
        const auto folder = Matching::locate(invocation.operands.first(), session->workingFolder());
        const auto found =
            folder.transform([](const FileURL &url) { return FileSystem::attributes(url, FileSystem::Root::follow); });
        if (!found || !*found || (*found)->kind != FileSystem::Kind::folder)
            co_return session->refuse(u"no directory: \""_s + escaped(invocation.operands.first()) + u'"');
        addFolder(*session, *folder);
    }
    if (!trouble && invocation.command == Command::removeFolder) {
        if (const auto folder = savedFolder(*session, invocation.operands.first()))
            removeFolder(*session, *folder);
    }
    if (!trouble || invocation.json)
        session->print(FoldersResult{foldersOf(*session)});
    co_return trouble.value_or(ExitStatus::done);
}

QCoro::Task<ExitStatus> carryOut(const SessionPointer &session)
{
    switch (session->invocation().command) {
    case Command::scanJunk:
        return Commands::scanJunk(session);
    case Command::scanLargeFiles:
        return Commands::scanLargeFiles(session);
    case Command::scanDuplicates:
        return Commands::scanDuplicates(session);
    case Command::scanApps:
        return Commands::scanApps(session);
    case Command::scanStartup:
        return Commands::scanStartup(session);
    case Command::scanAll:
        return Commands::scanAll(session);
    case Command::cleanJunk:
        return Commands::cleanJunk(session);
    case Command::removeLargeFiles:
        return Commands::removeLargeFiles(session);
    case Command::removeDuplicates:
        return Commands::removeDuplicates(session);
    case Command::uninstall:
        return Commands::uninstall(session);
    case Command::startupEnable:
    case Command::startupDisable:
        return Commands::switchStartupItem(session);
    case Command::startupRemove:
        return Commands::removeStartupItem(session);
    case Command::stats:
        return Commands::showStats(session);
    case Command::history:
        return Commands::showHistory(session);
    case Command::listFolders:
    case Command::addFolder:
    case Command::removeFolder:
        return Commands::editFolders(session);
    case Command::update:
        return Commands::checkForUpdates(session);
    }
    Q_UNREACHABLE();
}

} // namespace CommandLine
