// SPDX-License-Identifier: MIT
#include "Services/ScanRules.h"

#include "Platform/FileSystem.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<QByteArrayView, 13> kOpaqueEndings = {".photoslibrary",
                                                           ".photolibrary",
                                                           ".imovielibrary",
                                                           ".theater",
                                                           ".musiclibrary",
                                                           ".aplibrary",
                                                           ".fcpbundle",
                                                           ".migratedphotolibrary",
                                                           ".coverartlibrary",
                                                           ".app",
                                                           ".bundle",
                                                           ".framework",
                                                           ".xpc"};

} // namespace

QList<FileURL> ScanRules::deduplicateFolders(const QList<FileURL> &folders)
{
    QList<FileURL> kept;
    for (const FileURL &given : folders) {
        const FileURL folder = FileSystem::resolved(given);
        const auto holds = [&folder](const FileURL &other) { return folder == other || folder.isBelow(other); };
        if (std::any_of(kept.cbegin(), kept.cend(), holds))
            continue;
        const auto swallowed = [&folder](const FileURL &other) { return other.isBelow(folder); };
        const auto first = std::find_if(kept.begin(), kept.end(), swallowed);
        if (first == kept.end()) {
            kept.append(folder);
            continue;
        }
        *first = folder;
        kept.erase(std::remove_if(std::next(first), kept.end(), swallowed), kept.end());
    }
    return kept;
}

bool ScanRules::isOpaque(QByteArrayView name)
{
    // Each ending holds one dot, its first byte: what follows the last dot decides. Asked for every entry of a walk.
    const qsizetype dot = name.lastIndexOf('.');
    if (dot < 0)
        return false;
    const QByteArrayView ending = name.sliced(dot);
    return std::find(kOpaqueEndings.begin(), kOpaqueEndings.end(), ending) != kOpaqueEndings.end();
}
