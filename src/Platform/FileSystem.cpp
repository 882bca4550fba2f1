// SPDX-License-Identifier: MIT
#include "Platform/FileSystem.h"

#include "Platform/Descriptor.h"
#include "Platform/FolderPrimitives.h"
#include "Platform/FolderTree.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>

namespace {

using namespace FileSystem;
using FolderPrimitives::FolderStream;
using FolderPrimitives::RawEntry;

constexpr size_t kBlock = 64 * 1024;

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

/// An item as the system's calls take it: a path that is short enough, seen from a folder.
struct Reached {
    Descriptor holder; // open when the way was too long for one step
    QByteArray path;
    [[nodiscard]] int folder() const { return holder.isOpen() ? holder.get() : AT_FDCWD; }
};

std::expected<Reached, std::error_code> reach(const FileURL &item)
{
    constexpr qsizetype longest = PATH_MAX - 1;
    Reached reached{.holder = {}, .path = item.path()};
    while (reached.path.size() > longest) {
        const qsizetype slash = reached.path.lastIndexOf('/', longest);
        if (slash <= 0)
            return std::unexpected(std::make_error_code(std::errc::filename_too_long));
        const QByteArray step = reached.path.first(slash);
        Descriptor next(::openat(reached.folder(), step.constData(), FolderPrimitives::passThroughFlags() | O_CLOEXEC));
        if (!next.isOpen())
            return std::unexpected(lastError());
        reached.holder = std::move(next);
        reached.path = reached.path.sliced(slash + 1);
    }
    return reached;
}

std::expected<Descriptor, std::error_code> opened(const FileURL &item, int flags)
{
    const auto reached = reach(item);
    if (!reached)
        return std::unexpected(reached.error());
    const bool reads = (flags & O_ACCMODE) == O_RDONLY;
    Descriptor made(reads ? FolderPrimitives::openQuietly(reached->folder(), reached->path.constData(), flags)
                          : ::openat(reached->folder(), reached->path.constData(), flags | O_CLOEXEC));
    if (!made.isOpen())
        return std::unexpected(lastError());
    return made;
}

std::expected<Descriptor, std::error_code> openFolder(const FileURL &folder, Root root)
{
    return opened(folder, O_RDONLY | O_DIRECTORY | (root == Root::follow ? 0 : O_NOFOLLOW));
}

bool wants(Want want, const RawEntry &entry)
{
    if (want == Want::everything || !entry.kind)
        return true;
    return want == Want::files && entry.kind == Kind::regular;
}

/// The entry with what was asked for of it; nothing when its kind cannot be told.
std::optional<Entry> completed(int folder, const RawEntry &raw, Want want)
{
    Entry entry{.name = QByteArray(raw.name, static_cast<qsizetype>(raw.length)),
                .kind = raw.kind.value_or(Kind::other),
                .attributes = {}};
    if (wants(want, raw)) {
        entry.attributes = FolderPrimitives::attributesAt(folder, raw.name, false);
        if (entry.attributes)
            entry.kind = entry.attributes->kind;
        else if (!raw.kind)
            return std::nullopt;
    }
    return entry;
}

std::expected<QList<Entry>, std::error_code> listOpen(int folder, Hidden hidden, Want want)
{
    const auto block = std::make_unique_for_overwrite<char[]>(kBlock);
    FolderStream stream(folder, {block.get(), kBlock});
    QList<Entry> entries;
    RawEntry raw;
    while (stream.next(raw)) {
        if (hidden == Hidden::skip && raw.name[0] == '.')
            continue;
        if (auto entry = completed(folder, raw, want))
            entries.append(*std::move(entry));
    }
    if (stream.error() != 0 && entries.isEmpty())
        return std::unexpected(std::error_code(stream.error(), std::generic_category()));
    return entries;
}

} // namespace

QDateTime FileSystem::dateTime(qint64 nanoseconds)
{
    constexpr qint64 perMillisecond = 1'000'000;
    const qint64 rest = nanoseconds % perMillisecond;
    return QDateTime::fromMSecsSinceEpoch(nanoseconds / perMillisecond - (rest < 0 ? 1 : 0), Qt::UTC);
}

std::expected<Attributes, std::error_code> FileSystem::attributes(const FileURL &item, Root root)
{
    const auto reached = reach(item);
    if (!reached)
        return std::unexpected(reached.error());
    const auto found =
        FolderPrimitives::attributesAt(reached->folder(), reached->path.constData(), root == Root::follow);
    if (!found)
        return std::unexpected(lastError());
    return *found;
}

bool FileSystem::exists(const FileURL &item)
{
    return attributes(item).has_value();
}

FileURL FileSystem::resolved(const FileURL &item)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(item.path().constData(), nullptr), &std::free);
    return real ? FileURL::fromCleanPath(QByteArray(real.get())) : item;
}

std::expected<QList<Entry>, std::error_code> FileSystem::list(const FileURL &folder, Hidden hidden, Want want,
                                                              Root root)
{
    const auto descriptor = openFolder(folder, root);
    if (!descriptor)
        return std::unexpected(descriptor.error());
    return listOpen(descriptor->get(), hidden, want);
}

std::expected<QByteArray, std::error_code> FileSystem::read(const FileURL &file, qint64 limit)
{
    // Opening a pipe or a device can block or set something off: only a regular file is opened at all. It may be
    // swapped in between, so the open does not block and what was opened is looked at again.
    const auto before = attributes(file);
    if (!before)
        return std::unexpected(before.error());
    if (before->kind != Kind::regular)
        return std::unexpected(std::make_error_code(std::errc::invalid_argument));
    const auto descriptor = opened(file, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
    if (!descriptor)
        return std::unexpected(descriptor.error());
    const auto after = FolderPrimitives::attributesOf(descriptor->get());
    if (!after || after->kind != Kind::regular)
        return std::unexpected(std::make_error_code(std::errc::invalid_argument));

    QByteArray content;
    while (content.size() < limit) {
        constexpr qint64 step = 64 * 1024;
        const qsizetype had = content.size();
        content.resize(had + std::min(step, limit - had));
        const ssize_t got = ::read(descriptor->get(), content.data() + had, static_cast<size_t>(content.size() - had));
        const int error = errno;
        content.resize(had + std::max<ssize_t>(got, 0));
        if (got < 0 && error == EINTR)
            continue;
        if (got < 0)
            return std::unexpected(std::error_code(error, std::generic_category()));
        if (got == 0)
            break;
    }
    return content;
}

void FileSystem::walk(const FileURL &root, const WalkOptions &options, Visitor &visitor, const CancelToken &cancel)
{
    if (cancel.isCancelled())
        return;
    visitor.folder(root, 0);
    if (options.levels <= 0)
        return;
    auto descriptor = openFolder(root, options.root);
    if (!descriptor)
        return;
    FolderTree tree(root, *std::move(descriptor), options, FolderTree::Purpose::walk, cancel);
    FolderTree::Folder *folder = &tree.root();
    FileURL url = root;
    while (folder && !cancel.isCancelled()) {
        if (folder->delivered == folder->records.size()) {
            FolderTree::Folder *parent = folder->parent;
            tree.leave(*folder);
            folder = parent;
            url = FileURL();
            continue;
        }
        if (url.isEmpty())
            url = tree.urlOf(*folder);
        const FolderTree::Record &record = folder->records[folder->delivered++];
        const bool isKnown = record.attributes != FolderTree::Record::kNone;
        visitor.entry(url, {.name = {folder->names.data() + record.name, record.length},
                            .kind = record.kind,
                            .attributes = isKnown ? &folder->attributes[record.attributes] : nullptr});
        if (!record.isEntered)
            continue;
        folder = tree.next(*folder);
        if (folder) {
            url = tree.urlOf(*folder);
            visitor.folder(url, folder->depth);
        }
    }
}

std::expected<Measure, std::error_code> FileSystem::measure(const FileURL &folder, Hidden hidden,
                                                            const CancelToken &cancel, Root root)
{
    auto descriptor = openFolder(folder, root);
    if (!descriptor)
        return std::unexpected(descriptor.error());
    const WalkOptions options{.hidden = hidden, .want = Want::everything};
    FolderTree tree(folder, *std::move(descriptor), options, FolderTree::Purpose::measure, cancel);
    const Measure sum = tree.sum();
    if (tree.rootError() != 0 && sum.entries == 0)
        return std::unexpected(std::error_code(tree.rootError(), std::generic_category()));
    return sum;
}

std::expected<int, std::error_code> FileSystem::openItem(const FileURL &item, int flags)
{
    auto descriptor = opened(item, flags | O_NOFOLLOW);
    if (!descriptor)
        return std::unexpected(descriptor.error());
    return descriptor->release();
}
