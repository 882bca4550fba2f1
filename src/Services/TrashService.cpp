// SPDX-License-Identifier: MIT
#include "Services/TrashService.h"

#include "Platform/FileSystem.h"
#include "Platform/Platform.h"
#include "Services/RemovalGuard.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace {

/// One call of the service, with what its items share.
class Run
{
public:
    Run(const Platform &platform, const CancelToken &cancel)
        : m_guard(*platform.places)
        , m_batch(platform.trashCan->begin())
        , m_cancel(cancel)
    {
    }

    [[nodiscard]] bool isStopped() const { return m_cancel.isCancelled(); }
    [[nodiscard]] TrashResult &result() { return m_result; }

    void trash(const TrashService::Item &item)
    {
        const std::error_code guarded = m_guard.objection(item.url);
        const std::error_code failure = guarded ? guarded : move(item.url);
        if (!failure) {
            m_result.removed.append(item.url);
            return;
        }
        const QList<FileSystem::Entry> children =
            guarded || item.whole == Whole::Yes ? QList<FileSystem::Entry>{} : childrenOf(item.url);
        if (children.isEmpty())
            m_result.failed.append({.url = item.url, .error = failure});
        else
            takeApart(item.url, children);
    }

    void remove(const FileURL &item)
    {
        if (const std::error_code guarded = m_guard.objection(item)) {
            m_result.failed.append({.url = item, .error = guarded});
            return;
        }
        const auto removed = m_batch->removeForGood(item, m_cancel);
        if (removed)
            m_result.removed.append(item);
        else if (removed.error() == std::errc::operation_canceled && isStopped())
            m_result.notReached.append(item);
        else
            m_result.failed.append({.url = item, .error = removed.error()});
    }

private:
    std::error_code move(const FileURL &item)
    {
        const auto moved = m_batch->moveToTrash(item);
        return moved ? std::error_code() : moved.error();
    }

    static QList<FileSystem::Entry> childrenOf(const FileURL &item)
    {
        return FileSystem::list(item, FileSystem::Hidden::include, FileSystem::Want::kinds,
                                FileSystem::Root::doNotFollow)
            .value_or(QList<FileSystem::Entry>{});
    }

    void takeApart(const FileURL &folder, const QList<FileSystem::Entry> &children)
    {
        QList<FileURL> gone;
        for (const FileSystem::Entry &entry : children) {
            if (isStopped()) {
                m_result.removed += gone;
                m_result.notReached.append(folder);
                return;
            }
            const FileURL child = folder.child(entry.name);
            std::error_code failure = m_guard.objection(child);
            if (!failure)
                failure = move(child);
            if (failure)
                m_result.failed.append({.url = child, .error = failure});
            else
                gone.append(child);
        }
        // What becomes of the folder itself is no failure: all that could be said of it was said of its children.
        if (move(folder))
            m_result.removed += gone;
        else
            m_result.removed.append(folder);
    }

    RemovalGuard m_guard;
    std::unique_ptr<TrashBatch> m_batch;
    const CancelToken &m_cancel;
    TrashResult m_result;
};

constexpr qsizetype kManyItems = 512; // below, a second thread costs more than it gives
constexpr size_t kWorkers = 2;        // the folders of a Trash take one change each at a time

/// Whether no item lies within another, so that their order does not matter.
bool areApart(const QList<TrashService::Item> &items)
{
    QSet<FileURL> all;
    all.reserve(items.size());
    for (const TrashService::Item &item : items)
        all.insert(item.url);
    if (all.size() != items.size())
        return false;
    QHash<FileURL, bool> clear; // folders, and whether neither they nor what holds them is an item
    const auto isClear = [&](auto &self, const FileURL &folder) -> bool {
        if (const auto known = clear.constFind(folder); known != clear.cend())
            return *known;
        const bool answer = !all.contains(folder) && (folder == FileURL::root() || self(self, folder.parent()));
        clear.insert(folder, answer);
        return answer;
    };
    return std::ranges::all_of(items, [&](const TrashService::Item &item) {
        return item.whole == Whole::No && item.url != FileURL::root() && isClear(isClear, item.url.parent());
    });
}

void append(TrashResult &all, const TrashResult &more)
{
    all.removed += more.removed;
    all.failed += more.failed;
    all.notReached += more.notReached;
}

/// Two threads move what has nothing to do with each other; items of one name stay with one, which numbers them. The
/// answer is in the order of the items.
TrashResult trashMany(const Platform &platform, const QList<TrashService::Item> &items, const CancelToken &cancel)
{
    std::vector<TrashResult> outcomes(static_cast<size_t>(items.size()));
    // They end one after the other: what a batch does last is the Trash's as a whole.
    std::array<std::optional<Run>, kWorkers> runs;
    const auto work = [&](size_t worker) {
        Run &run = runs.at(worker).emplace(platform, cancel);
        for (size_t at = 0; at < outcomes.size(); ++at) {
            const TrashService::Item &item = items.at(static_cast<qsizetype>(at));
            if (qHash(item.url.name()) % kWorkers != worker)
                continue;
            if (run.isStopped())
                run.result().notReached.append(item.url);
            else
                run.trash(item);
            outcomes[at] = std::exchange(run.result(), {});
        }
    };
    std::thread second;
    try {
        second = std::thread(work, 1);
    } catch (const std::system_error &) {
        work(1); // the system has no thread to spare: one after the other, then
    }
    work(0);
    if (second.joinable())
        second.join();

    TrashResult all;
    for (const TrashResult &outcome : outcomes)
        append(all, outcome);
    return all;
}

} // namespace

TrashResult TrashService::trash(const Platform &platform, const QList<Item> &items, const CancelToken &cancel)
{
    if (items.isEmpty())
        return {};
    if (items.size() >= kManyItems && areApart(items))
        return trashMany(platform, items, cancel);
    Run run(platform, cancel);
    for (const Item &item : items) {
        if (run.isStopped())
            run.result().notReached.append(item.url);
        else
            run.trash(item);
    }
    return run.result();
}

TrashResult TrashService::trash(const Platform &platform, const QList<FileURL> &items, const CancelToken &cancel)
{
    QList<Item> list;
    list.reserve(items.size());
    for (const FileURL &item : items)
        list.append({.url = item});
    return trash(platform, list, cancel);
}

TrashResult TrashService::deletePermanently(const Platform &platform, const QList<FileURL> &items,
                                            const CancelToken &cancel)
{
    if (items.isEmpty())
        return {};
    Run run(platform, cancel);
    for (const FileURL &item : items) {
        if (run.isStopped())
            run.result().notReached.append(item);
        else
            run.remove(item);
    }
    return run.result();
}
