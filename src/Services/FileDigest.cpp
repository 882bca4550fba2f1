// SPDX-License-Identifier: MIT
#include "Services/FileDigest.h"

#include "Services/DuplicateScanService.h"

#include <algorithm>
#include <memory>

using DuplicateScanService::kChunk;

std::optional<QByteArray> FileDigest::ofOpenFile(const Sha256 &algorithm, int descriptor,
                                                 const FileReading::Stamp &stamp, const CancelToken &cancel,
                                                 const Hashed &hashed)
{
    const auto size = static_cast<size_t>(std::min(kChunk, stamp.size));
    const auto chunk = std::make_unique_for_overwrite<char[]>(size);
    return ofOpenFile(algorithm, descriptor, stamp, std::span(chunk.get(), size), cancel, hashed);
}

std::optional<QByteArray> FileDigest::ofOpenFile(const Sha256 &algorithm, int descriptor,
                                                 const FileReading::Stamp &stamp, std::span<char> chunk,
                                                 const CancelToken &cancel, const Hashed &hashed)
{
    Sha256::Run run(algorithm);
    for (qint64 done = 0; done < stamp.size;) {
        const qint64 size = std::min(kChunk, stamp.size - done);
        if (cancel.isCancelled() || FileReading::readAt(descriptor, chunk.data(), size, done) != size)
            return std::nullopt;
        run.add({chunk.data(), size});
        if (hashed)
            hashed(size);
        done += size;
    }
    return FileReading::stampOf(descriptor) == stamp ? std::optional{run.finish()} : std::nullopt;
}
