// SPDX-License-Identifier: MIT
// bench_duplicates FOLDER: what a duplicate scan cost, as the engine counts it, in one JSON object.

#include "Services/DuplicateScanService.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <optional>

int main(int count, char **values)
{
    const QCoreApplication application(count, values);
    const std::optional<FileURL> folder = count == 2 ? FileURL::fromPath(values[1]) : std::nullopt;
    const std::optional<FileURL> temporary = FileURL::fromPath(QFile::encodeName(QDir::tempPath()));
    if (!folder || !temporary) {
        std::fputs("usage: bench_duplicates FOLDER (an absolute path)\n", stderr);
        return 2;
    }
    DuplicateScanService::Counters counters;
    const QList<DuplicateGroup> groups = DuplicateScanService::scanSync(
        {.folders = {*folder}, .logFolder = *temporary, .counters = &counters}, [](const QString &) {}, CancelToken());
    qint64 groupBytes = 0;
    for (const DuplicateGroup &group : groups)
        groupBytes += group.files.first().size;
    std::printf(
        R"({"groups":%lld,"groupBytes":%lld,"candidates":%lld,"opens":%lld,"bytesRead":%lld,"bytesHashed":%lld})"
        "\n",
        static_cast<long long>(groups.size()), groupBytes, counters.candidates, counters.opens, counters.bytesRead,
        counters.bytesHashed);
    return 0;
}
