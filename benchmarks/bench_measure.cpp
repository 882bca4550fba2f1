// SPDX-License-Identifier: MIT
// bench_measure FOLDER: the bytes on disk of all that lies below a folder, as an application's details measure it. A
// program of its own, because the command that measures does more than that.

#include "Platform/FileSystem.h"

#include <cstdio>
#include <optional>

int main(int count, char **values)
{
    const std::optional<FileURL> folder = count == 2 ? FileURL::fromPath(values[1]) : std::nullopt;
    if (!folder) {
        std::fputs("usage: bench_measure FOLDER (an absolute path)\n", stderr);
        return 2;
    }
    const auto measured = FileSystem::measure(*folder, FileSystem::Hidden::include, CancelToken());
    if (!measured) {
        std::fprintf(stderr, "%s\n", measured.error().message().c_str());
        return 1;
    }
    std::printf("%lld\n", measured->allocated);
    return 0;
}
