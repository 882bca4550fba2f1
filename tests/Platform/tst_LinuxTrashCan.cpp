// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxTrashCan.h"

#include "Platform/FileSystem.h"
#include "Platform/Linux/DirectorySizes.h"
#include "Platform/Linux/TrashError.h"
#include "Platform/TrashDesk.h"

#include <gtest/gtest.h>

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/xattr.h>

#include <csignal>
#include <random>

namespace {

QByteArray sizesText(const TrashDesk &desk)
{
    return ScratchTree::content(desk.homeTrash().child("directorysizes"));
}

TEST(LinuxTrashCan, movesAFileAndRecordsWhereItWas)
{
    const TrashDesk desk;
    const FileURL file = desk.tree.file("home/a b.txt", "bytes");
    const auto trashed = desk.trash(file);
    ASSERT_TRUE(trashed.has_value()) << trashed.error().message();
    EXPECT_EQ(*trashed, desk.homeTrash().appending("files/a b.txt"));
    EXPECT_FALSE(ScratchTree::exists(file));
    EXPECT_EQ(ScratchTree::content(*trashed), "bytes");
    EXPECT_EQ(TrashDesk::originOf(*trashed), file.path());
    EXPECT_EQ(TrashDesk::modeOf(TrashDesk::recordOf(*trashed)), 0600U);
    EXPECT_EQ(TrashDesk::modeOf(desk.homeTrash()), 0700U);
    EXPECT_EQ(TrashDesk::modeOf(desk.homeTrash().child("files")), 0700U);
    EXPECT_EQ(TrashDesk::modeOf(desk.homeTrash().child("info")), 0700U);
}

TEST(LinuxTrashCan, recordsTheLocalTimeOfTheDeletion)
{
    const TrashDesk desk;
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    const auto trashed = desk.trash(desk.tree.file("home/a"));
    const QByteArray line = ScratchTree::content(TrashDesk::recordOf(trashed.value())).split('\n').value(2);
    const QDateTime when = QDateTime::fromString(QString::fromLatin1(line.sliced(13)), Qt::ISODate);
    EXPECT_EQ(line.size(), 13 + 19) << line.constData();
    EXPECT_GE(when, before);
    EXPECT_LE(when, QDateTime::currentDateTime());
}

TEST(LinuxTrashCan, movesFoldersLinksPipesAndSocketsAsWhatTheyAre)
{
    const TrashDesk desk;
    desk.tree.file("home/folder/inner/file");
    const FileURL kept = desk.tree.file("home/kept");
    const FileURL link = desk.tree.link("home/link", "kept");
    const FileURL broken = desk.tree.link("home/broken", "nowhere");
    const FileURL pipe = desk.tree.at("home/pipe");
    ASSERT_EQ(::mkfifo(pipe.path().constData(), 0600), 0);
    for (const FileURL &item : {desk.tree.at("home/folder"), link, broken, pipe}) {
        const auto trashed = desk.trash(item);
        ASSERT_TRUE(trashed.has_value()) << item.path().constData();
        EXPECT_FALSE(ScratchTree::exists(item));
        EXPECT_EQ(TrashDesk::originOf(*trashed), item.path());
    }
    EXPECT_TRUE(ScratchTree::exists(kept));
    EXPECT_EQ(FileSystem::attributes(desk.homeTrash().appending("files/link"))->kind, FileSystem::Kind::link);
    EXPECT_TRUE(ScratchTree::exists(desk.homeTrash().appending("files/folder/inner/file")));
}

TEST(LinuxTrashCan, neverReplacesWhatIsThere)
{
    for (const Renames renames : {Renames::exclusive, Renames::placeholder}) {
        TrashDesk desk;
        desk.environment.renames = renames;
        desk.tree.file("home/.local/share/Trash/files/a.txt", "an item without a record");
        desk.tree.file("home/.local/share/Trash/info/a.2.txt.trashinfo", "a record without an item");
        desk.tree.folder("home/.local/share/Trash/files/folder");
        const auto file = desk.trash(desk.tree.file("home/a.txt", "new"));
        ASSERT_TRUE(file.has_value());
        EXPECT_EQ(file->name(), "a.3.txt");
        EXPECT_EQ(ScratchTree::content(*file), "new");
        desk.tree.file("home/folder/inside");
        const auto folder = desk.trash(desk.tree.at("home/folder"));
        ASSERT_TRUE(folder.has_value());
        EXPECT_EQ(folder->name(), "folder.2");
        EXPECT_EQ(ScratchTree::content(desk.homeTrash().appending("files/a.txt")), "an item without a record");
        EXPECT_EQ(ScratchTree::content(desk.homeTrash().appending("info/a.2.txt.trashinfo")),
                  "a record without an item");
        EXPECT_TRUE(TrashDesk::names(desk.homeTrash().appending("files/folder")).isEmpty());
        EXPECT_FALSE(ScratchTree::exists(desk.homeTrash().appending("info/a.txt.trashinfo")));
    }
}

TEST(LinuxTrashCan, leavesNothingBehindWhenThePlaceholderIsNotNeeded)
{
    TrashDesk desk;
    desk.environment.renames = Renames::placeholder;
    desk.tree.file("home/folder/inside");
    // A folder cannot be moved into itself, whichever way.
    desk.environment.homeTrash = desk.tree.at("home/folder/Trash");
    EXPECT_EQ(desk.trashError(desk.tree.at("home/folder")), std::errc::invalid_argument);
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("info")).isEmpty());
    EXPECT_TRUE(ScratchTree::exists(desk.tree.at("home/folder/inside")));
}

TEST(LinuxTrashCan, keepsThousandsOfOneNameApartWithoutSearchingFromTheStart)
{
    const TrashDesk desk;
    constexpr int count = 3000;
    const auto batch = desk.can().begin();
    for (int i = 0; i < count; ++i) {
        const FileURL file = desk.tree.file("home/copy.txt", QByteArray::number(i));
        ASSERT_TRUE(batch->moveToTrash(file).has_value());
    }
    const QByteArrayList names = TrashDesk::names(desk.homeTrash().child("files"));
    EXPECT_EQ(names.size(), count);
    EXPECT_EQ(TrashDesk::names(desk.homeTrash().child("info")).size(), count);
    EXPECT_EQ(ScratchTree::content(desk.homeTrash().appending("files/copy.txt")), "0");
    EXPECT_EQ(ScratchTree::content(desk.homeTrash().appending("files/copy.3000.txt")), "2999");
    // A run of its own knows nothing of the earlier ones and still finds the next number.
    EXPECT_EQ(desk.trash(desk.tree.file("home/copy.txt", "later"))->name(), "copy.3001.txt");
}

TEST(LinuxTrashCan, takesNamesOfAnyBytesAndLengths)
{
    constexpr unsigned seed = 4711;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed); // NOLINT: fixed so that a failure can be repeated
    std::uniform_int_distribution<int> byte(1, 255);
    const TrashDesk desk;
    const auto batch = desk.can().begin();
    for (int length = 1; length <= 255; ++length) {
        QByteArray name;
        while (name.size() < length) {
            const int value = byte(random);
            name.append(value == '/' ? '_' : static_cast<char>(value));
        }
        if (name == "." || name == "..")
            name = "_";
        const FileURL item = desk.tree.at("home").child(name);
        const Descriptor made(::open(item.path().constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0644));
        ASSERT_TRUE(made.isOpen());
        const auto trashed = batch->moveToTrash(item);
        ASSERT_TRUE(trashed.has_value()) << name.toPercentEncoding().constData();
        EXPECT_TRUE(ScratchTree::exists(*trashed));
        EXPECT_LE(trashed->name().size(), 245);
        EXPECT_EQ(TrashDesk::originOf(*trashed), item.path());
    }
}

TEST(LinuxTrashCan, reachesItemsBelowPathsThatAreTooLong)
{
    const TrashDesk desk;
    FileURL folder = desk.tree.folder("home/deep");
    Descriptor at(::open(folder.path().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const QByteArray step(200, 'd');
    for (int level = 0; level < 30; ++level) {
        ASSERT_EQ(::mkdirat(at.get(), step.constData(), 0755), 0);
        at = Descriptor(::openat(at.get(), step.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        folder = folder.child(step);
    }
    Descriptor(::openat(at.get(), "file", O_CREAT | O_WRONLY | O_CLOEXEC, 0644)).close();
    Descriptor(::openat(at.get(), "other", O_CREAT | O_WRONLY | O_CLOEXEC, 0644)).close();
    ASSERT_GT(folder.path().size(), 4096);
    const auto trashed = desk.trash(folder.child("file"));
    ASSERT_TRUE(trashed.has_value()) << trashed.error().message();
    EXPECT_EQ(TrashDesk::originOf(*trashed), folder.child("file").path());
    EXPECT_TRUE(desk.remove(folder.child("other")).has_value());
    EXPECT_TRUE(desk.remove(desk.tree.at("home/deep")).has_value());
}

TEST(LinuxTrashCan, saysWhenTheItemIsGone)
{
    const TrashDesk desk;
    const FileURL file = desk.tree.file("home/once");
    EXPECT_TRUE(desk.trash(file).has_value());
    EXPECT_EQ(desk.trashError(file), std::errc::no_such_file_or_directory);
    EXPECT_EQ(desk.trashError(desk.tree.at("home/no/such/folder")), std::errc::no_such_file_or_directory);
    EXPECT_EQ(TrashDesk::names(desk.homeTrash().child("info")), QByteArrayList{"once.trashinfo"});
}

TEST(LinuxTrashCan, movesNothingWithoutAHome)
{
    TrashDesk desk;
    desk.environment.homeTrash.reset();
    const FileURL file = desk.tree.file("home/a");
    EXPECT_EQ(desk.trashError(file), std::errc::operation_not_permitted);
    EXPECT_EQ(desk.removalError(file), std::errc::operation_not_permitted);
    EXPECT_TRUE(ScratchTree::exists(file));
}

TEST(LinuxTrashCan, leavesNoRecordWhenTheMoveIsRefused)
{
    TrashDesk desk;
    OrdinaryUser::own(desk.tree.root());
    OrdinaryUser::own(desk.tree.at("home"));
    desk.tree.file("home/closed/file");
    OrdinaryUser::own(desk.tree.at("home/closed"));
    ASSERT_EQ(::chmod(desk.tree.at("home/closed").path().constData(), 0500), 0);
    const OrdinaryUser user;
    desk.environment.user = ::geteuid();
    EXPECT_EQ(desk.trashError(desk.tree.at("home/closed/file")), std::errc::permission_denied);
    EXPECT_TRUE(ScratchTree::exists(desk.tree.at("home/closed/file")));
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("info")).isEmpty());
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
}

/// Lets no file grow beyond `bytes` while it lives, as a full disk would.
class NoRoom
{
public:
    explicit NoRoom(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~NoRoom()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    NoRoom(const NoRoom &) = delete;
    NoRoom &operator=(const NoRoom &) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

TEST(LinuxTrashCan, leavesNoHalfARecordWhenTheDiskIsFull)
{
    const TrashDesk desk;
    const FileURL file = desk.tree.file("home/a");
    {
        const NoRoom full(20); // bytes: the record's first line and a little more
        EXPECT_EQ(desk.trashError(file), std::errc::file_too_large);
    }
    EXPECT_TRUE(ScratchTree::exists(file));
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("info")).isEmpty());
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
    EXPECT_TRUE(desk.trash(file).has_value());
}

TEST(LinuxTrashCan, failsWhereTheTrashCannotBeMade)
{
    TrashDesk desk;
    const FileURL file = desk.tree.file("home/a");
    desk.tree.file("home/.local/share/Trash", "no folder");
    EXPECT_EQ(desk.trashError(file), std::errc::not_a_directory);
    EXPECT_TRUE(ScratchTree::exists(file));
}

TEST(LinuxTrashCan, leavesAHomeTrashOfSomebodyElseAlone)
{
    TrashDesk desk;
    const FileURL file = desk.tree.file("home/a");
    desk.tree.folder("home/.local/share/Trash");
    desk.environment.user = 12345;
    EXPECT_EQ(desk.trashError(file), std::errc::permission_denied);
    EXPECT_TRUE(ScratchTree::exists(file));
}

TEST(LinuxTrashCan, doesNotUseLinksInPlaceOfTheTrashsParts)
{
    TrashDesk desk;
    const FileURL file = desk.tree.file("home/a");
    desk.tree.folder("elsewhere");
    desk.tree.folder("home/.local/share/Trash/info");
    desk.tree.link("home/.local/share/Trash/files", desk.tree.at("elsewhere").path());
    EXPECT_FALSE(desk.trash(file).has_value());
    EXPECT_TRUE(ScratchTree::exists(file));
    EXPECT_TRUE(TrashDesk::names(desk.tree.at("elsewhere")).isEmpty());
}

QByteArray userNumber()
{
    return QByteArray::number(::geteuid());
}

TEST(LinuxTrashCan, usesTheFolderOfTheUserOnAnotherMount)
{
    TrashDesk desk;
    const FileURL top = desk.mount("usb");
    const auto trashed = desk.trash(desk.tree.file("usb/photos/a b", "bytes"));
    ASSERT_TRUE(trashed.has_value()) << trashed.error().message();
    EXPECT_EQ(*trashed, top.child(".Trash-" + userNumber()).appending("files/a b"));
    EXPECT_EQ(TrashDesk::originOf(*trashed), "photos/a b");
    EXPECT_EQ(TrashDesk::modeOf(top.child(".Trash-" + userNumber())), 0700U);
    EXPECT_FALSE(ScratchTree::exists(desk.homeTrash().child("files")) &&
                 !TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
}

TEST(LinuxTrashCan, recordsThePathBelowTheMountFreeOfLinks)
{
    TrashDesk desk;
    desk.mount("usb");
    desk.tree.file("usb/photos/a");
    desk.tree.link("home/shortcut", desk.tree.at("usb/photos").path());
    const auto trashed = desk.trash(desk.tree.at("home/shortcut/a"));
    ASSERT_TRUE(trashed.has_value());
    EXPECT_EQ(TrashDesk::originOf(*trashed), "photos/a");
}

TEST(LinuxTrashCan, usesTheSharedFolderOnlyWithItsStickyBit)
{
    TrashDesk desk;
    const FileURL top = desk.mount("usb");
    const FileURL shared = desk.tree.folder("usb/.Trash");
    ASSERT_EQ(::chmod(shared.path().constData(), 0777), 0);
    EXPECT_EQ(desk.trash(desk.tree.file("usb/a"))->parent().parent(), top.child(".Trash-" + userNumber()));
    ASSERT_EQ(::chmod(shared.path().constData(), 01777), 0);
    EXPECT_EQ(desk.trash(desk.tree.file("usb/b"))->parent().parent(), shared.child(userNumber()));
    EXPECT_EQ(TrashDesk::modeOf(shared.child(userNumber())), 0700U);
}

TEST(LinuxTrashCan, doesNotUseASharedFolderThatIsALink)
{
    TrashDesk desk;
    const FileURL top = desk.mount("usb");
    const FileURL elsewhere = desk.tree.folder("elsewhere");
    ASSERT_EQ(::chmod(elsewhere.path().constData(), 01777), 0);
    desk.tree.link("usb/.Trash", elsewhere.path());
    EXPECT_EQ(desk.trash(desk.tree.file("usb/a"))->parent().parent(), top.child(".Trash-" + userNumber()));
    EXPECT_TRUE(TrashDesk::names(elsewhere).isEmpty());
}

/// What an item is copied to when the mount's own folder cannot be trusted.
void expectCopiedHome(const TrashDesk &desk, const FileURL &item)
{
    const QByteArray content = ScratchTree::content(item);
    const auto trashed = desk.trash(item);
    ASSERT_TRUE(trashed.has_value()) << trashed.error().message();
    EXPECT_EQ(trashed->parent(), desk.homeTrash().child("files"));
    EXPECT_EQ(TrashDesk::originOf(*trashed), item.path());
    EXPECT_EQ(ScratchTree::content(*trashed), content);
    EXPECT_FALSE(ScratchTree::exists(item));
    EXPECT_FALSE(ScratchTree::exists(desk.homeTrash().child("brisko-copying")));
}

TEST(LinuxTrashCan, trustsNoFolderOnAMountThatOthersMayEnter)
{
    for (const mode_t mode : {0755U, 0770U, 0777U, 0500U}) {
        TrashDesk desk;
        desk.mount("usb");
        const FileURL folder = desk.tree.folder("usb/.Trash-" + userNumber());
        ASSERT_EQ(::chmod(folder.path().constData(), mode), 0);
        expectCopiedHome(desk, desk.tree.file("usb/a", "bytes"));
        EXPECT_TRUE(TrashDesk::names(folder).isEmpty());
    }
}

TEST(LinuxTrashCan, trustsNoFolderOnAMountThatIsALinkOrAFileOrSomebodyElses)
{
    TrashDesk linked;
    linked.mount("usb");
    const FileURL elsewhere = linked.tree.folder("elsewhere");
    ASSERT_EQ(::chmod(elsewhere.path().constData(), 0700), 0);
    linked.tree.link("usb/.Trash-" + userNumber(), elsewhere.path());
    expectCopiedHome(linked, linked.tree.file("usb/a", "bytes"));
    EXPECT_TRUE(TrashDesk::names(elsewhere).isEmpty());

    TrashDesk file;
    file.mount("usb");
    file.tree.file("usb/.Trash-" + userNumber(), "no folder");
    expectCopiedHome(file, file.tree.file("usb/a", "bytes"));

    TrashDesk foreign;
    foreign.mount("usb");
    foreign.environment.user = ::geteuid() + 1;
    const FileURL folder = foreign.tree.folder("usb/.Trash-" + QByteArray::number(foreign.environment.user));
    ASSERT_EQ(::chmod(folder.path().constData(), 0700), 0);
    // Here the home folder's Trash is somebody else's as well, so that nothing is left.
    EXPECT_EQ(foreign.trashError(foreign.tree.file("usb/a", "bytes")), std::errc::permission_denied);
    EXPECT_TRUE(TrashDesk::names(folder).isEmpty());
    EXPECT_EQ(ScratchTree::content(foreign.tree.at("usb/a")), "bytes");
}

TEST(LinuxTrashCan, copiesFromMemoryFileSystems)
{
    for (const char *type : {"tmpfs", "ramfs"}) {
        TrashDesk desk;
        const FileURL top = desk.mount("memory", type);
        expectCopiedHome(desk, desk.tree.file("memory/a", QByteArray(700'000, 'x')));
        EXPECT_TRUE(TrashDesk::names(top).isEmpty());
    }
}

TEST(LinuxTrashCan, copiesAFolderWithAllThatBelongsToIt)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    const FileURL file = desk.tree.file("memory/tree/inner/file", QByteArray(1'000'000, '\1') + "end");
    desk.tree.link("memory/tree/link", "inner/file");
    desk.tree.link("memory/tree/broken", "\xFFnowhere");
    desk.tree.folder("memory/tree/empty");
    desk.tree.file("memory/tree/\xFF\xFE", {});
    ASSERT_EQ(::chmod(file.path().constData(), 0640), 0);
    ASSERT_EQ(::chmod(desk.tree.at("memory/tree/empty").path().constData(), 0711), 0);
    const bool hasAttribute = ::setxattr(file.path().constData(), "user.note", "kept", 4, 0) == 0;
    const QDateTime when = QDateTime::fromMSecsSinceEpoch(1'500'000'000'123, Qt::UTC);
    for (const char *name : {"memory/tree/inner/file", "memory/tree/link", "memory/tree/inner", "memory/tree"})
        ScratchTree::setModified(desk.tree.at(name), when);

    const auto trashed = desk.trash(desk.tree.at("memory/tree"));
    ASSERT_TRUE(trashed.has_value()) << trashed.error().message();
    EXPECT_FALSE(ScratchTree::exists(desk.tree.at("memory/tree")));
    EXPECT_EQ(ScratchTree::content(trashed->appending("inner/file")), QByteArray(1'000'000, '\1') + "end");
    EXPECT_EQ(TrashDesk::modeOf(trashed->appending("inner/file")), 0640U);
    EXPECT_EQ(TrashDesk::modeOf(trashed->child("empty")), 0711U);
    EXPECT_EQ(QFile::symLinkTarget(QFile::decodeName(trashed->child("link").path())),
              QFile::decodeName(trashed->appending("inner/file").path()));
    EXPECT_EQ(FileSystem::attributes(trashed->child("broken"))->kind, FileSystem::Kind::link);
    EXPECT_TRUE(ScratchTree::exists(trashed->child("\xFF\xFE")));
    for (const char *name : {"inner/file", "link", "inner", ""})
        EXPECT_EQ(FileSystem::dateTime(FileSystem::attributes(trashed->appending(name))->modified), when) << name;
    if (hasAttribute) {
        std::array<char, 8> value{};
        EXPECT_EQ(::getxattr(trashed->appending("inner/file").path().constData(), "user.note", value.data(), 8), 4);
    }
    EXPECT_EQ(DirectorySizes::parse(sizesText(desk)).size(), 1);
}

TEST(LinuxTrashCan, neverCopiesPipesSocketsOrWhatHoldsThem)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    desk.tree.file("memory/folder/file");
    const FileURL pipe = desk.tree.at("memory/folder/pipe");
    ASSERT_EQ(::mkfifo(pipe.path().constData(), 0600), 0);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const FileURL bound = desk.tree.at("memory/s");
    ASSERT_LT(static_cast<size_t>(bound.path().size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, bound.path().constData(), static_cast<size_t>(bound.path().size()));
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ::close(socket);
    for (const FileURL &item : {pipe, bound, desk.tree.at("memory/folder")}) {
        EXPECT_EQ(desk.trashError(item), std::errc::operation_not_supported);
        EXPECT_TRUE(ScratchTree::exists(item));
    }
    EXPECT_TRUE(ScratchTree::exists(desk.tree.at("memory/folder/file")));
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
}

TEST(LinuxTrashCan, doesNotCopyAboveItsLimit)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    desk.environment.copyLimit = 100'000;
    const FileURL large = desk.tree.file("memory/large", QByteArray(100'001, 'x'));
    const FileURL sparse = desk.tree.sparseFile("memory/sparse", qint64{1} << 42);
    desk.tree.file("memory/folder/a", QByteArray(60'000, 'x'));
    desk.tree.file("memory/folder/b", QByteArray(60'000, 'x'));
    for (const FileURL &item : {large, sparse, desk.tree.at("memory/folder")}) {
        EXPECT_EQ(desk.trashError(item), make_error_code(TrashError::tooLargeToCopy));
        EXPECT_TRUE(ScratchTree::exists(item));
    }
    EXPECT_TRUE(desk.trash(desk.tree.at("memory/folder/a")).has_value());
}

TEST(LinuxTrashCan, limitsCopiesToATenthOfTheFreeSpaceToo)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    desk.environment.copyLimit = std::numeric_limits<qint64>::max();
    const FileURL sparse = desk.tree.sparseFile("memory/sparse", qint64{1} << 43);
    EXPECT_EQ(desk.trashError(sparse), make_error_code(TrashError::tooLargeToCopy));
    EXPECT_TRUE(ScratchTree::exists(sparse));
}

TEST(LinuxTrashCan, leavesTheOriginWholeWhenTheCopyHasNoRoom)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    desk.tree.file("memory/folder/small", "x");
    const FileURL large = desk.tree.file("memory/folder/large", QByteArray(300'000, 'x'));
    {
        const NoRoom full(100'000);
        EXPECT_EQ(desk.trashError(desk.tree.at("memory/folder")), std::errc::file_too_large);
    }
    EXPECT_EQ(ScratchTree::content(large).size(), 300'000);
    EXPECT_TRUE(ScratchTree::exists(desk.tree.at("memory/folder/small")));
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("info")).isEmpty());
    EXPECT_FALSE(ScratchTree::exists(desk.homeTrash().child("brisko-copying")));
}

TEST(LinuxTrashCan, leavesWhatCouldNotBeRemovedAfterwardsUncopied)
{
    TrashDesk desk;
    OrdinaryUser::own(desk.tree.root());
    OrdinaryUser::own(desk.tree.at("home"));
    desk.mount("memory", "tmpfs");
    desk.tree.file("memory/tree/closed/file");
    for (const char *name : {"memory", "memory/tree", "memory/tree/closed", "memory/tree/closed/file"})
        OrdinaryUser::own(desk.tree.at(name));
    ASSERT_EQ(::chmod(desk.tree.at("memory/tree/closed").path().constData(), 0500), 0);
    const OrdinaryUser user;
    desk.environment.user = ::geteuid();
    EXPECT_EQ(desk.trashError(desk.tree.at("memory/tree")), std::errc::permission_denied);
    EXPECT_TRUE(ScratchTree::exists(desk.tree.at("memory/tree/closed/file")));
    EXPECT_TRUE(TrashDesk::names(desk.homeTrash().child("files")).isEmpty());
}

TEST(LinuxTrashCan, removesWhatAnInterruptedCopyLeftBehind)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    desk.tree.file("home/.local/share/Trash/brisko-copying/1-2-3/half a copy");
    expectCopiedHome(desk, desk.tree.file("memory/a", "bytes"));
}

TEST(LinuxTrashCan, leavesCopiesThatAnotherRunIsMakingAlone)
{
    TrashDesk desk;
    desk.mount("memory", "tmpfs");
    const FileURL busy = desk.tree.file("home/.local/share/Trash/brisko-copying/1-2-3/part");
    const Descriptor other(::open(busy.parent().parent().path().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(::flock(other.get(), LOCK_SH), 0);
    EXPECT_TRUE(desk.trash(desk.tree.file("memory/a")).has_value());
    EXPECT_TRUE(ScratchTree::exists(busy));
}

TEST(LinuxTrashCan, keepsTheSizesOfTrashedFolders)
{
    const TrashDesk desk;
    desk.tree.file("home/some folder/a", QByteArray(10'000, 'x'));
    desk.tree.file("home/some folder/inner/b", QByteArray(20'000, 'x'));
    ASSERT_EQ(::link(desk.tree.at("home/some folder/a").path().constData(),
                     desk.tree.at("home/some folder/second name").path().constData()),
              0);
    {
        const auto batch = desk.can().begin();
        EXPECT_TRUE(batch->moveToTrash(desk.tree.at("home/some folder")).has_value());
        EXPECT_TRUE(batch->moveToTrash(desk.tree.file("home/file")).has_value());
    }
    const FileURL trashed = desk.homeTrash().appending("files/some folder");
    struct stat record {
    };
    ASSERT_EQ(::stat(TrashDesk::recordOf(trashed).path().constData(), &record), 0);
    qint64 blocks = 0;
    for (const char *name : {"", "a", "inner", "inner/b"}) {
        struct stat status {
        };
        ASSERT_EQ(::stat(trashed.appending(name).path().constData(), &status), 0);
        blocks += status.st_blocks;
    }
    EXPECT_EQ(sizesText(desk), QByteArray::number(blocks * 512) + ' ' + QByteArray::number(qint64{record.st_mtime}) +
                                   " some%20folder\n");
    EXPECT_EQ(TrashDesk::modeOf(desk.homeTrash().child("directorysizes")), 0600U);
}

TEST(LinuxTrashCan, keepsTheSizesThatOthersWroteAndDropsThoseOfFoldersThatAreGone)
{
    const TrashDesk desk;
    desk.tree.file("home/.local/share/Trash/files/theirs/a");
    desk.tree.file("home/.local/share/Trash/directorysizes", "4096 1 gone\n8192 2 theirs\nnonsense\n");
    desk.tree.folder("home/mine");
    EXPECT_TRUE(desk.trash(desk.tree.at("home/mine")).has_value());
    const QList<DirectorySizes::Line> lines = DirectorySizes::parse(sizesText(desk));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], (DirectorySizes::Line{.name = "theirs", .size = 8192, .recorded = 2}));
    EXPECT_EQ(lines[1].name, "mine");
}

TEST(LinuxTrashCan, removesAnItemWithItsRecordAndItsSize)
{
    const TrashDesk desk;
    desk.tree.file("home/folder/inner/a");
    const FileURL folder = desk.trash(desk.tree.at("home/folder")).value();
    const FileURL hidden = desk.trash(desk.tree.file("home/.hidden")).value();
    const FileURL kept = desk.trash(desk.tree.file("home/kept")).value();
    ASSERT_FALSE(sizesText(desk).isEmpty());
    EXPECT_TRUE(desk.remove(folder).has_value());
    EXPECT_TRUE(desk.remove(hidden).has_value());
    EXPECT_EQ(TrashDesk::names(desk.homeTrash().child("files")), QByteArrayList{"kept"});
    EXPECT_EQ(TrashDesk::names(desk.homeTrash().child("info")), QByteArrayList{"kept.trashinfo"});
    EXPECT_TRUE(sizesText(desk).isEmpty());
    EXPECT_TRUE(ScratchTree::exists(kept));
    EXPECT_EQ(desk.removalError(folder), std::errc::no_such_file_or_directory);
}

TEST(LinuxTrashCan, removesRecordsOnOtherMountsToo)
{
    TrashDesk desk;
    desk.mount("usb");
    const FileURL trashed = desk.trash(desk.tree.file("usb/a")).value();
    EXPECT_TRUE(desk.remove(trashed).has_value());
    EXPECT_FALSE(ScratchTree::exists(TrashDesk::recordOf(trashed)));
}

TEST(LinuxTrashCan, keepsTheRecordOfWhatCouldNotBeRemoved)
{
    TrashDesk desk;
    OrdinaryUser::own(desk.tree.root());
    OrdinaryUser::own(desk.tree.at("home"));
    desk.tree.file("home/folder/closed/file");
    for (const char *name : {"home/folder", "home/folder/closed", "home/folder/closed/file"})
        OrdinaryUser::own(desk.tree.at(name));
    const OrdinaryUser user;
    desk.environment.user = ::geteuid();
    const FileURL trashed = desk.trash(desk.tree.at("home/folder")).value();
    ASSERT_EQ(::chmod(trashed.child("closed").path().constData(), 0500), 0);
    EXPECT_EQ(desk.removalError(trashed), std::errc::permission_denied);
    EXPECT_TRUE(ScratchTree::exists(TrashDesk::recordOf(trashed)));
    ASSERT_EQ(::chmod(trashed.child("closed").path().constData(), 0700), 0);
}

TEST(LinuxTrashCan, leavesRecordsOfFoldersThatOnlyLookLikeATrash)
{
    const TrashDesk desk;
    const FileURL item = desk.tree.file("home/backup/Trash/files/a");
    const FileURL record = desk.tree.file("home/backup/Trash/info/a.trashinfo");
    EXPECT_TRUE(desk.remove(item).has_value());
    EXPECT_TRUE(ScratchTree::exists(record));
}

TEST(LinuxTrashCan, removesALinkAndNotWhatItLeadsTo)
{
    const TrashDesk desk;
    const FileURL kept = desk.tree.file("home/folder/kept");
    EXPECT_TRUE(desk.remove(desk.tree.link("home/link", "folder")).has_value());
    EXPECT_TRUE(ScratchTree::exists(kept));
}

TEST(LinuxTrashCan, givesEachItemOfARunItsOwnAnswer)
{
    const TrashDesk desk;
    const auto batch = desk.can().begin();
    EXPECT_TRUE(batch->moveToTrash(desk.tree.file("home/x/a")).has_value());
    EXPECT_EQ(TrashDesk::errorOf(batch->moveToTrash(desk.tree.at("home/x/a"))), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(batch->moveToTrash(desk.tree.at("home/x")).has_value());
    // The folder itself is in the Trash by now, and what lies in it is no longer reached by the old path.
    EXPECT_EQ(TrashDesk::errorOf(batch->moveToTrash(desk.tree.at("home/x/b"))), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(batch->moveToTrash(desk.tree.file("home/x/a")).has_value());
}

TEST(LinuxTrashCan, isNotConfusedByAHomeReachedThroughALink)
{
    TrashDesk desk;
    desk.tree.link("alias", "home");
    desk.environment.homeTrash = desk.tree.at("alias/.local/share/Trash");
    const auto trashed = desk.trash(desk.tree.file("alias/a"));
    ASSERT_TRUE(trashed.has_value());
    EXPECT_EQ(*trashed, desk.tree.at("home/.local/share/Trash/files/a"));
    EXPECT_EQ(TrashDesk::originOf(*trashed), desk.tree.at("alias/a").path());
    EXPECT_TRUE(desk.remove(*trashed).has_value());
    EXPECT_FALSE(ScratchTree::exists(TrashDesk::recordOf(*trashed)));
}

} // namespace
