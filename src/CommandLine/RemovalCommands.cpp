// SPDX-License-Identifier: MIT
#include "CommandLine/Commands.h"
#include "CommandLine/Matching.h"
#include "CommandLine/Printer.h"
#include "Models/CheckedSum.h"
#include "State/Confirmations.h"
#include "State/Selections.h"
#include "Support/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// What a command is about to remove, as the scan listed it. The question is only put together when it is asked.
struct Plan {
    QList<RemovedItem> items;
    std::function<ConfirmData()> question;
};

template <typename File>
void appendItems(QList<RemovedItem> &items, const QList<File> &files)
{
    for (const File &file : files)
        items.append({.url = file.url, .size = file.size});
}

template <typename File>
QSet<FileURL> urlSet(const QList<File> &files)
{
    QSet<FileURL> urls;
    urls.reserve(files.size());
    for (const File &file : files)
        urls.insert(file.url);
    return urls;
}

/// Whether the answer is a list with an object for each category.
bool answersByCategory(const Invocation &invocation)
{
    return invocation.command == Command::cleanJunk && invocation.categories.size() != 1;
}

/// The command's answer when nothing went.
Result nothing(const Invocation &invocation)
{
    if (invocation.dryRun)
        return DryRunResult{};
    if (answersByCategory(invocation))
        return CategoriesResult{};
    return RemovalResult{};
}

/// Ends a command before it removed anything.
ExitStatus endWithNothing(Session &session, ExitStatus status)
{
    if (session.invocation().json)
        session.print(nothing(session.invocation()));
    return status;
}

/// What ends the command before its list is even looked at.
std::optional<ExitStatus> endedByScan(Session &session)
{
    const std::optional<ExitStatus> trouble = Commands::scanTrouble(session);
    if (trouble)
        (void)endWithNothing(session, *trouble);
    return trouble;
}

/// All that lies between a list and its removal: nothing in it, a dry run, nobody to ask, a no. Absent: remove it.
std::optional<ExitStatus> endedBefore(Session &session, const Plan &plan)
{
    const Invocation &invocation = session.invocation();
    if (invocation.dryRun) {
        session.print(DryRunResult{.items = plan.items, .bytes = checkedTotal(plan.items, [](const RemovedItem &item) {
                                                            return item.size.value_or(0);
                                                        })});
        return ExitStatus::done;
    }
    if (plan.items.isEmpty()) {
        session.print(nothing(invocation));
        return ExitStatus::done;
    }
    if (!invocation.yes) {
        if (!session.canAsk())
            return session.refuse(u"there is no terminal to ask on; give --yes to remove without being asked"_s);
        if (!session.isAccepted(plan.question())) {
            session.complain(Text::lookup(u"Nothing was removed."));
            return endWithNothing(session, session.isInterrupted() ? ExitStatus::interrupted : ExitStatus::failed);
        }
    }
    if (session.isInterrupted()) {
        session.complain(Text::lookup(u"Stopped."));
        return endWithNothing(session, ExitStatus::interrupted);
    }
    return std::nullopt;
}

bool hasTrouble(const RemovalReport &report)
{
    return report.alert.has_value() || !report.failed.isEmpty();
}

ExitStatus finish(Session &session, const Result &result, bool trouble)
{
    session.print(result);
    if (session.isInterrupted()) {
        session.complain(Text::lookup(u"Stopped."));
        return ExitStatus::interrupted;
    }
    return trouble ? ExitStatus::failed : ExitStatus::done;
}

/// The categories that are asked for, in their published order, each once.
QList<JunkCategory> chosenCategories(const Session &session)
{
    const QList<JunkCategory> &found = session.state().junkCategories();
    QList<JunkCategory> chosen;
    std::ranges::copy_if(found, std::back_inserter(chosen), [&session](const JunkCategory &category) {
        return session.invocation().all || session.invocation().categories.contains(category.name.toUtf8());
    });
    return chosen;
}

/// The copies that are asked for; an error when one is not listed, or a group would be left without any.
std::expected<QSet<FileURL>, QString> chosenCopies(const Session &session)
{
    const QList<DuplicateGroup> &groups = session.state().duplicateGroups();
    if (session.invocation().keepFirst)
        return Selections::allButFirst(groups);
    QSet<FileURL> listed;
    for (const DuplicateGroup &group : groups)
        listed.unite(urlSet(group.files));
    auto chosen = Matching::listedFiles(session.invocation().operands, session.workingFolder(), listed);
    if (!chosen)
        return chosen;
    if (const DuplicateGroup *group = Selections::groupWithoutACopyLeft(groups, *chosen)) {
        return std::unexpected(u"every copy of \""_s + escaped(group->files.first().url.path()) +
                               u"\" is given; leave at least one out"_s);
    }
    return chosen;
}

QList<RemovedItem> itemsOf(const QList<InstalledApp> &apps)
{
    QList<RemovedItem> items;
    for (const InstalledApp &app : apps)
        appendItems(items, app.relatedFiles);
    for (const InstalledApp &app : apps)
        items.append({.url = app.url, .size = app.bundleSize});
    return items;
}

QList<InstalledApp> appsAmong(const QList<InstalledApp> &apps, const QSet<FileURL> &bundles)
{
    QList<InstalledApp> chosen;
    std::ranges::copy_if(apps, std::back_inserter(chosen),
                         [&bundles](const InstalledApp &app) { return bundles.contains(app.url); });
    return chosen;
}

} // namespace

QCoro::Task<ExitStatus> Commands::cleanJunk(SessionPointer session)
{
    co_await session->state().scanJunkAsync();
    if (const auto status = endedByScan(*session))
        co_return *status;
    const QList<JunkCategory> chosen = chosenCategories(*session);
    Plan plan{.items = {}, .question = [chosen] { return Confirmations::cleanJunk(chosen); }};
    for (const JunkCategory &category : chosen)
        appendItems(plan.items, category.files);
    if (const auto status = endedBefore(*session, plan))
        co_return *status;

    CategoriesResult done;
    bool trouble = false;
    for (qsizetype i = 0; i < chosen.size() && !session->isInterrupted(); ++i) {
        RemovalReport report = co_await session->state().removeJunkCategory(chosen.at(i).id);
        trouble = trouble || hasTrouble(report);
        done.results.append({.category = chosen.at(i).name, .report = std::move(report)});
    }
    if (answersByCategory(session->invocation()))
        co_return finish(*session, done, trouble);
    co_return finish(*session, RemovalResult{done.results.value(0).report}, trouble);
}

QCoro::Task<ExitStatus> Commands::removeLargeFiles(SessionPointer session)
{
    co_await lookForLargeFiles(session);
    if (const auto status = endedByScan(*session))
        co_return *status;
    const QList<LargeFile> listed = session->state().largeFiles();
    const std::expected<QSet<FileURL>, QString> chosen =
        session->invocation().all
            ? urlSet(listed)
            : Matching::listedFiles(session->invocation().operands, session->workingFolder(), urlSet(listed));
    if (!chosen)
        co_return session->refuse(chosen.error());
    QList<LargeFile> files;
    std::ranges::copy_if(listed, std::back_inserter(files),
                         [&chosen](const LargeFile &file) { return chosen->contains(file.url); });
    Plan plan{.items = {}, .question = [files] { return Confirmations::removeLargeFiles(files); }};
    appendItems(plan.items, files);
    if (const auto status = endedBefore(*session, plan))
        co_return *status;
    const RemovalReport report = co_await session->state().removeLargeFiles(*chosen);
    co_return finish(*session, RemovalResult{report}, hasTrouble(report));
}

QCoro::Task<ExitStatus> Commands::removeDuplicates(SessionPointer session)
{
    co_await lookForDuplicates(session);
    if (const auto status = endedByScan(*session))
        co_return *status;
    const std::expected<QSet<FileURL>, QString> chosen = chosenCopies(*session);
    if (!chosen)
        co_return session->refuse(chosen.error());
    const QList<DuplicateGroup> groups = session->state().duplicateGroups();
    const QList<DuplicateFile> files = Selections::selectedFiles(groups, *chosen);
    Plan plan{.items = {}, .question = [files] { return Confirmations::removeDuplicates(files); }};
    appendItems(plan.items, files);
    if (const auto status = endedBefore(*session, plan))
        co_return *status;
    const RemovalReport report = co_await session->state().removeDuplicates(*chosen, groups);
    co_return finish(*session, RemovalResult{report}, hasTrouble(report));
}

QCoro::Task<ExitStatus> Commands::uninstall(SessionPointer session)
{
    AppState *state = &session->state();
    co_await state->scanApps();
    if (const auto status = endedByScan(*session))
        co_return *status;
    const std::expected<QSet<FileURL>, QString> bundles =
        Matching::bundles(session->invocation().operands, session->workingFolder(), state->apps());
    if (!bundles)
        co_return session->refuse(bundles.error());
    // Nobody waits for the details of other applications than these.
    const std::function<bool()> areDetailed = [state, chosen = *bundles] {
        return !state->appDetailsLoading() ||
               std::ranges::all_of(appsAmong(state->apps(), chosen), &InstalledApp::detailed);
    };
    co_await until(session, areDetailed);
    if (const auto status = endedByScan(*session))
        co_return *status;
    state->stopScans();

    const QList<InstalledApp> apps = appsAmong(state->apps(), *bundles);
    const Plan plan{.items = itemsOf(apps), .question = [apps] { return Confirmations::uninstall(apps); }};
    if (const auto status = endedBefore(*session, plan))
        co_return *status;
    const RemovalReport report = co_await state->uninstallApps(*bundles);
    co_return finish(*session, RemovalResult{report}, hasTrouble(report));
}

QCoro::Task<ExitStatus> Commands::removeStartupItem(SessionPointer session)
{
    AppState *state = &session->state();
    co_await state->scanStartupItems();
    if (const auto status = endedByScan(*session))
        co_return *status;
    const std::optional<StartupItem> item = listedStartupItem(*session);
    if (!item)
        co_return session->refuse(u"no such startup item: \""_s + escaped(session->invocation().operands.first()) +
                                  u'"');
    const Plan plan{.items = {{.url = item->path, .size = {}}},
                    .question = [item] { return Confirmations::removeStartupItem(*item); }};
    if (const auto status = endedBefore(*session, plan))
        co_return *status;
    const RemovalReport report = co_await state->removeStartupItem(*item);
    co_return finish(*session, RemovalResult{report}, hasTrouble(report));
}

} // namespace CommandLine
