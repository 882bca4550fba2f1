// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FileSystem.h"

#include <sys/stat.h>

#include <optional>
#include <span>

/// What reading folders needs of each operating system, and nothing else; only sources of Platform include this.
/// As with the system's own calls, a negative answer leaves the reason in errno.
namespace FolderPrimitives {

/// openat(2) that leaves the access time of what it opens alone, where the system allows it.
[[nodiscard]] int openQuietly(int folder, const char *path, int flags);

/// As `openQuietly`, and fails with ELOOP when any component of `path` is a link.
[[nodiscard]] int openWithoutLinks(int folder, const char *path, int flags);

/// The open(2) flags for a folder that is only gone through, which needs no right to list it.
[[nodiscard]] int passThroughFlags();

/// The attributes of an item, as one call of the system answers them; a link is followed only when told.
[[nodiscard]] std::optional<FileSystem::Attributes> attributesAt(int folder, const char *name, bool followLink);
[[nodiscard]] std::optional<FileSystem::Attributes> attributesOf(int descriptor);

/// An entry as the folder itself tells it. The name ends with a NUL byte and lasts until the next call.
struct RawEntry {
    const char *name = nullptr;
    size_t length = 0;
    std::optional<FileSystem::Kind> kind; // absent: the folder does not say
};

/// Reads an open folder once from its beginning, "." and ".." left out.
class FolderStream
{
public:
    /// `buffer` is what a block of entries is read into; one of 32 KiB or more pays.
    FolderStream(int descriptor, std::span<char> buffer)
        : m_descriptor(descriptor)
        , m_buffer(buffer)
    {
    }

    /// False at the end, and when the rest cannot be read: then `error` tells why.
    [[nodiscard]] bool next(RawEntry &entry);
    [[nodiscard]] int error() const { return m_error; }

private:
    int m_descriptor;
    std::span<char> m_buffer;
    size_t m_from = 0;
    size_t m_to = 0;
    int m_error = 0;
};

} // namespace FolderPrimitives
