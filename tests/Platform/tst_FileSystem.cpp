// SPDX-License-Identifier: MIT
#include "Platform/FileSystem.h"

#include "Fakes/RandomTree.h"
#include "Fakes/ScratchTree.h"
#include "Platform/Descriptor.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <dirent.h>
#include <sys/inotify.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdio>
#include <functional>
#include <thread>

namespace {

using FileSystem::Attributes;
using FileSystem::EntryView;
using FileSystem::Hidden;
using FileSystem::Kind;
using FileSystem::Measure;
using FileSystem::Root;
using FileSystem::WalkOptions;
using FileSystem::Want;

/// Everything that a walk reports, one line a call.
class Recorder : public FileSystem::Visitor
{
public:
    void folder(const FileURL &folder, int depth) override
    {
        lines.append("folder " + QByteArray::number(depth) + ' ' + folder.path());
    }
    void entry(const FileURL &folder, const EntryView &entry) override
    {
        lines.append("entry " + QByteArray::number(static_cast<int>(entry.kind)) + ' ' +
                     folder.child(entry.name).path() +
                     (entry.attributes ? ' ' + QByteArray::number(entry.attributes->size.value_or(-1)) : ""));
    }
    QList<QByteArray> lines;
};

/// The same by the plainest means: one thread, whole paths, recursion.
void plainWalk(const FileURL &folder, int depth, const WalkOptions &options, FileSystem::Visitor &visitor)
{
    visitor.folder(folder, depth);
    DIR *stream = ::opendir(folder.path().constData());
    if (!stream)
        return;
    while (const dirent *found = ::readdir(stream)) {
        const QByteArray name(found->d_name);
        if (name == "." || name == ".." || (options.hidden == Hidden::skip && name.startsWith('.')))
            continue;
        struct stat status {
        };
        if (::lstat(folder.child(name).path().constData(), &status) != 0)
            continue;
        const Kind kind = S_ISREG(status.st_mode)   ? Kind::regular
                          : S_ISDIR(status.st_mode) ? Kind::folder
                          : S_ISLNK(status.st_mode) ? Kind::link
                                                    : Kind::other;
        if (options.takes && !options.takes(folder, name, kind))
            continue;
        const Attributes attributes{.kind = kind, .size = status.st_size};
        const bool isWanted =
            options.want == Want::everything || (options.want == Want::files && kind == Kind::regular);
        visitor.entry(folder, {.name = name, .kind = kind, .attributes = isWanted ? &attributes : nullptr});
        if (kind == Kind::folder && depth + 1 < options.levels)
            plainWalk(folder.child(name), depth + 1, options, visitor);
    }
    ::closedir(stream);
}

QList<QByteArray> walked(const FileURL &root, const WalkOptions &options = {})
{
    Recorder recorder;
    FileSystem::walk(root, options, recorder, {});
    return recorder.lines;
}

QList<QByteArray> plainlyWalked(const FileURL &root, const WalkOptions &options = {})
{
    Recorder recorder;
    plainWalk(root, 0, options, recorder);
    return recorder.lines;
}

qsizetype countOf(const QList<QByteArray> &lines, const QByteArray &part)
{
    return std::count_if(lines.begin(), lines.end(), [&](const QByteArray &line) { return line.contains(part); });
}

/// What a shell prints; it must succeed.
QByteArray output(const QByteArray &command)
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

QByteArray quoted(const FileURL &item)
{
    return '\'' + QByteArray(item.path()).replace("'", "'\\''") + '\'';
}

QList<QByteArray> namesOf(const QList<FileSystem::Entry> &entries)
{
    QList<QByteArray> names;
    for (const FileSystem::Entry &entry : entries)
        names.append(entry.name);
    std::sort(names.begin(), names.end());
    return names;
}

int openFor(const FileURL &item, int flags)
{
    return FileSystem::openItem(item, flags).value_or(-1);
}

/// Folders inside each other, deeper than any path reaches; taken apart step by step again.
class DeepTree
{
public:
    DeepTree(int levels, const QByteArray &name, bool withSiblings)
    {
        Descriptor at(openFor(m_tree.root(), O_RDONLY | O_DIRECTORY));
        for (int i = 0; i < levels; ++i) {
            if (::mkdirat(at.get(), name.constData(), 0755) != 0)
                throw std::runtime_error("a deep folder could not be made");
            if (withSiblings)
                makeFile(at.get(), "sibling", "file");
            at = Descriptor(::openat(at.get(), name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
            m_bottom = m_bottom.isEmpty() ? m_tree.root().child(name) : m_bottom.child(name);
        }
        const Descriptor file(::openat(at.get(), "bottom", O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
        if (::write(file.get(), "12345", 5) != 5)
            throw std::runtime_error("a deep file could not be written");
    }
    ~DeepTree() { output("rm -rf " + quoted(m_tree.root()) + "/*"); }

    [[nodiscard]] const FileURL &root() const { return m_tree.root(); }
    [[nodiscard]] const FileURL &bottom() const { return m_bottom; }

private:
    static void makeFile(int folder, const char *inside, const char *name)
    {
        if (::mkdirat(folder, inside, 0755) != 0)
            throw std::runtime_error("a deep folder could not be made");
        const Descriptor made(::openat(folder, inside, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        const Descriptor file(::openat(made.get(), name, O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    }
    ScratchTree m_tree;
    FileURL m_bottom;
};

TEST(FileSystemDateTime, IsUtcInWholeMillisecondsRoundedDown)
{
    EXPECT_EQ(FileSystem::dateTime(1'700'000'000'123'999'999),
              QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC));
    EXPECT_EQ(FileSystem::dateTime(-1), QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC));
    EXPECT_EQ(FileSystem::dateTime(-1'000'000), QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC));
    EXPECT_EQ(FileSystem::dateTime(0).timeSpec(), Qt::UTC);
}

TEST(FileSystemAttributes, TellALinkFromWhatItLeadsTo)
{
    const ScratchTree tree;
    const FileURL file = tree.file("file", "12345");
    const FileURL link = tree.link("link", "file");
    ScratchTree::setModified(file, QDateTime::fromMSecsSinceEpoch(1'500'000'000'250, Qt::UTC));
    const Attributes direct = FileSystem::attributes(file).value();
    EXPECT_EQ(direct.kind, Kind::regular);
    EXPECT_EQ(direct.size, 5);
    EXPECT_EQ(direct.modified, 1'500'000'000'250'000'000);
    EXPECT_EQ(direct.permissions, 0644U);
    EXPECT_EQ(direct.owner, ::geteuid());
    EXPECT_EQ(FileSystem::attributes(link).value().kind, Kind::link);
    EXPECT_EQ(FileSystem::attributes(link, Root::follow).value().inode, direct.inode);
    EXPECT_EQ(FileSystem::attributes(tree.at("none")).error(), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(FileSystem::attributes(FileURL()));
}

TEST(FileSystemAttributes, TakeALengthThatNoDiskHoldsForUnknown)
{
    const Descriptor memory(::memfd_create("huge", MFD_CLOEXEC));
    const auto way = FileURL::fromPath("/proc/self/fd/" + QByteArray::number(memory.get())).value();
    ASSERT_EQ(::ftruncate(memory.get(), off_t{1} << 60), 0);
    EXPECT_EQ(FileSystem::attributes(way, Root::follow).value().size, qint64{1} << 60);
    ASSERT_EQ(::ftruncate(memory.get(), (off_t{1} << 60) + 1), 0);
    EXPECT_EQ(FileSystem::attributes(way, Root::follow).value().size, std::nullopt);
}

TEST(FileSystemExists, IsTrueForALinkThatLeadsNowhere)
{
    const ScratchTree tree;
    EXPECT_TRUE(FileSystem::exists(tree.root()));
    EXPECT_TRUE(FileSystem::exists(tree.link("link", "nowhere")));
    EXPECT_FALSE(FileSystem::exists(tree.at("none")));
}

TEST(FileSystemResolved, FollowsEveryLinkOnTheWay)
{
    const ScratchTree tree;
    const FileURL file = tree.file("real/file");
    tree.link("link", "real");
    EXPECT_EQ(FileSystem::resolved(tree.at("link/file")), file);
    EXPECT_EQ(FileSystem::resolved(tree.at("link/none")), tree.at("link/none"));
    tree.link("loop", "loop");
    EXPECT_EQ(FileSystem::resolved(tree.at("loop")), tree.at("loop"));
}

TEST(FileSystemList, HidesNamesThatBeginWithADot)
{
    const ScratchTree tree;
    tree.file("a");
    tree.file(".b");
    EXPECT_EQ(namesOf(FileSystem::list(tree.root(), Hidden::skip, Want::kinds).value()), QList<QByteArray>{"a"});
    EXPECT_EQ(namesOf(FileSystem::list(tree.root(), Hidden::include, Want::kinds).value()),
              (QList<QByteArray>{".b", "a"}));
}

TEST(FileSystemList, TellsKindsAndAttributes)
{
    const ScratchTree tree;
    tree.file("file", "12345");
    tree.folder("folder");
    tree.link("link", "file");
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    for (const Want want : {Want::kinds, Want::files, Want::everything}) {
        const auto entries = FileSystem::list(tree.root(), Hidden::skip, want);
        ASSERT_TRUE(entries);
        ASSERT_EQ(entries->size(), 4);
        for (const FileSystem::Entry &entry : *entries) {
            const Kind expected = entry.name == "file"     ? Kind::regular
                                  : entry.name == "folder" ? Kind::folder
                                  : entry.name == "link"   ? Kind::link
                                                           : Kind::other;
            EXPECT_EQ(entry.kind, expected) << entry.name.constData();
            EXPECT_EQ(entry.attributes.has_value(),
                      want == Want::everything || (want == Want::files && entry.name == "file"));
        }
    }
}

TEST(FileSystemList, IsAnErrorForWhatIsNoFolder)
{
    const ScratchTree tree;
    tree.file("real/file");
    tree.link("link", "real");
    EXPECT_FALSE(FileSystem::list(tree.at("none"), Hidden::skip, Want::kinds));
    EXPECT_FALSE(FileSystem::list(tree.at("real/file"), Hidden::skip, Want::kinds));
    EXPECT_TRUE(FileSystem::list(tree.at("link"), Hidden::skip, Want::kinds, Root::follow));
    EXPECT_FALSE(FileSystem::list(tree.at("link"), Hidden::skip, Want::kinds, Root::doNotFollow));
}

TEST(FileSystemList, AnswersNamesOfAnyBytes)
{
    const ScratchTree tree;
    QList<QByteArray> names{QByteArray(255, 'n'), "\xff\xfe", "\n", "-rf", " "};
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '/')
            names.append("x" + QByteArray(1, static_cast<char>(byte)));
    }
    for (const QByteArray &name : names) {
        const Descriptor made(::open(tree.root().child(name).path().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
        ASSERT_TRUE(made.isOpen());
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(namesOf(FileSystem::list(tree.root(), Hidden::skip, Want::files).value()), names);
    QList<QByteArray> lines = walked(tree.root());
    QList<QByteArray> expected{"folder 0 " + tree.root().path()};
    for (const QByteArray &name : names)
        expected.append("entry 0 " + tree.root().path() + '/' + name + " 0");
    std::sort(lines.begin(), lines.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(lines, expected);
}

TEST(FileSystemRead, AnswersTheFirstBytesOfARegularFileAlone)
{
    const ScratchTree tree;
    const FileURL file = tree.file("file", "0123456789");
    tree.link("link", "file");
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    EXPECT_EQ(FileSystem::read(file, 4).value(), "0123");
    EXPECT_EQ(FileSystem::read(file, 1'000'000'000'000).value(), "0123456789");
    EXPECT_EQ(FileSystem::read(file, 0).value(), "");
    EXPECT_FALSE(FileSystem::read(tree.at("none"), 4));
    EXPECT_FALSE(FileSystem::read(tree.at("link"), 4));
    EXPECT_FALSE(FileSystem::read(tree.at("pipe"), 4));
    EXPECT_FALSE(FileSystem::read(tree.root(), 4));
    const QByteArray large(300'000, 'z');
    EXPECT_EQ(FileSystem::read(tree.file("large", large), 1'000'000).value(), large);
}

TEST(FileSystemOpenItem, NeverOpensThroughALinkAtTheEnd)
{
    const ScratchTree tree;
    const FileURL file = tree.file("file");
    EXPECT_TRUE(Descriptor(openFor(file, O_RDONLY)).isOpen());
    EXPECT_TRUE(Descriptor(openFor(file, O_WRONLY)).isOpen());
    EXPECT_FALSE(FileSystem::openItem(tree.link("link", "file"), O_RDONLY));
    const Descriptor opened(openFor(file, O_RDONLY));
    EXPECT_NE(::fcntl(opened.get(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST(FileSystemWalk, ReportsRandomTreesInTheOrderOfASerialWalk)
{
    for (unsigned seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RandomTree tree(seed, 400);
        for (const Hidden hidden : {Hidden::skip, Hidden::include}) {
            for (const Want want : {Want::kinds, Want::files, Want::everything}) {
                const WalkOptions options{.hidden = hidden, .want = want};
                EXPECT_EQ(walked(tree.root(), options), plainlyWalked(tree.root(), options));
            }
        }
    }
}

TEST(FileSystemWalk, FindsWhatFindFinds)
{
    for (unsigned seed = 21; seed <= 24; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RandomTree tree(seed, 400);
        class Files : public FileSystem::Visitor
        {
        public:
            void entry(const FileURL &folder, const EntryView &entry) override
            {
                if (entry.kind == Kind::regular)
                    found.append(folder.child(entry.name).path() + ' ' +
                                 QByteArray::number(entry.attributes->size.value()));
            }
            QList<QByteArray> found;
        } files;
        FileSystem::walk(tree.root(), {.hidden = Hidden::include}, files, {});
        QList<QByteArray> expected = output("find " + quoted(tree.root()) + " -type f -printf '%p %s\\0'").split('\0');
        expected.removeLast();
        std::sort(files.found.begin(), files.found.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(files.found, expected);
    }
}

TEST(FileSystemWalk, ListsAsManyLevelsAsAsked)
{
    const RandomTree tree(31, 500);
    for (const int levels : {1, 2, 3, 4}) {
        const WalkOptions options{.hidden = Hidden::include, .levels = levels};
        EXPECT_EQ(walked(tree.root(), options), plainlyWalked(tree.root(), options));
    }
    EXPECT_EQ(walked(tree.root(), {.levels = 0}), QList<QByteArray>{"folder 0 " + tree.root().path()});
}

TEST(FileSystemWalk, NeitherReportsNorEntersWhatDoesNotCount)
{
    const RandomTree tree(41, 400);
    const WalkOptions options{.takes = [](const FileURL &folder, QByteArrayView name, Kind kind) {
        return name != "Library" && !(kind == Kind::folder && name.endsWith(".app")) && !folder.path().endsWith("7");
    }};
    EXPECT_EQ(walked(tree.root(), options), plainlyWalked(tree.root(), options));
}

TEST(FileSystemWalk, FollowsNoLinkButTheRootWhereAsked)
{
    const ScratchTree tree;
    tree.file("real/file", "1");
    tree.link("real/back", "..");
    tree.link("real/self", "self");
    tree.link("real/root", "/");
    const FileURL link = tree.link("link", "real");
    const auto through = walked(link, {.root = Root::follow});
    EXPECT_EQ(through.size(), 5);
    EXPECT_TRUE(through.contains("entry 0 " + link.child("file").path() + " 1"));
    EXPECT_TRUE(through.contains("entry 2 " + link.child("back").path()));
    EXPECT_EQ(walked(link, {.root = Root::doNotFollow}), QList<QByteArray>{"folder 0 " + link.path()});
    EXPECT_EQ(walked(tree.at("none")), QList<QByteArray>{"folder 0 " + tree.at("none").path()});
}

TEST(FileSystemWalk, ReportsAFolderThatCannotBeReadAndNothingInIt)
{
    const ScratchTree tree;
    tree.file("a/file");
    tree.file("closed/secret");
    tree.file("z/file");
    for (const char *item : {"", "a", "closed", "z"})
        OrdinaryUser::own(tree.at(item));
    ASSERT_EQ(::chmod(tree.at("closed").path().constData(), 0), 0);
    {
        const OrdinaryUser user;
        const QList<QByteArray> lines = walked(tree.root(), {.want = Want::kinds});
        EXPECT_EQ(lines.size(), 9);
        EXPECT_TRUE(lines.contains("folder 1 " + tree.at("closed").path()));
        EXPECT_EQ(countOf(lines, "secret"), 0);
        EXPECT_EQ(countOf(lines, "/file"), 2);
        EXPECT_EQ(FileSystem::list(tree.at("closed"), Hidden::skip, Want::kinds).error(), std::errc::permission_denied);
        EXPECT_EQ(FileSystem::measure(tree.at("closed"), Hidden::skip, {}).error(), std::errc::permission_denied);
        EXPECT_EQ(FileSystem::measure(tree.root(), Hidden::skip, {}).value().logical, 14);
    }
    ::chmod(tree.at("closed").path().constData(), 0700);
}

TEST(FileSystemWalk, OpensFoldersAndNothingElse)
{
    const ScratchTree tree;
    tree.file("file");
    tree.folder("folder");
    ASSERT_EQ(::mkfifo(tree.at("pipe").path().constData(), 0600), 0);
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const QByteArray socketPath = tree.at("socket").path();
    ASSERT_LT(static_cast<size_t>(socketPath.size()), sizeof address.sun_path);
    std::copy(socketPath.begin(), socketPath.end(), address.sun_path);
    ASSERT_EQ(::bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    if (::geteuid() == 0) {
        ASSERT_EQ(::mknod(tree.at("device").path().constData(), S_IFCHR | 0600, makedev(1, 3)), 0);
    }

    // The system tells of every open in the watched folder.
    const Descriptor watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ASSERT_GE(::inotify_add_watch(watch.get(), tree.root().path().constData(), IN_OPEN), 0);
    const auto openedNames = [&watch] {
        QList<QByteArray> names;
        alignas(inotify_event) char buffer[4096];
        for (ssize_t got; (got = ::read(watch.get(), buffer, sizeof buffer)) > 0;) {
            for (const char *at = buffer; at < buffer + got;) {
                const auto *event = reinterpret_cast<const inotify_event *>(at);
                if (event->len > 0)
                    names.append(QByteArray(event->name));
                at += sizeof(inotify_event) + event->len;
            }
        }
        return names;
    };
    EXPECT_EQ(walked(tree.root(), {.want = Want::everything}).size(), ::geteuid() == 0 ? 7 : 6);
    EXPECT_TRUE(FileSystem::measure(tree.root(), Hidden::include, {}));
    EXPECT_TRUE(FileSystem::list(tree.root(), Hidden::include, Want::everything));
    EXPECT_FALSE(FileSystem::read(tree.at("pipe"), 1));
    EXPECT_FALSE(FileSystem::read(tree.at("socket"), 1));
    EXPECT_FALSE(FileSystem::read(tree.at("device"), 1));
    EXPECT_EQ(openedNames(), (QList<QByteArray>{"folder", "folder"})); // once by each of the two that go deep
    const Descriptor control(openFor(tree.at("pipe"), O_RDONLY | O_NONBLOCK));
    EXPECT_EQ(openedNames(), QList<QByteArray>{"pipe"});
}

TEST(FileSystemWalk, SurvivesATreeThatVanishesMeanwhile)
{
    class Remover : public Recorder
    {
    public:
        explicit Remover(const FileURL &folder)
            : m_folder(folder)
        {
        }
        void entry(const FileURL &folder, const EntryView &entry) override
        {
            if (!m_folder.isEmpty())
                output("rm -rf " + quoted(std::exchange(m_folder, FileURL())));
            Recorder::entry(folder, entry);
        }

    private:
        FileURL m_folder;
    };
    const ScratchTree tree;
    for (int i = 0; i < 60; ++i) {
        tree.file("gone/" + QByteArray::number(i) + "/a/b/file");
        tree.file("stays/" + QByteArray::number(i) + "/a/file");
    }
    Remover remover(tree.at("gone"));
    FileSystem::walk(tree.root(), {}, remover, {});
    EXPECT_FALSE(ScratchTree::exists(tree.at("gone")));
    EXPECT_EQ(countOf(remover.lines, "entry 0 " + tree.at("stays").path()), 60);
}

TEST(FileSystemWalk, SurvivesATreeThatChangesAllTheTime)
{
    const ScratchTree tree;
    for (int i = 0; i < 40; ++i)
        tree.file("stays/" + QByteArray::number(i) + "/file");
    std::atomic<bool> stop = false;
    std::thread changer([&] {
        const QByteArray moving = tree.folder("moving").path();
        for (int i = 0; !stop; ++i) {
            const QByteArray folder = moving + '/' + QByteArray::number(i % 50);
            ::mkdir(folder.constData(), 0755);
            ::close(::open((folder + "/f").constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
            const QByteArray other = moving + '/' + QByteArray::number((i + 25) % 50);
            ::unlink((other + "/f").constData());
            ::rmdir(other.constData());
        }
    });
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(countOf(walked(tree.root()), "entry 0 " + tree.at("stays").path()), 40);
        EXPECT_TRUE(FileSystem::measure(tree.root(), Hidden::include, {}));
    }
    stop = true;
    changer.join();
}

/// A folder of 100,000 files, three bytes each in every tenth.
class LargeFolder : public testing::Test
{
protected:
    static constexpr int kFiles = 100'000;
    static void SetUpTestSuite()
    {
        s_tree = new ScratchTree;
        const Descriptor folder(openFor(s_tree->root(), O_RDONLY | O_DIRECTORY));
        for (int i = 0; i < kFiles; ++i) {
            const Descriptor made(
                ::openat(folder.get(), QByteArray::number(i).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
            if (!made.isOpen() || (i % 10 == 0 && ::ftruncate(made.get(), 3) != 0))
                throw std::runtime_error("the large folder could not be made");
        }
    }
    static void TearDownTestSuite() { delete s_tree; }
    static inline ScratchTree *s_tree = nullptr;
};

TEST_F(LargeFolder, IsWalkedInItsOwnOrderWithAllAttributes)
{
    EXPECT_EQ(walked(s_tree->root()), plainlyWalked(s_tree->root()));
}

TEST_F(LargeFolder, IsMeasuredAndListed)
{
    const Measure measure = FileSystem::measure(s_tree->root(), Hidden::include, {}).value();
    EXPECT_EQ(measure.entries, kFiles);
    EXPECT_EQ(measure.logical, 3 * kFiles / 10);
    EXPECT_EQ(FileSystem::list(s_tree->root(), Hidden::include, Want::kinds).value().size(), kFiles);
}

TEST_F(LargeFolder, IsLeftAtOnceWhenCancelledWhileItIsRead)
{
    constexpr int most = 6 * 256; // what each thread may still do before it looks at the token
    const CancelToken cancel;
    std::atomic<int> after = 0;
    QElapsedTimer time;
    Recorder recorder;
    FileSystem::walk(s_tree->root(),
                     {.takes =
                          [&](const FileURL &, QByteArrayView, Kind) {
                              if (cancel.isCancelled()) {
                                  ++after;
                              } else {
                                  time.start();
                                  cancel.cancel();
                              }
                              return true;
                          }},
                     recorder, cancel);
    EXPECT_LT(time.elapsed(), 1'000);
    EXPECT_LT(after, most);
    EXPECT_EQ(recorder.lines.size(), 1);
}

TEST_F(LargeFolder, ReportsNothingMoreOnceCancelledWhileItIsReported)
{
    class Canceller : public Recorder
    {
    public:
        void entry(const FileURL &folder, const EntryView &entry) override
        {
            Recorder::entry(folder, entry);
            if (lines.size() == 1'000)
                cancel.cancel();
        }
        CancelToken cancel;
    } canceller;
    FileSystem::walk(s_tree->root(), {}, canceller, canceller.cancel);
    EXPECT_EQ(canceller.lines.size(), 1'000);
}

TEST_F(LargeFolder, IsNotMeasuredWhenCancelledBefore)
{
    const CancelToken cancel;
    cancel.cancel();
    EXPECT_LT(FileSystem::measure(s_tree->root(), Hidden::include, cancel).value().entries, 6 * 256);
    EXPECT_EQ(walked(s_tree->root()).size(), kFiles + 1);
}

TEST(FileSystemWalk, StopsInTheMiddleOfATree)
{
    const RandomTree tree(51, 800);
    const qsizetype all = walked(tree.root()).size();
    for (const qsizetype stopAt : {qsizetype{2}, all / 4, all / 2, all - 1}) {
        class Canceller : public Recorder
        {
        public:
            explicit Canceller(qsizetype lineCount)
                : m_stopAt(lineCount)
            {
            }
            void entry(const FileURL &folder, const EntryView &entry) override
            {
                Recorder::entry(folder, entry);
                if (lines.size() >= m_stopAt)
                    cancel.cancel();
            }
            CancelToken cancel;

        private:
            qsizetype m_stopAt;
        } canceller(stopAt);
        FileSystem::walk(tree.root(), {}, canceller, canceller.cancel);
        EXPECT_LE(canceller.lines.size(), stopAt + 2); // folders are announced between two entries
        EXPECT_EQ(canceller.lines, walked(tree.root()).first(canceller.lines.size()));
    }
}

TEST(FileSystemDepth, ReachesFiveThousandLevelsDown)
{
    constexpr int levels = 5'000;
    const DeepTree tree(levels, "level-name", false);
    ASSERT_GT(tree.bottom().path().size(), 10 * PATH_MAX);
    class Bottom : public FileSystem::Visitor
    {
    public:
        void folder(const FileURL &folder, int depth) override
        {
            ++folders;
            deepest = std::max(deepest, depth);
            last = folder;
        }
        void entry(const FileURL &folder, const EntryView &entry) override
        {
            if (entry.kind == Kind::regular && entry.attributes->size == 5)
                file = folder.child(entry.name);
        }
        int folders = 0;
        int deepest = 0;
        FileURL last;
        FileURL file;
    } bottom;
    FileSystem::walk(tree.root(), {}, bottom, {});
    EXPECT_EQ(bottom.folders, levels + 1);
    EXPECT_EQ(bottom.deepest, levels);
    EXPECT_EQ(bottom.last, tree.bottom());
    EXPECT_EQ(bottom.file, tree.bottom().child("bottom"));

    const Measure measure = FileSystem::measure(tree.root(), Hidden::include, {}).value();
    EXPECT_EQ(measure.logical, 5);
    EXPECT_EQ(measure.entries, levels + 1);
    EXPECT_EQ(FileSystem::attributes(bottom.file).value().size, 5);
    EXPECT_EQ(FileSystem::read(bottom.file, 10).value(), "12345");
    EXPECT_EQ(FileSystem::list(tree.bottom(), Hidden::skip, Want::kinds).value().size(), 1);
    EXPECT_TRUE(Descriptor(openFor(bottom.file, O_RDONLY)).isOpen());
    EXPECT_EQ(FileSystem::openItem(tree.bottom().child("none"), O_RDONLY).error(),
              std::errc::no_such_file_or_directory);
}

TEST(FileSystemDepth, NeedsFewDescriptorsHoweverManyLevelsHaveSomethingLeft)
{
    constexpr int levels = 400;
    const DeepTree tree(levels, QByteArray(40, 'n'), true);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few{.rlim_cur = 128, .rlim_max = before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    const QList<QByteArray> lines = walked(tree.root());
    const auto measure = FileSystem::measure(tree.root(), Hidden::include, {});
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(countOf(lines, "/sibling/file"), levels);
    EXPECT_EQ(countOf(lines, "/bottom 5"), 1);
    EXPECT_EQ(measure.value().entries, 3 * levels + 1);
}

TEST(FileSystemMeasure, AddsUpAllThatLiesBelow)
{
    const ScratchTree tree;
    tree.file("a", "123");
    tree.file("sub/.hidden", "12345");
    const FileURL link = tree.link("sub/link", "../sub");
    const Measure all = FileSystem::measure(tree.root(), Hidden::include, {}).value();
    EXPECT_EQ(all.logical, 8);
    EXPECT_EQ(all.entries, 4);
    EXPECT_EQ(FileSystem::measure(tree.root(), Hidden::skip, {}).value().logical, 3);
    EXPECT_FALSE(FileSystem::measure(tree.at("none"), Hidden::include, {}));
    EXPECT_FALSE(FileSystem::measure(tree.at("a"), Hidden::include, {}));
    EXPECT_FALSE(FileSystem::measure(link, Hidden::include, {}));
    EXPECT_EQ(FileSystem::measure(link, Hidden::include, {}, Root::follow).value().logical, 5);
}

TEST(FileSystemMeasure, CountsEachHardLink)
{
    const ScratchTree tree;
    const FileURL file = tree.file("a", QByteArray(10'000, 'x'));
    const qint64 once = FileSystem::measure(tree.root(), Hidden::include, {}).value().allocated;
    ASSERT_EQ(::link(file.path().constData(), tree.at("b").path().constData()), 0);
    const Measure twice = FileSystem::measure(tree.root(), Hidden::include, {}).value();
    EXPECT_EQ(twice.logical, 20'000);
    EXPECT_EQ(twice.allocated, 2 * once);
}

TEST(FileSystemMeasure, EqualsWhatDuSays)
{
    for (unsigned seed = 61; seed <= 63; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RandomTree tree(seed, 400);
        const Measure measure = FileSystem::measure(tree.root(), Hidden::include, {}).value();
        const auto told = [&](const QByteArray &which, const QByteArray &how) {
            return output("find " + quoted(tree.root()) + ' ' + which + " -print0 | du -l -c -B1 " + how +
                          " --files0-from=- | tail -n 1 | cut -f 1")
                .toLongLong();
        };
        EXPECT_EQ(measure.logical, told("-type f", "--apparent-size"));
        EXPECT_EQ(measure.allocated, told("! -type d", ""));
        EXPECT_EQ(measure.entries, countOf(plainlyWalked(tree.root(), {.hidden = Hidden::include}), "entry "));
    }
}

TEST(FileSystemAccessTimes, StayAsTheyWere)
{
    const ScratchTree tree;
    const FileURL file = tree.file("folder/file", "12345");
    const FileURL folder = tree.at("folder");
    // An access long before the last change is what the system would put right at the next read.
    const timespec times[2] = {{.tv_sec = 1'000'000'000, .tv_nsec = 7}, {.tv_sec = 1'600'000'000, .tv_nsec = 0}};
    for (const FileURL &item : {tree.root(), folder, file})
        ASSERT_EQ(::utimensat(AT_FDCWD, item.path().constData(), times, 0), 0);
    EXPECT_EQ(walked(tree.root()).size(), 4);
    EXPECT_EQ(FileSystem::measure(tree.root(), Hidden::include, {}).value().logical, 5);
    EXPECT_EQ(FileSystem::list(folder, Hidden::include, Want::everything).value().size(), 1);
    EXPECT_EQ(FileSystem::read(file, 100).value(), "12345");
    const Descriptor opened(openFor(file, O_RDONLY));
    char byte = 0;
    ASSERT_EQ(::read(opened.get(), &byte, 1), 1);
    for (const FileURL &item : {tree.root(), folder, file})
        EXPECT_EQ(FileSystem::attributes(item).value().accessed, 1'000'000'000'000'000'007) << item.path().constData();
}

TEST(FileSystemAccessTimes, AreNoReasonNotToReadWhatBelongsToOthers)
{
    if (::geteuid() != 0) {
        // The account's own root folder belongs to another user on every machine.
        EXPECT_FALSE(walked(FileURL::root(), {.want = Want::kinds, .levels = 1}).isEmpty());
        return;
    }
    const ScratchTree tree;
    tree.file("folder/file", "12345");
    ASSERT_EQ(::chmod(tree.root().path().constData(), 0755), 0);
    const OrdinaryUser user;
    EXPECT_EQ(walked(tree.root()).size(), 4);
    EXPECT_EQ(FileSystem::read(tree.at("folder/file"), 100).value(), "12345");
}

TEST(FileSystemThreads, SeveralWalksGoOnAtOnce)
{
    const RandomTree tree(71, 600);
    const QList<QByteArray> expected = plainlyWalked(tree.root());
    const Measure sum = FileSystem::measure(tree.root(), Hidden::include, {}).value();
    std::atomic<int> right = 0;
    constexpr int walkers = 4;
    std::vector<std::thread> threads;
    threads.reserve(walkers);
    for (int i = 0; i < walkers; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 5; ++round) {
                const auto measure = FileSystem::measure(tree.root(), Hidden::include, {}).value();
                if (walked(tree.root()) == expected && measure.logical == sum.logical && measure.entries == sum.entries)
                    ++right;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, 5 * walkers);
}

} // namespace
