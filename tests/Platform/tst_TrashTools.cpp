// SPDX-License-Identifier: MIT
// What is moved to the Trash must be found and restored by the tools that people have.
#include "Fakes/RunTool.h"
#include "Platform/FileSystem.h"
#include "Platform/TrashDesk.h"

#include <QMap>

#include <gtest/gtest.h>

#include <random>

namespace {

/// What lies below a folder: names, kinds, modes, times, contents and where links lead.
using Picture = QMap<QByteArray, QByteArray>;

class Painter : public FileSystem::Visitor
{
public:
    explicit Painter(const FileURL &root)
        : m_root(root)
    {
    }
    void entry(const FileURL &folder, const FileSystem::EntryView &entry) override
    {
        const FileURL item = folder.child(entry.name);
        QByteArray look = QByteArray::number(static_cast<int>(entry.kind)) + ' ';
        if (entry.kind != FileSystem::Kind::folder)
            look += QByteArray::number(entry.attributes->modified);
        look += ' ' + QByteArray::number(entry.attributes->permissions) + '\n';
        if (entry.kind == FileSystem::Kind::regular)
            look += TrashDesk::content(item);
        picture.insert(item.path().sliced(m_root.path().size()), look);
    }
    Picture picture;

private:
    FileURL m_root;
};

Picture pictureOf(const FileURL &root)
{
    Painter painter(root);
    FileSystem::walk(root,
                     {.hidden = FileSystem::Hidden::include,
                      .want = FileSystem::Want::everything,
                      .takes = [&](const FileURL &folder, QByteArrayView name,
                                   FileSystem::Kind) { return folder != root || name != ".local"; }},
                     painter, CancelToken());
    return painter.picture;
}

enum class Names { text, anyBytes };

class TrashTools : public testing::Test
{
protected:
    TrashTools()
    {
        for (const char *name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            set(name, m_desk.tree.folder("tools/" + QByteArray(name)));
        ::chmod(m_desk.tree.at("tools/XDG_RUNTIME_DIR").path().constData(), 0700);
        set("HOME", m_desk.tree.at("home"));
        set("XDG_DATA_HOME", m_desk.homeTrash().parent());
        m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        m_environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    }

    void set(const char *name, const FileURL &folder)
    {
        m_environment.insert(QString::fromLatin1(name), QFile::decodeName(folder.path()));
    }

    void makeFile(const FileURL &file, const QByteArray &content)
    {
        const Descriptor made(::open(file.path().constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0640));
        ASSERT_TRUE(made.isOpen()) << file.path().toPercentEncoding().constData();
        ASSERT_EQ(::write(made.get(), content.constData(), static_cast<size_t>(content.size())), content.size());
    }

    /// Files, folders and links of made-up names directly in the home folder.
    QList<FileURL> makeItems(Names names, int count)
    {
        std::uniform_int_distribution<int> byte(1, 255);
        const QByteArrayList pieces{"a", "B", "7", " ",  "%", "é", "日", "🗑",
                                    "-", "_", "'", "\"", "&", "+", "~",  "#"};
        QList<FileURL> items;
        for (int i = 0; i < count; ++i) {
            // Every length once for any bytes, the longest names last.
            const int length = names == Names::anyBytes ? 1 + i : 1 + static_cast<int>(m_random() % 200);
            QByteArray name;
            while (name.size() < length) {
                const int value = byte(m_random);
                if (names == Names::anyBytes)
                    name.append(value == '/' ? '_' : static_cast<char>(value));
                else
                    name.append(pieces[static_cast<qsizetype>(m_random() % static_cast<unsigned>(pieces.size()))]);
            }
            const FileURL item = m_desk.tree.at("home").child(name);
            if (name == "." || name == ".." || ScratchTree::exists(item))
                continue;
            makeItem(item, i);
            items.append(item);
        }
        return items;
    }

    void makeItem(const FileURL &item, int number)
    {
        const QByteArray content = QByteArray::number(number).repeated(number);
        if (number % 5 == 3) {
            ASSERT_EQ(::symlink("no/where", item.path().constData()), 0);
        } else if (number % 5 == 4) {
            ASSERT_EQ(::mkdir(item.path().constData(), 0750), 0);
            makeFile(item.child(".inside"), content);
        } else {
            makeFile(item, content);
        }
    }

    QList<FileURL> trashAll(const QList<FileURL> &items)
    {
        QList<FileURL> trashed;
        const auto batch = m_desk.can().begin();
        for (const FileURL &item : items) {
            const auto moved = batch->moveToTrash(item);
            EXPECT_TRUE(moved.has_value()) << item.path().toPercentEncoding().constData();
            trashed.append(moved.value_or(FileURL::root()));
        }
        return trashed;
    }

    static constexpr unsigned kSeed = 31337;
    TrashDesk m_desk;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::mt19937 m_random{kSeed}; // NOLINT: fixed so that a failure can be repeated
};

TEST_F(TrashTools, areListedAndRestoredByTrashCli)
{
    SCOPED_TRACE(kSeed);
    const QList<FileURL> items = makeItems(Names::text, 25);
    const Picture before = pictureOf(m_desk.tree.at("home"));
    trashAll(items);
    ASSERT_TRUE(pictureOf(m_desk.tree.at("home")).isEmpty());

    QByteArrayList listed;
    for (const QByteArray &line : runTool("trash-list", {}, m_environment).split('\n')) {
        constexpr qsizetype dateWidth = 20;
        if (!line.isEmpty())
            listed.append(line.sliced(dateWidth));
    }
    QByteArrayList expected;
    for (const FileURL &item : items)
        expected.append(item.path());
    std::ranges::sort(listed);
    std::ranges::sort(expected);
    EXPECT_EQ(listed, expected);

    for (const FileURL &item : items)
        runTool("trash-restore", {item.path()}, m_environment, "0\n");
    EXPECT_EQ(pictureOf(m_desk.tree.at("home")), before);
    EXPECT_TRUE(TrashDesk::names(m_desk.homeTrash().child("files")).isEmpty());
    EXPECT_TRUE(TrashDesk::names(m_desk.homeTrash().child("info")).isEmpty());
}

/// The addresses of the Trash's items by where they came from. gio prints the bytes of a path that are no plain ASCII
/// as a backslash, an x and two digits, the backslash itself among them.
QMap<QByteArray, QByteArray> parsed(const QByteArray &listing)
{
    QMap<QByteArray, QByteArray> result;
    for (const QByteArray &line : listing.split('\n')) {
        const qsizetype tab = line.indexOf('\t');
        if (tab < 0)
            continue;
        QByteArray origin;
        for (qsizetype i = tab + 1; i < line.size(); ++i) {
            const bool isEscaped = line[i] == '\\';
            origin.append(isEscaped ? static_cast<char>(line.sliced(i + 2, 2).toInt(nullptr, 16)) : line[i]);
            i += isEscaped ? 3 : 0;
        }
        result.insert(origin, line.first(tab));
    }
    return result;
}

TEST_F(TrashTools, areListedAndRestoredByGioForNamesOfAnyBytes)
{
    SCOPED_TRACE(kSeed);
    QList<FileURL> items = makeItems(Names::anyBytes, 255);
    EXPECT_GT(items.size(), 240);
    for (const char *name : {"plain.txt", "-dash", "100%25", "~tilde+plus&more"}) {
        items.append(m_desk.tree.at("home").child(name));
        makeItem(items.last(), 1000);
    }
    const Picture before = pictureOf(m_desk.tree.at("home"));
    trashAll(items);
    ASSERT_TRUE(pictureOf(m_desk.tree.at("home")).isEmpty());

    const auto listed = parsed(runTool("dbus-run-session", {"--", "gio", "trash", "--list"}, m_environment));
    // `gio trash --restore` itself writes the bytes that it escapes when it prints them, so it is asked for plain names
    // only; the others are moved back by name, which is what a file manager does.
    QByteArray requests;
    for (const FileURL &item : items) {
        EXPECT_TRUE(listed.contains(item.path())) << item.path().toPercentEncoding().constData();
        const bool isPlain =
            std::ranges::all_of(item.name(), [](char byte) { return byte > ' ' && byte < 0x7F && byte != '\\'; });
        requests += listed.value(item.path()) + ' ' + (isPlain ? QByteArray("-") : item.encoded()) + '\n';
    }
    EXPECT_EQ(listed.size(), items.size());
    runTool("dbus-run-session",
            {"--", "sh", "-c",
             "while read -r from to; do if [ \"$to\" = - ]; then gio trash --restore \"$from\"; "
             "else gio move \"$from\" \"$to\"; fi || exit 1; done"},
            m_environment, requests);
    EXPECT_EQ(pictureOf(m_desk.tree.at("home")), before);
    EXPECT_TRUE(TrashDesk::names(m_desk.homeTrash().child("files")).isEmpty());
}

TEST_F(TrashTools, mayPutItemsBesideOurs)
{
    m_desk.tree.file("home/name", "ours");
    trashAll({m_desk.tree.at("home/name")});
    m_desk.tree.file("home/name", "theirs");
    runTool("trash-put", {m_desk.tree.at("home/name").path()}, m_environment);
    m_desk.tree.file("home/name", "ours again");
    trashAll({m_desk.tree.at("home/name")});
    runTool("gio", {"trash", m_desk.tree.file("home/name", "theirs again").path()}, m_environment);
    QByteArrayList contents;
    for (const QByteArray &name : TrashDesk::names(m_desk.homeTrash().child("files")))
        contents.append(TrashDesk::content(m_desk.homeTrash().child("files").child(name)));
    std::ranges::sort(contents);
    EXPECT_EQ(contents, (QByteArrayList{"ours", "ours again", "theirs", "theirs again"}));
    EXPECT_EQ(TrashDesk::names(m_desk.homeTrash().child("info")).size(), 4);
}

} // namespace
