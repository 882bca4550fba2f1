// SPDX-License-Identifier: MIT
#include "Services/TrashService.h"

#include "Platform/FileSystem.h"
#include "Platform/Platform.h"
#include "Services/RemovalGuard.h"

#include <memory>
#include <system_error>
#include <utility>

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

    void expect(const QList<TrashService::Item> &items)
    {
        QList<FileURL> urls;
        urls.reserve(items.size());
        for (const TrashService::Item &item : items)
            urls.append(item.url);
        m_batch->expect(urls);
    }

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

constexpr qsizetype kManyItems = 256; // worth being made ready for

} // namespace

TrashResult TrashService::trash(const Platform &platform, const QList<Item> &items, const CancelToken &cancel)
{
    if (items.isEmpty())
        return {};
    Run run(platform, cancel);
    if (items.size() >= kManyItems)
        run.expect(items);
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
