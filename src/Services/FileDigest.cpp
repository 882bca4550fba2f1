// SPDX-License-Identifier: MIT
#include "Services/FileDigest.h"

#include "Services/DuplicateScanService.h"

#include <algorithm>
#include <memory>

std::optional<QByteArray> FileDigest::ofOpenFile(const Sha256 &algorithm, int descriptor,
                                                 const FileReading::Stamp &stamp, const CancelToken &cancel,
                                                 const Hashed &hashed)
{
    const qint64 largest = std::min(DuplicateScanService::kChunk, stamp.size);
    const auto chunk = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(largest));
    Sha256::Run run(algorithm);
    for (qint64 done = 0; done < stamp.size;) {
        const qint64 size = std::min(largest, stamp.size - done);
        if (cancel.isCancelled() || FileReading::readAt(descriptor, chunk.get(), size, done) != size)
            return std::nullopt;
        run.add({chunk.get(), size});
        if (hashed)
            hashed(size);
        done += size;
    }
    return FileReading::stampOf(descriptor) == stamp ? std::optional{run.finish()} : std::nullopt;
}
