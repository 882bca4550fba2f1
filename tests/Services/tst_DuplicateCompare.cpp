// SPDX-License-Identifier: MIT
#include "Services/DuplicateCompare.h"

#include "Fakes/Bytes.h"
#include "Fakes/ScratchTree.h"
#include "Platform/FileSystem.h"
#include "Services/BlockCompare.h"
#include "Services/Budget.h"
#include "Services/DuplicateTables.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <list>
#include <map>
#include <numeric>
#include <random>
#include <set>
#include <thread>

namespace {

using namespace DuplicateCompare;

constexpr qint64 kLarge = 40'000; // bytes; longer than what a reader reads
constexpr qint64 kSmall = 5'000;

Candidate candidateAt(const FileURL &file)
{
    const auto known = FileSystem::attributes(file);
    if (!known)
        return {.url = file, .size = kSmall};
    return {.url = file,
            .size = known->size.value_or(0),
            .device = known->device,
            .inode = known->inode,
            .links = known->links};
}

/// The sets as lists of file names, ordered.
using Names = std::vector<std::vector<QByteArray>>;

struct Outcome {
    Names names;
    std::vector<EqualSet> sets;
    Cost cost;
    qint64 settled = 0;
};

Outcome compare(const std::vector<Candidate> &candidates, const Limits &limits)
{
    Outcome outcome;
    std::atomic<qint64> settled = 0;
    outcome.sets = equalSets(
        candidates, limits, [&](qint64 files) { settled += files; }, {}, &outcome.cost);
    outcome.settled = settled;
    for (const EqualSet &set : outcome.sets) {
        auto &names = outcome.names.emplace_back();
        for (const qsizetype member : set.members)
            names.push_back(candidates[static_cast<size_t>(member)].url.name());
    }
    return outcome;
}

Outcome compare(const std::vector<Candidate> &candidates)
{
    return compare(candidates, limitsFor(2, static_cast<qsizetype>(candidates.size())));
}

/// What anybody would write who does not mind reading everything.
Names expectedSets(const std::vector<Candidate> &candidates)
{
    std::map<std::pair<qint64, QByteArray>, std::vector<size_t>> byContent;
    for (size_t at = 0; at < candidates.size(); ++at) {
        const QByteArray content = ScratchTree::content(candidates[at].url);
        byContent[{content.size(), QCryptographicHash::hash(content, QCryptographicHash::Sha3_256)}].push_back(at);
    }
    std::vector<std::vector<size_t>> sets;
    for (const auto &[content, members] : byContent) {
        if (members.size() > 1)
            sets.push_back(members);
    }
    std::ranges::sort(sets);
    Names names;
    for (const auto &set : sets) {
        auto &made = names.emplace_back();
        for (const size_t member : set)
            made.push_back(candidates[member].url.name());
    }
    return names;
}

qint64 bytesOfOneEach(const std::vector<Candidate> &candidates, const Outcome &outcome)
{
    qint64 bytes = 0;
    for (const EqualSet &set : outcome.sets)
        bytes += candidates[static_cast<size_t>(set.members.front())].size;
    return bytes;
}

class DuplicateCompareTest : public ::testing::Test
{
protected:
    FileURL add(const QByteArray &name, const QByteArray &content)
    {
        const FileURL made = m_tree.file(name, content);
        m_candidates.push_back(candidateAt(made));
        return made;
    }
    void hardLink(const QByteArray &from, const QByteArray &to) const
    {
        ASSERT_EQ(::link(m_tree.at(from).path().constData(), m_tree.at(to).path().constData()), 0);
    }
    ScratchTree m_tree;
    std::vector<Candidate> m_candidates;
};

TEST(DuplicateCompareLimits, WorkersAreTwoToSixWhateverTheMachine)
{
    EXPECT_EQ(limitsFor(0, 10).workers, 2);
    EXPECT_EQ(limitsFor(1, 10).workers, 2);
    EXPECT_EQ(limitsFor(2, 10).workers, 2);
    EXPECT_EQ(limitsFor(5, 10).workers, 5);
    EXPECT_EQ(limitsFor(6, 10).workers, 6);
    EXPECT_EQ(limitsFor(128, 10).workers, 6);
    EXPECT_LE(limitsFor(128, 10).descriptors, 256);
    EXPECT_LE(limitsFor(128, 10).readers, 6);
}

TEST_F(DuplicateCompareTest, NothingComesOfNothing)
{
    const Outcome outcome = compare({});
    EXPECT_TRUE(outcome.sets.empty());
    EXPECT_EQ(outcome.cost.opens, 0);
}

TEST_F(DuplicateCompareTest, ASizeOfItsOwnIsNeverOpened)
{
    add("a", someBytes(kSmall, 1));
    add("b", someBytes(kSmall + 1, 1));
    const Outcome outcome = compare(m_candidates);
    EXPECT_TRUE(outcome.sets.empty());
    EXPECT_EQ(outcome.cost.opens, 0);
    EXPECT_EQ(outcome.settled, 2);
}

TEST_F(DuplicateCompareTest, DigestsAreThoseOfTheContent)
{
    for (const qint64 size : {kSmall, kPrefix, kPrefix + 1, kLarge, BlockCompare::kBlock + 1, qint64{3'000'000}}) {
        for (const char *copy : {"a", "b"})
            add(QByteArray::number(size) + copy, someBytes(size, 1));
    }
    const Outcome outcome = compare(m_candidates);
    ASSERT_EQ(outcome.sets.size(), 6U);
    for (const EqualSet &set : outcome.sets) {
        const QByteArray content = ScratchTree::content(m_candidates[static_cast<size_t>(set.members.front())].url);
        EXPECT_EQ(set.digest, QCryptographicHash::hash(content, QCryptographicHash::Sha256));
    }
}

TEST_F(DuplicateCompareTest, OneByteAnywhereMakesADifference)
{
    const std::vector<qint64> sizes{kSmall,
                                    kPrefix,
                                    kPrefix + 1,
                                    BlockCompare::kBlock,
                                    BlockCompare::kBlock + 1,
                                    3'000'000,
                                    BlockCompare::kRange + 5'000};
    for (const qint64 size : sizes) {
        std::set<qint64> places{0, size / 2, size - 1, std::min(size, kPrefix) - 1};
        if (size > kPrefix)
            places.insert(kPrefix);
        QByteArray content = someBytes(size, 3);
        m_candidates.clear();
        add("original", content);
        for (const qint64 place : places) {
            content[place] = static_cast<char>(content[place] ^ 1);
            add("different at " + QByteArray::number(place), content);
            content[place] = static_cast<char>(content[place] ^ 1);
        }
        EXPECT_TRUE(compare(m_candidates).sets.empty()) << size;
        add("copy", content);
        EXPECT_EQ(compare(m_candidates).names, (Names{{"original", "copy"}})) << size;
    }
}

TEST_F(DuplicateCompareTest, SetsAreInTheOrderOfTheirFirstMembers)
{
    add("b1", someBytes(kSmall, 1));
    add("a1", someBytes(kLarge, 2));
    add("a2", someBytes(kLarge, 2));
    add("c1", someBytes(kSmall + 1, 3));
    add("b2", someBytes(kSmall, 1));
    add("c2", someBytes(kSmall + 1, 3));
    EXPECT_EQ(compare(m_candidates).names, (Names{{"b1", "b2"}, {"a1", "a2"}, {"c1", "c2"}}));
}

TEST_F(DuplicateCompareTest, NamesOfOneFileAreReadOnceAndListedEach)
{
    for (const qint64 size : {kSmall, kLarge, qint64{2'000'000}}) {
        const QByteArray name = QByteArray::number(size);
        m_tree.file(name + "a", someBytes(size, 1));
        hardLink(name + "a", name + "b");
        hardLink(name + "a", name + "c");
        for (const char *link : {"a", "b", "c"})
            m_candidates.push_back(candidateAt(m_tree.at(name + link)));
    }
    Outcome outcome = compare(m_candidates);
    EXPECT_EQ(
        outcome.names,
        (Names{{"5000a", "5000b", "5000c"}, {"40000a", "40000b", "40000c"}, {"2000000a", "2000000b", "2000000c"}}));
    EXPECT_EQ(outcome.cost.opens, 3);
    EXPECT_EQ(outcome.cost.bytesHashed, bytesOfOneEach(m_candidates, outcome));
    EXPECT_EQ(outcome.settled, 9);

    add("5000copy", someBytes(kSmall, 1));
    outcome = compare(m_candidates);
    EXPECT_EQ(outcome.names.front(), (std::vector<QByteArray>{"5000a", "5000b", "5000c", "5000copy"}));
    EXPECT_EQ(outcome.cost.opens, 4);
}

TEST_F(DuplicateCompareTest, ANameThatIsNoLongerTheFileIsNotListedWithIt)
{
    m_tree.file("a", someBytes(kLarge, 1));
    hardLink("a", "b");
    hardLink("a", "c");
    for (const char *name : {"a", "b", "c"})
        m_candidates.push_back(candidateAt(m_tree.at(name)));
    ASSERT_EQ(::unlink(m_tree.at("a").path().constData()), 0);
    m_tree.file("a", someBytes(kLarge, 2)); // a different file of that name and size
    EXPECT_EQ(compare(m_candidates).names, (Names{{"b", "c"}}));
}

TEST_F(DuplicateCompareTest, EqualNumbersWithoutSecondNamesAreComparedByTheirBytes)
{
    // Some file systems make their numbers up.
    add("a", someBytes(kLarge, 1));
    add("b", someBytes(kLarge, 2));
    for (Candidate &candidate : m_candidates) {
        candidate.device = 1;
        candidate.inode = 1;
        candidate.links = 1;
    }
    EXPECT_TRUE(compare(m_candidates).sets.empty());
}

TEST_F(DuplicateCompareTest, HolesAreZeros)
{
    const QByteArray zeros(3'000'000, '\0');
    add("written", zeros);
    m_candidates.push_back(candidateAt(m_tree.sparseFile("hole", zeros.size())));
    QByteArray almost = zeros;
    almost.back() = 1;
    add("almost", almost);
    EXPECT_EQ(compare(m_candidates).names, (Names{{"written", "hole"}}));
}

TEST_F(DuplicateCompareTest, WhatIsNoRegularFileOfThatSizeDropsOut)
{
    add("a", someBytes(kSmall, 1));
    add("b", someBytes(kSmall, 1));
    const auto addUnlike = [this](const FileURL &what) { m_candidates.push_back({.url = what, .size = kSmall}); };
    addUnlike(m_tree.at("vanished"));
    addUnlike(m_tree.folder("folder"));
    addUnlike(m_tree.link("link", "a"));
    ASSERT_EQ(::mkfifo(m_tree.at("pipe").path().constData(), 0600), 0);
    addUnlike(m_tree.at("pipe")); // opening it must not wait for a writer
    addUnlike(m_tree.file("shorter", someBytes(kSmall - 1, 1)));
    addUnlike(m_tree.file("longer", someBytes(kSmall + 1, 1)));
    const Outcome outcome = compare(m_candidates);
    EXPECT_EQ(outcome.names, (Names{{"a", "b"}}));
    EXPECT_EQ(outcome.settled, static_cast<qint64>(m_candidates.size()));
}

TEST_F(DuplicateCompareTest, UnreadableFilesDropOut)
{
    OrdinaryUser::own(m_tree.root());
    for (const char *name : {"a", "b", "c"}) {
        OrdinaryUser::own(add(name, someBytes(kSmall, 1)));
        OrdinaryUser::own(add(QByteArray(name) + "-large", someBytes(kLarge, 1)));
    }
    ASSERT_EQ(::chmod(m_tree.at("b").path().constData(), 0), 0);
    ASSERT_EQ(::chmod(m_tree.at("a-large").path().constData(), 0), 0);
    const OrdinaryUser user;
    EXPECT_EQ(compare(m_candidates).names, (Names{{"a", "c"}, {"b-large", "c-large"}}));
}

TEST_F(DuplicateCompareTest, AccessTimesStay)
{
    const timespec then[2] = {{.tv_sec = 1'000'000'000, .tv_nsec = 0}, {.tv_sec = 1'000'000'001, .tv_nsec = 0}};
    for (const char *name : {"a", "b"}) {
        const FileURL made = add(name, someBytes(kLarge, 1));
        ASSERT_EQ(::utimensat(AT_FDCWD, made.path().constData(), then, 0), 0);
    }
    EXPECT_EQ(compare(m_candidates).names, (Names{{"a", "b"}}));
    for (const Candidate &candidate : m_candidates)
        EXPECT_EQ(FileSystem::attributes(candidate.url).value().accessed, qint64{1'000'000'000} * 1'000'000'000);
}

TEST_F(DuplicateCompareTest, WorkersAreThreadsOfTheNamedQueue)
{
    for (int size = 0; size < 40; ++size) {
        for (const char *copy : {"a", "b"})
            add(QByteArray::number(size) + copy, someBytes(kLarge + size, 1));
    }
    std::mutex mutex;
    std::set<QThread *> threads;
    std::set<QString> names;
    const auto note = [&](qint64) {
        const std::lock_guard lock(mutex);
        threads.insert(QThread::currentThread());
        names.insert(QThread::currentThread()->objectName());
    };
    const auto sets = equalSets(m_candidates, limitsFor(3, 80), note, {});
    EXPECT_EQ(sets.size(), 40U);
    // Every file is settled by the thread that hashed it.
    EXPECT_LE(threads.size(), 3U);
    EXPECT_EQ(names, (std::set<QString>{QStringLiteral("com.brisko.dupecount")}));
}

// Files of very many equal sizes

TEST_F(DuplicateCompareTest, VeryManyCopiesAreOpenedOnceAndHashedOnce)
{
    for (const qint64 size : {kSmall, kLarge}) {
        for (int copy = 0; copy < 1'000; ++copy)
            add(QByteArray::number(size) + '-' + QByteArray::number(copy), someBytes(size, 1));
    }
    const Outcome outcome = compare(m_candidates);
    EXPECT_EQ(outcome.names, expectedSets(m_candidates));
    EXPECT_LE(static_cast<double>(outcome.cost.opens), 1.05 * static_cast<double>(m_candidates.size()));
    EXPECT_EQ(outcome.cost.bytesHashed, bytesOfOneEach(m_candidates, outcome));
    EXPECT_EQ(outcome.settled, 2'000);
}

TEST_F(DuplicateCompareTest, VeryManyFilesOfOneSizeThatDifferEarlyAreOpenedOnce)
{
    for (const qint64 size : {kSmall, kLarge}) {
        for (int file = 0; file < 800; ++file)
            add(QByteArray::number(size) + '-' + QByteArray::number(file), someBytes(size, static_cast<quint64>(file)));
    }
    const Outcome outcome = compare(m_candidates);
    EXPECT_TRUE(outcome.sets.empty());
    EXPECT_EQ(outcome.cost.opens, 1'600);
    EXPECT_EQ(outcome.cost.bytesRead, 800 * (kSmall + kPrefix));
    EXPECT_EQ(outcome.cost.bytesHashed, 0);
}

TEST_F(DuplicateCompareTest, ManyContentsOfOneBeginningAreToldApartWithoutComparingEachWithEach)
{
    constexpr int contents = 120;
    for (int copy = 0; copy < 3; ++copy) {
        for (int which = 0; which < contents; ++which) {
            add(QByteArray::number(which) + '-' + QByteArray::number(copy),
                someBytes(kPrefix, 1) + someBytes(kLarge - kPrefix, static_cast<quint64>(which)));
        }
    }
    const Outcome outcome = compare(m_candidates);
    EXPECT_EQ(outcome.names, expectedSets(m_candidates));
    EXPECT_EQ(outcome.settled, 3 * contents);
    EXPECT_EQ(outcome.cost.bytesHashed, bytesOfOneEach(m_candidates, outcome));
    // Each with each would be 360 * 359 / 2 comparisons.
    EXPECT_LE(outcome.cost.bytesRead, 5 * 3 * contents * kLarge);
}

TEST_F(DuplicateCompareTest, FewDescriptorsAndNoMemoryToSpareChangeNothing)
{
    std::mt19937 random(7);
    for (int file = 0; file < 600; ++file) {
        const qint64 size = file % 2 == 0 ? kSmall : kLarge;
        add(QByteArray::number(file), someBytes(kPrefix, random() % 2).first(std::min(size, kPrefix)) +
                                          someBytes(std::max(size - kPrefix, qint64{0}), random() % 100));
    }
    // Only small files whose beginnings alone differ are different; make more of them differ.
    for (int file = 0; file < 600; ++file)
        add("x" + QByteArray::number(file), someBytes(kSmall, 1'000 + random() % 200));
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few{.rlim_cur = 80, .rlim_max = before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    Limits limits = limitsFor(6, static_cast<qsizetype>(m_candidates.size()));
    limits.memory = 0;
    const Outcome outcome = compare(m_candidates, limits);
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(limits.descriptors, 40);
    EXPECT_EQ(outcome.names, expectedSets(m_candidates));
    EXPECT_EQ(outcome.settled, static_cast<qint64>(m_candidates.size()));
}

// Random trees

class RandomFiles : public DuplicateCompareTest, public ::testing::WithParamInterface<unsigned>
{
};

TEST_P(RandomFiles, EqualTheSetsOfAPlainSecondImplementation)
{
    SCOPED_TRACE(GetParam());
    std::mt19937 random(GetParam());
    const std::vector<qint64> sizes{4'096,
                                    kPrefix - 1,
                                    kPrefix,
                                    kPrefix + 1,
                                    20'000,
                                    kLarge,
                                    BlockCompare::kBlock - 1,
                                    BlockCompare::kBlock,
                                    BlockCompare::kBlock + 1,
                                    700'001};
    const auto pick = [&random](size_t count) { return static_cast<size_t>(random() % count); };
    for (int file = 0; file < 300; ++file) {
        const qint64 size = sizes[pick(random() % 3 == 0 ? 3 : sizes.size())];
        QByteArray content = someBytes(size, random() % 2);
        const std::vector<qint64> places{0, size / 2, size - 1, std::min(size - 1, kPrefix), kPrefix - 1};
        if (random() % 2 == 0)
            content[std::min(places[pick(places.size())], size - 1)] ^= static_cast<char>(random() % 3);
        const QByteArray name = QByteArray::number(file);
        add(name, content);
        if (random() % 20 == 0) {
            hardLink(name, name + "-again");
            m_candidates.back() = candidateAt(m_tree.at(name));
            m_candidates.push_back(candidateAt(m_tree.at(name + "-again")));
        }
    }
    const Outcome outcome = compare(m_candidates, limitsFor(4, static_cast<qsizetype>(m_candidates.size())));
    EXPECT_EQ(outcome.names, expectedSets(m_candidates));
    EXPECT_EQ(outcome.settled, static_cast<qint64>(m_candidates.size()));
    EXPECT_LE(static_cast<double>(outcome.cost.opens), 1.05 * static_cast<double>(m_candidates.size()));
    EXPECT_EQ(outcome.cost.bytesHashed, bytesOfOneEach(m_candidates, outcome));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomFiles, ::testing::Values(1U, 2U, 3U, 4U, 5U));

// Early ends

TEST_F(DuplicateCompareTest, LargeFilesThatDifferEarlyOrAtTheEndAreHardlyRead)
{
    constexpr qint64 size = 100'000'000;
    const auto addSparse = [&](const QByteArray &name, qint64 place) {
        const FileURL made = m_tree.sparseFile(name, size);
        const int fd = ::open(made.path().constData(), O_WRONLY | O_CLOEXEC);
        ASSERT_EQ(::pwrite(fd, "x", 1, place), 1);
        ::close(fd);
        m_candidates.push_back(candidateAt(made));
    };
    addSparse("early", 10'000);
    addSparse("late", size - 10'000);
    addSparse("very late", size - 1);
    const Outcome outcome = compare(m_candidates);
    EXPECT_TRUE(outcome.sets.empty());
    EXPECT_LT(outcome.cost.bytesRead, 2'000'000);
    EXPECT_EQ(outcome.cost.bytesHashed, 0);
    EXPECT_EQ(outcome.cost.opens, 3);
}

TEST_F(DuplicateCompareTest, LongFilesAreToldApartWhereverTheyDiffer)
{
    const auto addSparse = [&](const QByteArray &name, qint64 size, std::optional<qint64> place) {
        const FileURL made = m_tree.sparseFile(name, size);
        if (place) {
            const int fd = ::open(made.path().constData(), O_WRONLY | O_CLOEXEC);
            ASSERT_EQ(::pwrite(fd, "x", 1, *place), 1);
            ::close(fd);
        }
        m_candidates.push_back(candidateAt(made));
    };
    // More sizes than are compared at a time, each with a pair and one that differs at the end, in the middle or early.
    constexpr int sizes = 6;
    Names expected;
    for (int which = 0; which < sizes; ++which) {
        const qint64 size = BlockCompare::kRange + 1 + qint64{which} * 100;
        const QByteArray name = QByteArray::number(which);
        const std::vector<qint64> places{size - 1, size / 2, BlockCompare::kRange - 1, kPrefix, kPrefix - 1, 0};
        addSparse(name + "-a", size, std::nullopt);
        addSparse(name + "-other", size, places[static_cast<size_t>(which)]);
        addSparse(name + "-b", size, std::nullopt);
        expected.push_back({name + "-a", name + "-b"});
    }
    const Outcome outcome = compare(m_candidates);
    EXPECT_EQ(outcome.names, expected);
    EXPECT_EQ(outcome.settled, 3 * sizes);
    EXPECT_EQ(outcome.cost.opens, 3 * sizes);
    EXPECT_EQ(outcome.cost.bytesHashed, bytesOfOneEach(m_candidates, outcome));
}

TEST_F(DuplicateCompareTest, ACancelledComparisonEndsSoon)
{
    // A pair that differs early is settled first; then gigabytes are under way.
    constexpr qint64 gigabytes = qint64{64} << 30;
    for (const char *name : {"a", "b"})
        m_candidates.push_back(candidateAt(m_tree.sparseFile(name, gigabytes)));
    for (const quint64 seed : {1U, 2U})
        add(QByteArray::number(seed), someBytes(kLarge, seed));
    const CancelToken cancel;
    QElapsedTimer sinceCancelled;
    const auto settled = [&](qint64) {
        if (!cancel.isCancelled()) {
            sinceCancelled.start();
            cancel.cancel();
        }
    };
    const auto sets = equalSets(m_candidates, limitsFor(2, 4), settled, cancel);
    ASSERT_TRUE(sinceCancelled.isValid());
    // Reading all of it would take half a minute; a busy machine may take its time over 100 ms.
    EXPECT_LT(sinceCancelled.elapsed(), 2'000);
    EXPECT_TRUE(sets.empty());
}

TEST_F(DuplicateCompareTest, CancelledFromTheStartOpensNothing)
{
    for (const char *name : {"a", "b"})
        add(name, someBytes(kLarge, 1));
    const CancelToken cancel;
    cancel.cancel();
    Cost cost;
    EXPECT_TRUE(equalSets(
                    m_candidates, limitsFor(2, 2), [](qint64) {}, cancel, &cost)
                    .empty());
    EXPECT_EQ(cost.opens, 0);
}

// Files that change meanwhile

/// Runs one table by hand, so that a test can change files between two steps.
class ChangingFiles : public DuplicateCompareTest
{
protected:
    void start() { m_context = std::make_unique<Context>(m_candidates, limitsFor(2, 10), m_settled, CancelToken()); }
    Beginning beginning(quint32 unit)
    {
        auto file = m_context->open(unit);
        EXPECT_TRUE(file);
        Beginning made{.unit = unit, .file = *std::move(file), .stamp = {}, .bytes = nullptr, .hash = 0};
        made.stamp = made.file.stamp;
        m_contents.push_back(ScratchTree::content(m_candidates[unit].url));
        made.bytes = m_contents.back().constData();
        return made;
    }
    static void touch(const FileURL &file)
    {
        ScratchTree::setModified(file, QDateTime::fromSecsSinceEpoch(1'000'000'000));
    }
    Names finish(const std::vector<Work> &work)
    {
        for (const Work &one : work)
            one();
        m_context->waitForWorkers();
        Names names;
        for (const EqualSet &set : m_context->takeResults()) {
            auto &made = names.emplace_back();
            for (const qsizetype member : set.members)
                made.push_back(m_candidates[static_cast<size_t>(member)].url.name());
        }
        return names;
    }
    Settled m_settled = [](qint64) {};
    std::list<QByteArray> m_contents;
    std::unique_ptr<Context> m_context;
};

TEST_F(ChangingFiles, OneThatChangesBetweenOpeningAndComparingDropsOut)
{
    for (size_t changed = 0; changed < 4; ++changed) {
        m_candidates.clear();
        for (const char *name : {"a", "b", "c", "d"})
            add(name, someBytes(kLarge, 1));
        start();
        std::vector<Beginning> slice;
        for (quint32 unit = 0; unit < 4; ++unit)
            slice.push_back(beginning(unit));
        touch(m_candidates[changed].url);
        std::vector<QByteArray> expected{"a", "b", "c", "d"};
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(changed));
        EXPECT_EQ(finish(std::make_shared<LargeFiles>(*m_context, kLarge, 1)->add(slice)), Names{expected}) << changed;
    }
}

TEST_F(ChangingFiles, OneThatChangesAfterOthersWereFoundEqualToItDropsOut)
{
    for (const char *name : {"a", "b", "c", "d"})
        add(name, someBytes(kLarge, 1));
    start();
    const auto table = std::make_shared<LargeFiles>(*m_context, kLarge, 2);
    std::vector<Beginning> first;
    first.push_back(beginning(0));
    first.push_back(beginning(1));
    EXPECT_TRUE(finish(table->add(first)).empty());
    touch(m_candidates[0].url);
    std::vector<Beginning> second;
    second.push_back(beginning(2));
    second.push_back(beginning(3));
    EXPECT_EQ(finish(table->add(second)), (Names{{"b", "c", "d"}}));
}

TEST_F(ChangingFiles, OneRewrittenMeanwhileDoesNotBringOldAndNewCopiesTogether)
{
    for (const char *name : {"a", "b"})
        add(name, someBytes(kLarge, 1));
    for (const char *name : {"c", "d"})
        add(name, someBytes(kPrefix, 1) + someBytes(kLarge - kPrefix, 2));
    start();
    const auto table = std::make_shared<LargeFiles>(*m_context, kLarge, 2);
    std::vector<Beginning> first;
    first.push_back(beginning(0));
    first.push_back(beginning(1));
    EXPECT_TRUE(finish(table->add(first)).empty());
    m_tree.file("a", ScratchTree::content(m_candidates[2].url));
    touch(m_candidates[0].url);
    std::vector<Beginning> second;
    second.push_back(beginning(2));
    second.push_back(beginning(3));
    EXPECT_EQ(finish(table->add(second)), (Names{{"c", "d"}}));
}

TEST_F(ChangingFiles, OneReplacedWhileItIsClosedDropsOut)
{
    for (const char *name : {"a", "b", "c"})
        add(name, someBytes(kLarge, 1));
    start();
    const auto table = std::make_shared<LargeFiles>(*m_context, kLarge, 2);
    const Budget::Share all = m_context->kept.tryTake(m_context->limits().descriptors * 3 / 16);
    ASSERT_FALSE(all.isEmpty());
    std::vector<Beginning> first;
    first.push_back(beginning(0));
    EXPECT_TRUE(finish(table->add(first)).empty());
    ASSERT_EQ(::unlink(m_candidates[0].url.path().constData()), 0);
    m_tree.file("a", someBytes(kLarge, 1));
    touch(m_candidates[0].url);
    std::vector<Beginning> second;
    second.push_back(beginning(1));
    second.push_back(beginning(2));
    EXPECT_EQ(finish(table->add(second)), (Names{{"b", "c"}}));
}

TEST_F(ChangingFiles, ASmallOneWhoseContentIsNoLongerAtHandIsLookedAtAgain)
{
    for (const char *name : {"a", "b", "c"})
        add(name, someBytes(kSmall, 1));
    start();
    const Budget::Share all = m_context->stored.tryTake(m_context->limits().memory);
    ASSERT_FALSE(all.isEmpty());
    const auto table = std::make_shared<SmallFiles>(*m_context, kSmall, 2);
    std::vector<Beginning> first;
    first.push_back(beginning(0));
    EXPECT_TRUE(finish(table->add(first)).empty());
    touch(m_candidates[0].url);
    std::vector<Beginning> second;
    second.push_back(beginning(1));
    second.push_back(beginning(2));
    EXPECT_EQ(finish(table->add(second)), (Names{{"b", "c"}}));
}

TEST_F(DuplicateCompareTest, FilesWrittenToMeanwhileAreNeverGroupedByStaleBytes)
{
    constexpr int pairs = 60;
    for (int pair = 0; pair < pairs; ++pair) {
        for (const char *copy : {"a", "b"})
            add(QByteArray::number(pair) + copy, someBytes(pair % 2 == 0 ? kSmall + pair : kLarge + pair, 1));
    }
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        // Only the last third is written to; what is left alone must always be found.
        for (quint64 round = 0; !stop; ++round) {
            const auto victim = 2 * pairs * 2 / 3 + round % (2 * pairs / 3);
            const int fd = ::open(m_candidates[victim].url.path().constData(), O_WRONLY | O_CLOEXEC);
            const char byte = static_cast<char>(round);
            EXPECT_EQ(::pwrite(fd, &byte, 1, static_cast<off_t>(round % kSmall)), 1);
            ::close(fd);
        }
    });
    for (int round = 0; round < 5; ++round) {
        const Outcome outcome = compare(m_candidates);
        EXPECT_EQ(outcome.settled, 2 * pairs);
        std::set<qsizetype> found;
        for (const EqualSet &set : outcome.sets)
            found.insert(set.members.begin(), set.members.end());
        for (qsizetype untouched = 0; untouched < 2 * pairs * 2 / 3; ++untouched)
            EXPECT_TRUE(found.contains(untouched)) << untouched;
    }
    stop = true;
    writer.join();
}

TEST(Budget, NeverGivesMoreThanThereIs)
{
    Budget budget(10);
    Budget::Share some = budget.take(7);
    EXPECT_TRUE(budget.tryTake(4).isEmpty());
    EXPECT_FALSE(budget.tryTake(3).isEmpty()); // and gives it back at once
    Budget::Share part = some.split(5);
    some.giveBack();
    EXPECT_TRUE(budget.tryTake(6).isEmpty());
    part = Budget::Share();
    EXPECT_FALSE(budget.tryTake(10).isEmpty());
}

TEST(Budget, WakesThoseWhoWait)
{
    Budget budget(16);
    std::atomic<int> most = 0;
    std::atomic<int> now = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 6; ++thread) {
        threads.emplace_back([&, thread] {
            for (int round = 0; round < 500; ++round) {
                const int count = 1 + (thread * 5 + round) % 16;
                const Budget::Share share = budget.take(count);
                const int current = now += count;
                most = std::max(most.load(), current);
                now -= count;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_LE(most, 16);
}

} // namespace
