// SPDX-License-Identifier: MIT
// Micro benchmarks of reading folders, on a tree of 40,000 files that they make themselves below TMPDIR.

#include "Platform/FileSystem.h"

#include <QByteArray>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {

using FileSystem::Hidden;
using FileSystem::Want;

void makeFiles(const FileURL &folder, int count)
{
    if (::mkdir(folder.path().constData(), 0755) != 0)
        throw std::runtime_error("no folder could be made for the benchmark");
    for (int i = 0; i < count; ++i) {
        const QByteArray file = folder.child("file " + QByteArray::number(i)).path();
        const int fd = ::open(file.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0)
            throw std::runtime_error("no file could be made for the benchmark");
        ::close(fd);
    }
}

/// 2,000 folders of ten files below twenty, and one folder of 20,000 files.
class BenchTree
{
public:
    BenchTree()
    {
        const char *base = std::getenv("TMPDIR");
        QByteArray path = QByteArray(base ? base : "/tmp") + "/brisko-bench-XXXXXX";
        if (!::mkdtemp(path.data()))
            throw std::runtime_error("no folder could be made for the benchmark");
        m_root = FileURL::fromPath(path).value();
        makeFiles(m_root.child("wide"), 20'000);
        for (int i = 0; i < 20; ++i) {
            const FileURL part = m_root.child(QByteArray::number(i));
            makeFiles(part, 0);
            for (int j = 0; j < 100; ++j)
                makeFiles(part.child("folder " + QByteArray::number(j)), 10);
        }
    }
    ~BenchTree()
    {
        const auto removeOne = [](const char *path, const struct stat *, int, FTW *) { return ::remove(path), 0; };
        ::nftw(m_root.path().constData(), removeOne, 16, FTW_DEPTH | FTW_PHYS | FTW_MOUNT);
    }
    Q_DISABLE_COPY_MOVE(BenchTree)
    [[nodiscard]] const FileURL &root() const { return m_root; }

private:
    FileURL m_root;
};

class Counter : public FileSystem::Visitor
{
public:
    void entry(const FileURL &, const FileSystem::EntryView &) override { ++entries; }
    qint64 entries = 0;
};

void walk(benchmark::State &state, const BenchTree &tree, Want want)
{
    qint64 entries = 0;
    for (auto _ : state) {
        Counter counter;
        FileSystem::walk(tree.root(), {.want = want}, counter, {});
        entries += counter.entries;
    }
    state.SetItemsProcessed(entries);
}

void measure(benchmark::State &state, const BenchTree &tree)
{
    qint64 entries = 0;
    for (auto _ : state)
        entries += FileSystem::measure(tree.root(), Hidden::include, {}).value().entries;
    state.SetItemsProcessed(entries);
}

void list(benchmark::State &state, const BenchTree &tree)
{
    qint64 entries = 0;
    for (auto _ : state)
        entries += FileSystem::list(tree.root().child("wide"), Hidden::skip, Want::files).value().size();
    state.SetItemsProcessed(entries);
}

} // namespace

int main(int count, char **values)
{
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values))
        return 2;
    const BenchTree tree;
    const auto add = [](const char *name, auto function) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->UseRealTime();
    };
    add("walk, kinds alone", [&](benchmark::State &state) { walk(state, tree, Want::kinds); });
    add("walk, attributes of files", [&](benchmark::State &state) { walk(state, tree, Want::files); });
    add("walk, attributes of everything", [&](benchmark::State &state) { walk(state, tree, Want::everything); });
    add("measure", [&](benchmark::State &state) { measure(state, tree); });
    add("list a folder of 20,000 files", [&](benchmark::State &state) { list(state, tree); });
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
