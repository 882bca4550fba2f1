// SPDX-License-Identifier: MIT
#include "Services/LargeFileScanService.h"

#include "Platform/FileSystem.h"
#include "Support/Text.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr qint64 kProgressStep = 500; // checked files between two progress texts

/// Keeps what is large enough, in the order found.
class Finder : public FileSystem::Visitor
{
public:
    Finder(qint64 minSize, const Progress &progress)
        : m_minSize(minSize)
        , m_progress(progress)
    {
    }

    void entry(const FileURL &folder, const FileSystem::EntryView &entry) override
    {
        if (entry.kind != FileSystem::Kind::regular || !entry.attributes)
            return;
        const qint64 size = entry.attributes->size.value_or(0);
        if (size >= m_minSize)
            keep(folder.child(entry.name), size, entry.attributes->modified);
        if (++m_checked % kProgressStep == 0)
            report(m_progress, Text::filled(u"Scanning… %lld files checked", {m_checked}));
    }

    QList<LargeFile> found;

private:
    void keep(FileURL url, qint64 size, qint64 modified)
    {
        // A folder that changes while it is read may name an entry twice.
        const qsizetype before = m_seen.size();
        m_seen.insert(url);
        if (m_seen.size() > before)
            found.append({.url = std::move(url), .size = size, .modified = FileSystem::dateTime(modified)});
    }

    qint64 m_minSize;
    const Progress &m_progress;
    qint64 m_checked = 0;
    QSet<FileURL> m_seen;
};

bool isTakenApart(const FileURL &, QByteArrayView name, FileSystem::Kind)
{
    return name != "Library" && name != ".Trash" && !ScanRules::isOpaque(name);
}

} // namespace

QList<LargeFile> LargeFileScanService::scanSync(const Options &options, const Progress &progress,
                                                const CancelToken &cancel)
{
    report(progress, Text::lookup(u"Scanning for large files…"));
    Finder finder(options.minSize, progress);
    for (const FileURL &folder : deduplicateFolders(options.folders))
        FileSystem::walk(folder, {.takes = isTakenApart}, finder, cancel);
    std::stable_sort(finder.found.begin(), finder.found.end(),
                     [](const LargeFile &a, const LargeFile &b) { return a.size > b.size; });
    return finder.found;
}
