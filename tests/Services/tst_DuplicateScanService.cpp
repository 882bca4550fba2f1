// SPDX-License-Identifier: MIT
#include "Services/DuplicateScanService.h"

#include "Fakes/Bytes.h"
#include "Fakes/ScratchTree.h"
#include "Platform/FileSystem.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <mutex>
#include <random>
#include <set>
#include <stdexcept>

namespace {

using namespace DuplicateScanService;

constexpr qsizetype kSize = 5'000;

using Sets = std::set<std::set<QByteArray>>;

/// What a command prints. Scratch paths hold nothing that a shell would take apart.
QByteArray outputOf(const QByteArray &command)
{
    // Not QProcess: the thread sanitizer loses track of a thread that forks.
    FILE *shell = ::popen(command.constData(), "re");
    if (!shell)
        throw std::runtime_error("no shell could be started");
    QByteArray all;
    char part[4096];
    for (size_t got; (got = std::fread(part, 1, sizeof part, shell)) > 0;)
        all.append(part, static_cast<qsizetype>(got));
    EXPECT_EQ(::pclose(shell), 0) << command.constData();
    return all;
}

class DuplicateScanTest : public ::testing::Test
{
protected:
    QList<DuplicateGroup> scan(const QList<FileURL> &folders, Counters *counters = nullptr)
    {
        m_texts.clear();
        return scanSync(
            {.folders = folders, .logFolder = m_logs.root(), .counters = counters},
            [this](const QString &text) {
                const std::lock_guard lock(m_mutex);
                m_texts.append(text);
            },
            m_cancel);
    }
    QList<DuplicateGroup> scan() { return scan({m_tree.root()}); }
    /// The files of each group, below the tree's root, in order.
    QList<QList<QByteArray>> names(const QList<DuplicateGroup> &groups) const
    {
        QList<QList<QByteArray>> result;
        for (const DuplicateGroup &group : groups) {
            auto &made = result.emplaceBack();
            for (const DuplicateFile &file : group.files)
                made.append(file.url.path().sliced(m_tree.root().path().size() + 1));
        }
        return result;
    }
    QByteArray log() const { return ScratchTree::content(logFile()); }
    FileURL logFile() const { return m_logs.at("brisko_scan.log"); }
    void pair(const QByteArray &first, const QByteArray &second, const QByteArray &content = someBytes(kSize, 1)) const
    {
        m_tree.file(first, content);
        m_tree.file(second, content);
    }

    ScratchTree m_tree;
    ScratchTree m_logs;
    CancelToken m_cancel;
    std::mutex m_mutex;
    QStringList m_texts; // guarded by m_mutex while a scan runs
};

using Lists = QList<QList<QByteArray>>;

TEST_F(DuplicateScanTest, FilesBelow4096BytesAreNeverReported)
{
    pair("a", "b", someBytes(4'095, 1));
    EXPECT_TRUE(scan().isEmpty());
    pair("c", "d", someBytes(4'096, 1));
    EXPECT_EQ(names(scan()), (Lists{{"c", "d"}}));
}

TEST_F(DuplicateScanTest, LibrariesAndBundlesAreNeverLookedInto)
{
    for (const char *opaque :
         {".photoslibrary", ".photolibrary", ".imovielibrary", ".theater", ".musiclibrary", ".aplibrary", ".fcpbundle",
          ".migratedphotolibrary", ".coverartlibrary", ".app", ".bundle", ".framework", ".xpc"}) {
        pair("x" + QByteArray(opaque) + "/a", "x" + QByteArray(opaque) + "/deep/b");
        m_tree.file("y" + QByteArray(opaque), someBytes(kSize, 1)); // a file of such a name
    }
    EXPECT_TRUE(scan().isEmpty());
    pair("photoslibrary/a", "x.APP/b");
    EXPECT_EQ(names(scan()), (Lists{{"photoslibrary/a", "x.APP/b"}}));
}

TEST_F(DuplicateScanTest, FilesOfCloudProvidersAreNeverRead)
{
    pair("Library/CloudStorage/a", "Library/CloudStorage/Provider/b");
    pair("Library/CloudStorageX/c", "CloudStorage/d", someBytes(kSize, 2));
    Counters counters;
    EXPECT_EQ(names(scan({m_tree.root()}, &counters)), (Lists{{"CloudStorage/d", "Library/CloudStorageX/c"}}));
    EXPECT_EQ(counters.candidates, 2);
    EXPECT_TRUE(scan({m_tree.at("Library/CloudStorage")}).isEmpty());
    EXPECT_TRUE(scan({m_tree.at("Library/CloudStorage/Provider")}).isEmpty());
    // The providers' folder itself is visited, what lies in it is not.
    scan();
    EXPECT_TRUE(log().contains("Library/CloudStorage\n"));
    EXPECT_FALSE(log().contains("Provider"));
}

TEST_F(DuplicateScanTest, ThreeCopiesFormOneGroupOrderedByPath)
{
    const QByteArray content = someBytes(kSize, 1);
    for (const char *folder : {"c", "a", "b"})
        m_tree.file(QByteArray(folder) + "/x", content);
    const QList<DuplicateGroup> groups = scan();
    ASSERT_EQ(names(groups), (Lists{{"a/x", "b/x", "c/x"}}));
    EXPECT_EQ(groups.first().files.first().url, m_tree.at("a/x")); // the one that is kept
    EXPECT_EQ(groups.first().reclaimable(), 2 * kSize);
    EXPECT_EQ(groups.first().id,
              QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex()));
}

TEST_F(DuplicateScanTest, PathsAreOrderedByTheirBytes)
{
    const QByteArray content = someBytes(kSize, 1);
    for (const char *name : {"a-b", "a/z", "B", "\xff", "\xc3\xa9", "a"})
        m_tree.file(QByteArray(name) == "a" ? "a0" : name, content);
    EXPECT_EQ(names(scan()), (Lists{{"B", "a-b", "a/z", "a0", "\xc3\xa9", "\xff"}}));
}

TEST_F(DuplicateScanTest, RecordsCarrySizeAndDate)
{
    pair("a", "b");
    const QDateTime then = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC);
    ScratchTree::setModified(m_tree.at("b"), then);
    const QList<DuplicateGroup> groups = scan();
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groups.first().files.at(1).size, kSize);
    EXPECT_EQ(groups.first().files.at(1).modified, then);
}

TEST_F(DuplicateScanTest, OverlappingFoldersYieldNoFileTwice)
{
    pair("a/x", "a/b/y");
    m_tree.link("again", "a");
    const Lists expected{{"a/b/y", "a/x"}};
    EXPECT_EQ(names(scan({m_tree.at("a"), m_tree.at("a")})), expected);
    EXPECT_EQ(names(scan({m_tree.at("a"), m_tree.at("a/b")})), expected);
    EXPECT_EQ(names(scan({m_tree.at("a/b"), m_tree.at("a")})), expected);
    EXPECT_EQ(names(scan({m_tree.at("again"), m_tree.at("a")})), expected);
    EXPECT_EQ(names(scan({m_tree.at("a/b"), m_tree.root(), m_tree.at("nowhere")})), expected);
}

TEST_F(DuplicateScanTest, EqualSizesOfDifferentContentFormNoGroup)
{
    for (quint64 seed = 1; seed < 10; ++seed)
        m_tree.file(QByteArray::number(seed), someBytes(kSize, seed));
    EXPECT_TRUE(scan().isEmpty());
}

TEST_F(DuplicateScanTest, HiddenFilesLinksAndSpecialFilesArePassedBy)
{
    m_tree.file("a", someBytes(kSize, 1));
    m_tree.file(".b", someBytes(kSize, 1));
    m_tree.file(".c/d", someBytes(kSize, 1));
    m_tree.link("link", "a");
    m_tree.folder("elsewhere");
    m_tree.link("elsewhere/folder-link", "..");
    ASSERT_EQ(::mkfifo(m_tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_TRUE(scan().isEmpty());
    m_tree.file("e", someBytes(kSize, 1));
    EXPECT_EQ(names(scan()), (Lists{{"a", "e"}}));
}

TEST_F(DuplicateScanTest, NamesOfAnyBytesAreFoundAsTheyAre)
{
    const QByteArray longest(255, 'n');
    pair("new\nline", "not \xff utf-8 \x01");
    m_tree.file(longest, someBytes(kSize, 1));
    EXPECT_EQ(names(scan()), (Lists{{"new\nline", longest, "not \xff utf-8 \x01"}}));
}

TEST_F(DuplicateScanTest, FoldersDownToLevel24AreVisited)
{
    QByteArray path;
    for (int depth = 1; depth <= 23; ++depth) // the chosen folder is at depth 0
        path += "f/";
    m_tree.file(path + "last", someBytes(kSize, 1));
    m_tree.file(path + "f/beyond", someBytes(kSize, 1));
    m_tree.file("top", someBytes(kSize, 1));
    EXPECT_EQ(names(scan()), (Lists{{path + "last", "top"}}));
    EXPECT_EQ(log().count('\n'), 24);
}

TEST_F(DuplicateScanTest, PathsBeyondTheSystemsLimitAreReached)
{
    const QByteArray name(200, 'n');
    QByteArray content = someBytes(kSize, 1);
    m_tree.file("top", content);
    // Built step by step: such a path cannot be given to the system at once.
    int folder = ::open(m_tree.root().path().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int depth = 1; depth <= 23; ++depth) {
        ASSERT_EQ(::mkdirat(folder, name.constData(), 0755), 0);
        const int next = ::openat(folder, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(folder);
        folder = next;
    }
    const int file = ::openat(folder, "deep", O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    ASSERT_EQ(::write(file, content.constData(), static_cast<size_t>(content.size())), content.size());
    ::close(file);
    ::close(folder);
    const auto found = names(scan());
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().size(), 2);
    EXPECT_TRUE(found.first().first().endsWith("/deep"));
    EXPECT_GT(found.first().first().size(), 4'096);
    outputOf("rm -rf " + m_tree.at(name).path());
}

TEST_F(DuplicateScanTest, HardLinksAreListedEachAndReadOnce)
{
    m_tree.file("a", someBytes(kSize, 1));
    ASSERT_EQ(::link(m_tree.at("a").path().constData(), m_tree.at("b").path().constData()), 0);
    Counters counters;
    const QList<DuplicateGroup> groups = scan({m_tree.root()}, &counters);
    EXPECT_EQ(names(groups), (Lists{{"a", "b"}}));
    EXPECT_EQ(counters.candidates, 2);
    EXPECT_EQ(counters.opens, 1);
    EXPECT_EQ(counters.bytesHashed, kSize);
}

TEST_F(DuplicateScanTest, UnreadableFoldersAndFilesContributeNothing)
{
    OrdinaryUser::own(m_tree.root());
    for (const char *name : {"a", "b", "closed/c", "d"})
        m_tree.file(name, someBytes(kSize, 1));
    for (const char *name : {"a", "b", "closed", "closed/c", "d"})
        OrdinaryUser::own(m_tree.at(name));
    OrdinaryUser::own(m_logs.root());
    ASSERT_EQ(::chmod(m_tree.at("closed").path().constData(), 0), 0);
    ASSERT_EQ(::chmod(m_tree.at("b").path().constData(), 0), 0);
    Lists found;
    {
        const OrdinaryUser user;
        found = names(scan());
    }
    EXPECT_EQ(found, (Lists{{"a", "d"}}));
    EXPECT_TRUE(log().contains("/closed\n"));
    ::chmod(m_tree.at("closed").path().constData(), 0755);
}

TEST_F(DuplicateScanTest, GroupsAreOrderedByWhatTheyWouldFree)
{
    pair("s1", "s2", someBytes(5'000, 1));
    pair("l1", "l2", someBytes(30'000, 2));
    for (const char *name : {"m1", "m2", "m3", "m4"})
        m_tree.file(name, someBytes(6'000, 3));
    EXPECT_EQ(names(scan()), (Lists{{"l1", "l2"}, {"m1", "m2", "m3", "m4"}, {"s1", "s2"}}));
}

TEST_F(DuplicateScanTest, GroupsThatFreeTheSameStayInTheOrderFoundEveryTime)
{
    for (int group = 0; group < 60; ++group) {
        for (const char *folder : {"a/", "b/"})
            m_tree.file(folder + QByteArray::number(group), someBytes(20'000, static_cast<quint64>(group)));
    }
    // The order found is the folder's own.
    QList<QByteArray> found;
    const auto first = FileSystem::list(m_tree.root(), FileSystem::Hidden::skip, FileSystem::Want::kinds).value();
    const auto second =
        FileSystem::list(m_tree.at(first.first().name), FileSystem::Hidden::skip, FileSystem::Want::kinds).value();
    for (const FileSystem::Entry &entry : second)
        found.append(entry.name);
    for (int round = 0; round < 5; ++round) {
        QList<QByteArray> order;
        for (const QList<QByteArray> &group : names(scan()))
            order.append(group.first().sliced(2));
        EXPECT_EQ(order, found);
    }
}

// Progress

TEST_F(DuplicateScanTest, ProgressIsToldInItsOrder)
{
    for (int file = 0; file < 4'500; ++file)
        m_tree.sparseFile(QByteArray::number(file), 4'096 + (file < 200 ? file % 100 : file));
    m_tree.sparseFile("too small to count", 4'095);
    scan();
    ASSERT_GT(m_texts.size(), 5);
    EXPECT_EQ(m_texts.takeFirst(), u"Collecting files…");
    EXPECT_EQ(m_texts.takeFirst(), u"Collecting files… 2,000");
    EXPECT_EQ(m_texts.takeFirst(), u"Collecting files… 4,000");
    EXPECT_EQ(m_texts.takeFirst(), u"Hashing files…");
    EXPECT_EQ(m_texts.takeLast(), u"Done");
    int last = 0;
    for (const QString &text : std::as_const(m_texts)) {
        ASSERT_TRUE(text.startsWith(QStringLiteral("Hashing files… ")) && text.endsWith(u'%')) << text.toStdString();
        const int percentage = text.chopped(1).split(u' ').last().toInt();
        EXPECT_GT(percentage, last);
        last = percentage;
    }
    EXPECT_EQ(last, 100);
}

TEST_F(DuplicateScanTest, WithoutCandidatesThereIsNoPercentage)
{
    m_tree.file("a", someBytes(kSize, 1));
    scan();
    EXPECT_EQ(m_texts, (QStringList{QStringLiteral("Collecting files…"), QStringLiteral("Hashing files…"),
                                    QStringLiteral("Done")}));
    EXPECT_TRUE(scan({}).isEmpty());
    EXPECT_EQ(m_texts.size(), 3);
}

// The log

TEST_F(DuplicateScanTest, TheLogHasOneLineForEachFolderVisited)
{
    m_tree.folder("a/b");
    m_tree.folder(".hidden");
    m_tree.folder("x.app");
    m_tree.folder("c \xff");
    m_logs.file("brisko_scan.log", "what an earlier scan wrote");
    scan({m_tree.at("a"), m_tree.at("c \xff")});
    const QByteArray root = m_tree.root().path();
    EXPECT_EQ(log(), "[dir] " + root + "/a\n[dir] " + root + "/a/b\n[dir] " + root + "/c \xff\n");
    scan();
    QList<QByteArray> lines = log().split('\n');
    EXPECT_EQ(lines.takeLast(), "");
    EXPECT_EQ(lines.takeFirst(), "[dir] " + root);
    EXPECT_EQ(lines.size(), 3);
    EXPECT_LT(lines.indexOf("[dir] " + root + "/a"), lines.indexOf("[dir] " + root + "/a/b"));
}

TEST_F(DuplicateScanTest, TheLogIsForItsOwnerAlone)
{
    const mode_t before = ::umask(0);
    scan();
    ::umask(before);
    EXPECT_EQ(FileSystem::attributes(logFile()).value().permissions, 0600U);
}

TEST_F(DuplicateScanTest, ALinkPlantedAtTheLogsPlaceIsReplacedAndItsTargetUntouched)
{
    const FileURL precious = m_logs.file("precious", "precious");
    m_logs.link("brisko_scan.log", precious.path());
    scan();
    EXPECT_EQ(ScratchTree::content(precious), "precious");
    EXPECT_EQ(FileSystem::attributes(logFile()).value().kind, FileSystem::Kind::regular);
    EXPECT_TRUE(log().startsWith("[dir] "));
    // A hard link likewise: the name goes, the file stays.
    ASSERT_EQ(::unlink(logFile().path().constData()), 0);
    ASSERT_EQ(::link(precious.path().constData(), logFile().path().constData()), 0);
    scan();
    EXPECT_EQ(ScratchTree::content(precious), "precious");
}

TEST_F(DuplicateScanTest, TheScanGoesOnWhereNoLogCanBeMade)
{
    pair("a", "b");
    m_logs.folder("brisko_scan.log");
    EXPECT_EQ(names(scan()), (Lists{{"a", "b"}}));
    EXPECT_EQ(FileSystem::attributes(logFile()).value().kind, FileSystem::Kind::folder);
    EXPECT_FALSE(makeScanLog(m_logs.root()));
    EXPECT_FALSE(makeScanLog(m_logs.at("nowhere")));
    EXPECT_EQ(scanSync({.folders = {m_tree.root()}, .logFolder = m_logs.at("nowhere")}, {}, {}).size(), 1);
    EXPECT_EQ(scanSync({.folders = {m_tree.root()}, .logFolder = {}}, {}, {}).size(), 1);
}

TEST_F(DuplicateScanTest, TheLogIsWrittenTo)
{
    const std::unique_ptr<QFile> made = makeScanLog(m_logs.root());
    ASSERT_TRUE(made);
    EXPECT_EQ(made->write("line\n"), 5);
    made->close();
    EXPECT_EQ(log(), "line\n");
}

// Digests

TEST_F(DuplicateScanTest, DigestsAreThoseOfTheWholeContent)
{
    const QByteArray content = someBytes(2 * kChunk + 77, 9);
    const auto expected = QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
    EXPECT_EQ(sha256(m_tree.file("a", content), {}), expected);
    EXPECT_EQ(sha256(m_tree.file("empty", {}), {}),
              u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
}

TEST_F(DuplicateScanTest, WhatCannotBeOpenedHasNoDigest)
{
    EXPECT_FALSE(sha256(m_tree.at("nowhere"), {}));
    EXPECT_FALSE(sha256(m_tree.folder("folder"), {}));
    EXPECT_FALSE(sha256(m_tree.link("link", "elsewhere"), {}));
    ASSERT_EQ(::mkfifo(m_tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_FALSE(sha256(m_tree.at("pipe"), {}));
    CancelToken cancel;
    cancel.cancel();
    EXPECT_FALSE(sha256(m_tree.file("a", "a"), cancel));
}

// Stopping

TEST_F(DuplicateScanTest, AScanCancelledWhileItCollectsEndsWithNothing)
{
    for (int file = 0; file < 4'500; ++file)
        m_tree.sparseFile("f" + QByteArray::number(file / 100) + "/" + QByteArray::number(file), 4'096);
    QStringList texts;
    const auto groups = scanSync(
        {.folders = {m_tree.root()}, .logFolder = m_logs.root()},
        [&](const QString &text) {
            texts.append(text);
            if (text.endsWith(QStringLiteral("2,000")))
                m_cancel.cancel();
        },
        m_cancel);
    EXPECT_TRUE(groups.isEmpty());
    EXPECT_EQ(texts.last(), u"Collecting files… 2,000");
}

TEST_F(DuplicateScanTest, AScanCancelledWhileItComparesEndsSoonAndIsNotDone)
{
    // What differs early is settled first, when gigabytes that take half a minute are under way.
    for (const char *name : {"a", "b"})
        m_tree.sparseFile(name, qint64{64} << 30);
    for (quint64 seed = 1; seed < 200; ++seed)
        m_tree.file(QByteArray::number(seed), someBytes(20'000, seed));
    QElapsedTimer timer;
    QStringList texts;
    const auto groups = scanSync(
        {.folders = {m_tree.root()}, .logFolder = m_logs.root()},
        [&](const QString &text) {
            texts.append(text);
            if (text.endsWith(u'%') && !m_cancel.isCancelled()) {
                m_cancel.cancel();
                timer.start();
            }
        },
        m_cancel);
    ASSERT_TRUE(timer.isValid());
    EXPECT_LT(timer.elapsed(), 2'000); // 100 ms, but for busy machines and sanitizers
    EXPECT_TRUE(groups.isEmpty());
    EXPECT_FALSE(texts.contains(u"Done"));
}

// Other judges

/// A tree with copies, near copies, hard links and sizes around every boundary, the same for the same seed.
void makeRandomTree(const ScratchTree &tree, unsigned seed)
{
    std::mt19937 random(seed);
    const QList<qsizetype> sizes{4'096, 4'097, 16'383, 16'384, 16'385, 50'000, 262'144, 262'145, 600'000};
    for (int file = 0; file < 250; ++file) {
        QByteArray folder;
        for (int depth = static_cast<int>(random() % 4); depth > 0; --depth)
            folder += "folder " + QByteArray::number(random() % 3) + '/';
        QByteArray content = someBytes(sizes[static_cast<qsizetype>(random() % 9)], random() % 3);
        if (random() % 3 == 0) {
            const qsizetype place = random() % 2 == 0 ? content.size() - 1 : static_cast<qsizetype>(random() % 20'000);
            content[std::min(place, content.size() - 1)] ^= 1;
        }
        const QByteArray name = folder + QByteArray::number(file);
        tree.file(name, content);
        if (random() % 15 == 0) {
            ASSERT_EQ(::link(tree.at(name).path().constData(), tree.at(name + " linked").path().constData()), 0);
        }
    }
}

Sets setsOf(const QList<DuplicateGroup> &groups)
{
    Sets sets;
    for (const DuplicateGroup &group : groups) {
        std::set<QByteArray> files;
        for (const DuplicateFile &file : group.files)
            files.insert(file.url.path());
        sets.insert(files);
    }
    return sets;
}

Sets setsByPlainMeans(const ScratchTree &tree)
{
    std::map<QByteArray, std::set<QByteArray>> byContent;
    const std::function<void(const FileURL &)> visit = [&](const FileURL &folder) {
        const auto entries = FileSystem::list(folder, FileSystem::Hidden::skip, FileSystem::Want::kinds).value();
        for (const FileSystem::Entry &entry : entries) {
            const FileURL item = folder.child(entry.name);
            if (entry.kind == FileSystem::Kind::folder)
                visit(item);
            else
                byContent[ScratchTree::content(item)].insert(item.path());
        }
    };
    visit(tree.root());
    Sets sets;
    for (const auto &[content, files] : byContent) {
        if (files.size() > 1)
            sets.insert(files);
    }
    return sets;
}

Sets setsByJdupes(const ScratchTree &tree)
{
    // -H: hard links count as copies, as with us.
    const QByteArray output = outputOf(JDUPES_PROGRAM " -r -q -H " + tree.root().path());
    Sets sets;
    std::set<QByteArray> files;
    for (const QByteArray &line : output.split('\n')) {
        if (!line.isEmpty())
            files.insert(line);
        else if (!files.empty())
            sets.insert(std::exchange(files, {}));
    }
    return sets;
}

Sets setsByRmlint(const ScratchTree &tree, const ScratchTree &results)
{
    const FileURL report = results.at("report.json");
    outputOf(RMLINT_PROGRAM " -T df -s 4096 -o json:" + report.path() + ' ' + tree.root().path());
    std::map<QString, std::set<QByteArray>> byChecksum;
    const QJsonArray entries = QJsonDocument::fromJson(ScratchTree::content(report)).array();
    for (const auto &entry : entries) {
        const QJsonObject file = entry.toObject();
        if (file.value(QStringLiteral("type")) == QStringLiteral("duplicate_file"))
            byChecksum[file.value(QStringLiteral("checksum")).toString()].insert(
                file.value(QStringLiteral("path")).toString().toUtf8());
    }
    Sets sets;
    for (const auto &[checksum, files] : byChecksum)
        sets.insert(files);
    return sets;
}

class RandomTrees : public DuplicateScanTest, public ::testing::WithParamInterface<unsigned>
{
};

TEST_P(RandomTrees, GiveTheGroupsOfAPlainSecondImplementationAndOfOtherPrograms)
{
    SCOPED_TRACE(GetParam());
    makeRandomTree(m_tree, GetParam());
    Counters counters;
    const QList<DuplicateGroup> groups = scan({m_tree.root()}, &counters);
    const Sets sets = setsOf(groups);
    EXPECT_GT(sets.size(), 10U);
    EXPECT_EQ(sets, setsByPlainMeans(m_tree));
    EXPECT_EQ(sets, setsByJdupes(m_tree));
    EXPECT_EQ(sets, setsByRmlint(m_tree, m_logs));
    qint64 bytesOfOneEach = 0;
    for (const DuplicateGroup &group : groups) {
        bytesOfOneEach += group.files.first().size;
        EXPECT_EQ(sha256(group.files.last().url, {}), group.id);
        EXPECT_TRUE(std::ranges::is_sorted(group.files, std::ranges::less{}, &DuplicateFile::url));
    }
    EXPECT_TRUE(std::ranges::is_sorted(groups, std::ranges::greater{}, &DuplicateGroup::reclaimable));
    EXPECT_LE(static_cast<double>(counters.bytesHashed), 1.25 * static_cast<double>(bytesOfOneEach));
    EXPECT_LE(static_cast<double>(counters.opens), 1.05 * static_cast<double>(counters.candidates));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTrees, ::testing::Values(11U, 12U, 13U, 14U));

} // namespace
