// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Support/CancelToken.h"

#include <QByteArray>

#include <functional>
#include <vector>

/// Finds out which files have the same content by comparing their bytes, reading no more than that takes.
namespace DuplicateCompare {

/// One path of a file whose content may be that of another.
struct Candidate {
    FileURL url;
    qint64 size = 0; // logical bytes
    quint64 device = 0;
    quint64 inode = 0;
    quint64 links = 1; // how many names the file has on its disk
};

/// What comparing may use of the machine.
struct Limits {
    int workers = 2;       // threads that compare and hash whole files
    int readers = 6;       // threads that read the beginnings of files; they mostly wait for the disk
    int descriptors = 256; // files open at one time, about
    qint64 memory = 0;     // bytes of content kept at one time beyond the working buffers
};

/// Limits that suit this machine and so many candidates.
[[nodiscard]] Limits limitsFor(int processors, qsizetype candidates);

/// What comparing cost.
struct Cost {
    qint64 opens = 0;
    qint64 bytesRead = 0;
    qint64 bytesHashed = 0; // given to SHA-256
};

/// Two or more candidates of equal content.
struct EqualSet {
    std::vector<qsizetype> members; // positions in the list of candidates, ascending
    QByteArray digest;              // the 32 bytes of their SHA-256
};

/// Told how many more candidates are settled: found equal to others, or to none. Called on several threads.
using Settled = std::function<void(qint64)>;

/// The sets of equal files among the candidates, in the order of their first members. Files that vanish, cannot be
/// read or change meanwhile are in no set. Cancelled, it answers with what it has within a block's time. `cost` is
/// filled when given. Any thread.
[[nodiscard]] std::vector<EqualSet> equalSets(const std::vector<Candidate> &candidates, const Limits &limits,
                                              const Settled &settled, const CancelToken &cancel, Cost *cost = nullptr);

} // namespace DuplicateCompare
