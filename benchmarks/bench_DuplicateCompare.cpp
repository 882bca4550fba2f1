// SPDX-License-Identifier: MIT
// Micro benchmarks of comparing files, on files that they make themselves below TMPDIR. All lie in the page cache.

#include "Services/DuplicateCompare.h"
#include "Services/Sha256.h"

#include <QByteArray>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

#include <random>
#include <stdexcept>
#include <vector>

namespace {

using DuplicateCompare::Candidate;

/// Files of `size` bytes and a little more, `copies` of each content.
class Files
{
public:
    Files(int contents, int copies, qsizetype size)
    {
        std::mt19937_64 random(1);
        for (int which = 0; which < contents; ++which) {
            QByteArray content(size + which % 97, Qt::Uninitialized);
            for (char &byte : content)
                byte = static_cast<char>(random());
            for (int copy = 0; copy < copies; ++copy)
                write(QByteArray::number(which) + '-' + QByteArray::number(copy), content);
        }
    }
    [[nodiscard]] const std::vector<Candidate> &candidates() const { return m_candidates; }

private:
    void write(const QByteArray &name, const QByteArray &content)
    {
        const FileURL file = FileURL::fromPath(m_folder.path().toUtf8()).value().child(name);
        const int fd = ::open(file.path().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0 || ::write(fd, content.constData(), static_cast<size_t>(content.size())) != content.size())
            throw std::runtime_error("no file could be made for the benchmark");
        ::close(fd);
        m_candidates.push_back({.url = file, .size = content.size()});
    }

    QTemporaryDir m_folder;
    std::vector<Candidate> m_candidates;
};

void compare(benchmark::State &state, const Files &files)
{
    const auto count = static_cast<qsizetype>(files.candidates().size());
    const auto limits = DuplicateCompare::limitsFor(QThread::idealThreadCount(), count);
    for ([[maybe_unused]] const auto turn : state)
        benchmark::DoNotOptimize(DuplicateCompare::equalSets(files.candidates(), limits, [](qint64) {}, {}));
    state.SetItemsProcessed(state.iterations() * count);
}

void BM_SmallPairs(benchmark::State &state)
{
    compare(state, Files(4'000, 2, 8'000));
}

void BM_SmallDifferentFilesOfSharedSizes(benchmark::State &state)
{
    compare(state, Files(97 * 80, 1, 8'000));
}

void BM_MediumPairs(benchmark::State &state)
{
    compare(state, Files(1'000, 2, 60'000));
}

void BM_ManyCopies(benchmark::State &state)
{
    compare(state, Files(1, 4'000, 40'000));
}

void BM_OneLargePair(benchmark::State &state)
{
    compare(state, Files(1, 2, 200'000'000));
}

void BM_Digest(benchmark::State &state)
{
    const QByteArray content(state.range(0), 'x');
    const Sha256 algorithm;
    for ([[maybe_unused]] const auto turn : state) {
        Sha256::Run run(algorithm);
        run.add(content);
        benchmark::DoNotOptimize(run.finish());
    }
    state.SetBytesProcessed(state.iterations() * content.size());
}

BENCHMARK(BM_SmallPairs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_SmallDifferentFilesOfSharedSizes)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_MediumPairs)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ManyCopies)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_OneLargePair)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Digest)->Arg(8'192)->Arg(1'048'576);

} // namespace

BENCHMARK_MAIN();
