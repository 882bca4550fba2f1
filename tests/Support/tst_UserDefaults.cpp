// SPDX-License-Identifier: MIT
#include "Fakes/ScratchTree.h"
#include "Support/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <csignal>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

class UserDefaultsTest : public testing::Test
{
protected:
    [[nodiscard]] QString path() const { return QFile::decodeName(file.path()); }
    [[nodiscard]] QString broken(int number) const { return path() + u".broken-%1"_s.arg(number); }
    /// What another process would find in the file now: a copy under a name that no cache knows.
    [[nodiscard]] QString freshCopy()
    {
        const QByteArray name = "copy-" + QByteArray::number(++m_copies);
        return QFile::decodeName(tree.file(name, ScratchTree::content(file)).path());
    }
    void spoil(const QByteArray &content) const { tree.file("config/Brisko/Brisko.conf", content); }

    ScratchTree tree;
    FileURL file = tree.at("config/Brisko/Brisko.conf");

private:
    int m_copies = 0;
};

TEST_F(UserDefaultsTest, answersNothingForAbsentKeys)
{
    const UserDefaults defaults(path());
    EXPECT_EQ(defaults.integer(u"a"_s), 0);
    EXPECT_EQ(defaults.text(u"a"_s), std::nullopt);
    EXPECT_EQ(defaults.textList(u"a"_s), QStringList());
    EXPECT_EQ(defaults.data(u"a"_s), std::nullopt);
    EXPECT_FALSE(defaults.contains(u"a"_s));
    EXPECT_EQ(defaults.brokenCopy(), std::nullopt);
    EXPECT_TRUE(defaults.isKept());
}

TEST_F(UserDefaultsTest, makesNothingOnDiskUntilTheFirstWrite)
{
    const UserDefaults defaults(path());
    EXPECT_FALSE(ScratchTree::exists(tree.at("config")));
}

TEST_F(UserDefaultsTest, keepsEveryTypeThroughTheFile)
{
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte.append(static_cast<char>(byte));
    const QString odd = u"@, \"quoted\"\n\r\t\\ ; # = % é 日本 \U0001F600  "_s;
    UserDefaults defaults(path());
    defaults.setInteger(u"appearance"_s, 2);
    defaults.setInteger(u"least"_s, std::numeric_limits<int>::min());
    defaults.setText(u"text"_s, odd);
    defaults.setText(u"empty"_s, QString());
    defaults.setText(u"at"_s, u"@Invalid()"_s);
    defaults.setText(u"nul"_s, u"\0001"_s);
    defaults.setTextList(u"one"_s, {u"a, b"_s});
    defaults.setTextList(u"none"_s, {});
    defaults.setTextList(u"oneEmpty"_s, {QString()});
    defaults.setTextList(u"many"_s, {u"/home/me/a,b"_s, u"@x"_s, QString(), odd, u"\"\""_s});
    defaults.setData(u"data"_s, everyByte);
    defaults.setData(u"noData"_s, QByteArray());

    const UserDefaults reread(freshCopy());
    EXPECT_EQ(reread.brokenCopy(), std::nullopt);
    for (const UserDefaults *store : {&std::as_const(defaults), &reread}) {
        EXPECT_EQ(store->integer(u"appearance"_s), 2);
        EXPECT_EQ(store->integer(u"least"_s), std::numeric_limits<int>::min());
        EXPECT_EQ(store->text(u"text"_s), odd);
        EXPECT_EQ(store->text(u"empty"_s), QString());
        EXPECT_EQ(store->text(u"at"_s), u"@Invalid()"_s);
        EXPECT_EQ(store->text(u"nul"_s), u"\0001"_s);
        EXPECT_EQ(store->textList(u"one"_s), QStringList{u"a, b"_s});
        EXPECT_EQ(store->textList(u"none"_s), QStringList());
        EXPECT_TRUE(store->contains(u"none"_s));
        EXPECT_EQ(store->textList(u"oneEmpty"_s), QStringList{QString()});
        EXPECT_EQ(store->textList(u"many"_s), (QStringList{u"/home/me/a,b"_s, u"@x"_s, QString(), odd, u"\"\""_s}));
        EXPECT_EQ(store->data(u"data"_s), everyByte);
        EXPECT_EQ(store->data(u"noData"_s), QByteArray());
    }
}

TEST_F(UserDefaultsTest, answersTheSameForAnotherTypeBeforeAndAfterTheFile)
{
    UserDefaults defaults(path());
    defaults.setInteger(u"number"_s, 5);
    defaults.setText(u"text"_s, u"no number"_s);
    defaults.setText(u"digits"_s, u"12"_s);
    defaults.setTextList(u"list"_s, {u"a"_s, u"b"_s});
    defaults.setData(u"data"_s, "x");
    defaults.setData(u"dataDigits"_s, "7");
    const UserDefaults reread(freshCopy());
    for (const UserDefaults *store : {&std::as_const(defaults), &reread}) {
        EXPECT_EQ(store->text(u"number"_s), u"5"_s);
        EXPECT_EQ(store->integer(u"text"_s), 0);
        EXPECT_EQ(store->integer(u"digits"_s), 12);
        EXPECT_EQ(store->textList(u"text"_s), QStringList{u"no number"_s});
        EXPECT_EQ(store->text(u"list"_s), std::nullopt);
        EXPECT_EQ(store->text(u"data"_s), std::nullopt);
        EXPECT_EQ(store->textList(u"data"_s), QStringList());
        EXPECT_EQ(store->data(u"text"_s), std::nullopt);
        EXPECT_EQ(store->integer(u"list"_s), 0);
        EXPECT_EQ(store->integer(u"dataDigits"_s), 0);
    }
}

TEST_F(UserDefaultsTest, keepsRandomTextsListsAndData)
{
    constexpr quint32 kSeed = 20'240'305;
    SCOPED_TRACE(testing::Message() << "seed " << kSeed);
    QRandomGenerator random(kSeed);
    const QString alphabet = u"ab,;=\"'\\@%#[]() \n\r\tx019é日\U0001F600"_s + QChar(0);
    const auto randomText = [&] {
        QString text;
        for (int length = random.bounded(8); length > 0; --length)
            text += alphabet[random.bounded(int(alphabet.size()))];
        return QString::fromUtf8(text.toUtf8()); // halves of a pair become replacement characters
    };
    UserDefaults defaults(path());
    QMap<QString, QStringList> lists;
    QMap<QString, QByteArray> data;
    for (int round = 0; round < 60; ++round) {
        const QString key = u"k%1"_s.arg(round);
        QStringList list;
        for (int count = random.bounded(4); count > 0; --count)
            list.append(randomText());
        lists.insert(key, list);
        defaults.setTextList(key, list);
        QByteArray bytes;
        for (int length = random.bounded(20); length > 0; --length)
            bytes.append(static_cast<char>(random.bounded(256)));
        data.insert(u"d"_s + key, bytes);
        defaults.setData(u"d"_s + key, bytes);
    }
    const UserDefaults reread(freshCopy());
    ASSERT_EQ(reread.brokenCopy(), std::nullopt) << ScratchTree::content(file).constData();
    for (const auto &[key, list] : lists.asKeyValueRange())
        EXPECT_EQ(reread.textList(key), list) << key.toStdString();
    for (const auto &[key, bytes] : data.asKeyValueRange())
        EXPECT_EQ(reread.data(key), bytes) << key.toStdString();
}

TEST_F(UserDefaultsTest, isOnDiskWhenASetterReturns)
{
    UserDefaults defaults(path());
    defaults.setText(u"a"_s, u"b"_s);
    EXPECT_EQ(UserDefaults(freshCopy()).text(u"a"_s), u"b"_s);
    defaults.remove(u"a"_s);
    EXPECT_FALSE(UserDefaults(freshCopy()).contains(u"a"_s));
}

TEST_F(UserDefaultsTest, removesOneKeyAndNotThoseBelowIt)
{
    UserDefaults defaults(path());
    const QString outer = DefaultsKey::bookmarkPrefix + u"/home/me"_s;
    const QString inner = DefaultsKey::bookmarkPrefix + u"/home/me/Documents"_s;
    const QString sibling = DefaultsKey::bookmarkPrefix + u"/home/mea"_s;
    defaults.setData(outer, "outer");
    defaults.setData(inner, "inner");
    defaults.setData(sibling, "sibling");
    defaults.remove(outer);
    const UserDefaults reread(freshCopy());
    for (const UserDefaults *store : {&std::as_const(defaults), &reread}) {
        EXPECT_FALSE(store->contains(outer));
        EXPECT_EQ(store->data(inner), "inner");
        EXPECT_EQ(store->data(sibling), "sibling");
    }
    defaults.remove(u"com.brisko.bookmark."_s); // a group to the file, but no key
    EXPECT_EQ(defaults.data(inner), "inner");
}

TEST_F(UserDefaultsTest, writesNothingForAValueThatIsThere)
{
    const auto setAll = [](UserDefaults &defaults) {
        defaults.setInteger(u"integer"_s, 0);
        defaults.setText(u"text"_s, QString());
        defaults.setTextList(u"one"_s, {u"a"_s});
        defaults.setTextList(u"none"_s, {});
        defaults.setData(u"data"_s, QByteArray());
        defaults.remove(u"absent"_s);
    };
    UserDefaults defaults(path());
    setAll(defaults);
    struct stat before {
    };
    ASSERT_EQ(::stat(file.path().constData(), &before), 0);
    setAll(defaults);
    {
        UserDefaults another(QString(path()).replace(u"Brisko.conf"_s, u"./Brisko.conf"_s));
        setAll(another);
    }
    struct stat after {
    };
    ASSERT_EQ(::stat(file.path().constData(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino); // every write puts a new file in the place
}

TEST_F(UserDefaultsTest, seesWhatAnotherProcessChangedBeforeItDecidesWhetherToWrite)
{
    UserDefaults defaults(path());
    defaults.setInteger(u"appearance"_s, 1);
    spoil("[General]\nappearance=2\nother=there\n");
    defaults.setInteger(u"appearance"_s, 1);
    const UserDefaults reread(freshCopy());
    EXPECT_EQ(reread.integer(u"appearance"_s), 1);
    EXPECT_EQ(reread.text(u"other"_s), u"there"_s);
}

TEST_F(UserDefaultsTest, keepsTheOldFileWholeWhenTheDiskIsFull)
{
    UserDefaults(path()).setText(u"a"_s, u"old"_s);
    const QByteArray before = ScratchTree::content(file);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // No file of this process may grow beyond a few bytes: writing ends as on a full disk.
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit few{.rlim_cur = 16, .rlim_max = 16};
        ::setrlimit(RLIMIT_FSIZE, &few);
        UserDefaults defaults(path());
        defaults.setText(u"a"_s, QString(1000, u'x'));
        ::_exit(defaults.text(u"a"_s) == QString(1000, u'x') ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ScratchTree::content(file), before);
}

TEST_F(UserDefaultsTest, isForTheUserAlone)
{
    const mode_t before = ::umask(0);
    UserDefaults(path()).setInteger(u"a"_s, 1);
    ::umask(before);
    struct stat status {
    };
    ASSERT_EQ(::stat(file.path().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    for (const char *folder : {"config", "config/Brisko"}) {
        ASSERT_EQ(::stat(tree.at(folder).path().constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700U);
    }
}

TEST_F(UserDefaultsTest, tightensAFileThatOthersCouldRead)
{
    spoil("[General]\nappearance=1\n");
    UserDefaults defaults(path());
    defaults.setInteger(u"b"_s, 1);
    struct stat status {
    };
    ASSERT_EQ(::stat(file.path().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    EXPECT_EQ(defaults.integer(u"appearance"_s), 1);
}

TEST_F(UserDefaultsTest, leavesNothingBesideTheFile)
{
    UserDefaults(path()).setText(u"a"_s, u"b"_s);
    EXPECT_EQ(
        QDir(QFile::decodeName(file.parent().path())).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"Brisko.conf"_s});
}

class SoundSettings : public UserDefaultsTest, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(SoundSettings, areReadAndStayInTheirPlace)
{
    spoil(GetParam());
    const UserDefaults defaults(path());
    EXPECT_EQ(defaults.brokenCopy(), std::nullopt);
    EXPECT_EQ(ScratchTree::content(file), GetParam());
    EXPECT_FALSE(QFile::exists(broken(1)));
}

INSTANTIATE_TEST_SUITE_P(Contents, SoundSettings,
                         testing::Values(QByteArray(), QByteArray("\n\n"), QByteArray("[General]\nappearance=1\n"),
                                         QByteArray("; by hand\n[General]\r\nappearance = 1\r\n\r\n"),
                                         QByteArray("a=\"quoted \\\" quote\"\n"), QByteArray("a=x=y\n"),
                                         QByteArray("\xEF\xBB\xBF[General]\na=1\n"), QByteArray("a=\xC3\xA4\n")));

class BrokenSettings : public UserDefaultsTest, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(BrokenSettings, areKeptBesideAndReported)
{
    spoil(GetParam());
    UserDefaults defaults(path());
    EXPECT_EQ(defaults.brokenCopy(), broken(1));
    EXPECT_EQ(ScratchTree::content(tree.at("config/Brisko/Brisko.conf.broken-1")), GetParam());
    EXPECT_FALSE(ScratchTree::exists(file));
    EXPECT_FALSE(defaults.contains(u"appearance"_s));
    defaults.setInteger(u"appearance"_s, 2);
    EXPECT_EQ(UserDefaults(freshCopy()).integer(u"appearance"_s), 2);
    EXPECT_EQ(ScratchTree::content(tree.at("config/Brisko/Brisko.conf.broken-1")), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Contents, BrokenSettings,
                         testing::Values(QByteArray("[General]\nappearance=1\nduplicateFol"),    // cut off in a key
                                         QByteArray("[General]\nappearance=1\nlist=/home/me/D"), // cut off in a value
                                         QByteArray("[General]\nappearance=1\nthis is no setting\n"),
                                         QByteArray("[General\nappearance=1\n"),
                                         QByteArray("appearance=\"1\nother=2\n"),
                                         QByteArray("appearance=1\n\0\0\0\n", 18),
                                         QByteArray("appearance=1\nname=\xFF\xFE\n"), QByteArray(4096, '\0'),
                                         QByteArray("\x7F"
                                                    "ELF\x02\x01\x01\n"),
                                         QByteArray("{\"appearance\": 1}\n")));

TEST_F(UserDefaultsTest, keepsAsideWhatIsFarTooLarge)
{
    tree.folder("config/Brisko");
    tree.sparseFile("config/Brisko/Brisko.conf", qint64{3} << 30);
    const UserDefaults defaults(path());
    EXPECT_EQ(defaults.brokenCopy(), broken(1));
    EXPECT_EQ(QFileInfo(broken(1)).size(), qint64{3} << 30);
}

TEST_F(UserDefaultsTest, takesTheFirstFreeNumberForABrokenFile)
{
    tree.file("config/Brisko/Brisko.conf.broken-1", "earlier");
    tree.folder("config/Brisko/Brisko.conf.broken-2");
    tree.link("config/Brisko/Brisko.conf.broken-3", "nowhere");
    spoil("nonsense\n");
    EXPECT_EQ(UserDefaults(path()).brokenCopy(), broken(4));
    EXPECT_EQ(ScratchTree::content(tree.at("config/Brisko/Brisko.conf.broken-1")), "earlier");
}

TEST_F(UserDefaultsTest, keepsAFileAsideThatIsSpoiltWhileRunningAndWritesWhatItKnew)
{
    UserDefaults defaults(path());
    defaults.setText(u"a"_s, u"known"_s);
    spoil("nonsense\n");
    defaults.setText(u"b"_s, u"new"_s);
    EXPECT_EQ(defaults.brokenCopy(), broken(1));
    EXPECT_EQ(ScratchTree::content(tree.at("config/Brisko/Brisko.conf.broken-1")), "nonsense\n");
    const UserDefaults reread(freshCopy());
    EXPECT_EQ(reread.text(u"a"_s), u"known"_s);
    EXPECT_EQ(reread.text(u"b"_s), u"new"_s);
}

TEST_F(UserDefaultsTest, makesTheFileAgainWhenItWasDeletedWhileRunning)
{
    UserDefaults defaults(path());
    defaults.setText(u"a"_s, u"1"_s);
    ASSERT_TRUE(QFile::remove(path()));
    defaults.setText(u"b"_s, u"2"_s);
    EXPECT_EQ(UserDefaults(freshCopy()).text(u"b"_s), u"2"_s);
}

TEST_F(UserDefaultsTest, keepsValuesInMemoryWhenTheFileMayNotBeRead)
{
    spoil("[General]\nappearance=1\n");
    OrdinaryUser::own(file.parent());
    OrdinaryUser::own(file);
    ASSERT_EQ(::chmod(file.path().constData(), 0000), 0);
    ASSERT_EQ(::chmod(tree.root().path().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        UserDefaults defaults(path());
        EXPECT_FALSE(defaults.isKept());
        EXPECT_EQ(defaults.brokenCopy(), std::nullopt);
        defaults.setInteger(u"appearance"_s, 2);
        defaults.setText(u"a"_s, u"b"_s);
        defaults.remove(u"a"_s);
        EXPECT_EQ(defaults.integer(u"appearance"_s), 2);
        EXPECT_FALSE(defaults.contains(u"a"_s));
    }
    ASSERT_EQ(::chmod(file.path().constData(), 0600), 0);
    EXPECT_EQ(ScratchTree::content(file), "[General]\nappearance=1\n");
}

TEST_F(UserDefaultsTest, leavesABrokenFileThatCannotBeMoved)
{
    spoil("nonsense\n");
    ASSERT_EQ(::chmod(file.parent().path().constData(), 0555), 0);
    ASSERT_EQ(::chmod(tree.root().path().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        UserDefaults defaults(path());
        EXPECT_FALSE(defaults.isKept());
        defaults.setText(u"a"_s, u"b"_s);
        EXPECT_EQ(defaults.text(u"a"_s), u"b"_s);
    }
    EXPECT_EQ(ScratchTree::content(file), "nonsense\n");
    ASSERT_EQ(::chmod(file.parent().path().constData(), 0755), 0);
}

TEST_F(UserDefaultsTest, goesOnInMemoryWhereNothingCanBeWritten)
{
    spoil("[General]\nappearance=1\n");
    ASSERT_EQ(::chmod(file.parent().path().constData(), 0555), 0);
    ASSERT_EQ(::chmod(tree.root().path().constData(), 0755), 0);
    {
        const OrdinaryUser user;
        UserDefaults defaults(path());
        EXPECT_EQ(defaults.integer(u"appearance"_s), 1);
        defaults.setInteger(u"appearance"_s, 2);
        EXPECT_EQ(defaults.integer(u"appearance"_s), 2);
    }
    EXPECT_EQ(ScratchTree::content(file), "[General]\nappearance=1\n");
    ASSERT_EQ(::chmod(file.parent().path().constData(), 0755), 0);
}

TEST_F(UserDefaultsTest, leavesAFolderInItsPlace)
{
    tree.file("config/Brisko/Brisko.conf/inside");
    UserDefaults defaults(path());
    EXPECT_FALSE(defaults.isKept());
    defaults.setText(u"a"_s, u"b"_s);
    EXPECT_EQ(defaults.text(u"a"_s), u"b"_s);
    EXPECT_TRUE(ScratchTree::exists(tree.at("config/Brisko/Brisko.conf/inside")));
}

TEST_F(UserDefaultsTest, doesNotWaitForAPipeInItsPlace)
{
    tree.folder("config/Brisko");
    ASSERT_EQ(::mkfifo(file.path().constData(), 0600), 0);
    UserDefaults defaults(path());
    EXPECT_FALSE(defaults.isKept());
    defaults.setText(u"a"_s, u"b"_s);
    EXPECT_EQ(defaults.text(u"a"_s), u"b"_s);
}

TEST_F(UserDefaultsTest, doesNotWaitForALockThatNobodyHolds)
{
    tree.folder("config/Brisko/Brisko.conf.lock");
    UserDefaults defaults(path());
    EXPECT_FALSE(defaults.isKept());
    defaults.setText(u"a"_s, u"b"_s);
    EXPECT_EQ(defaults.text(u"a"_s), u"b"_s);
    EXPECT_TRUE(ScratchTree::exists(tree.at("config/Brisko/Brisko.conf.lock")));
}

TEST_F(UserDefaultsTest, followsALinkToTheRealFile)
{
    tree.file("dotfiles/brisko", "[General]\nappearance=1\n");
    tree.folder("config/Brisko");
    tree.link("config/Brisko/Brisko.conf", tree.at("dotfiles/brisko").path());
    UserDefaults defaults(path());
    EXPECT_EQ(defaults.integer(u"appearance"_s), 1);
    defaults.setInteger(u"appearance"_s, 2);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(ScratchTree::content(tree.at("dotfiles/brisko")).contains("appearance=2"));
}

TEST_F(UserDefaultsTest, leavesALinkToNowhereALink)
{
    tree.folder("config/Brisko");
    tree.folder("dotfiles");
    tree.link("config/Brisko/Brisko.conf", tree.at("dotfiles/brisko").path());
    UserDefaults(path()).setInteger(u"appearance"_s, 2);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(ScratchTree::content(tree.at("dotfiles/brisko")).contains("appearance=2"));
}

TEST_F(UserDefaultsTest, keepsWhatSeveralProcessesWriteAtOnce)
{
    constexpr int kProcesses = 4;
    constexpr int kKeys = 25;
    QList<pid_t> children;
    for (int process = 0; process < kProcesses; ++process) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            UserDefaults defaults(path());
            for (int key = 0; key < kKeys; ++key)
                defaults.setInteger(u"p%1k%2"_s.arg(process).arg(key), key + 1);
            ::_exit(defaults.brokenCopy() ? 1 : 0);
        }
        children.append(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    const UserDefaults defaults(path());
    for (int process = 0; process < kProcesses; ++process) {
        for (int key = 0; key < kKeys; ++key)
            EXPECT_EQ(defaults.integer(u"p%1k%2"_s.arg(process).arg(key)), key + 1);
    }
}

TEST_F(UserDefaultsTest, putsABrokenFileAsideOnceWhenSeveralProcessesFindIt)
{
    spoil("nonsense\n");
    QList<pid_t> children;
    for (int process = 0; process < 4; ++process) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            UserDefaults defaults(path());
            defaults.setInteger(u"p%1"_s.arg(process), 1);
            ::_exit(0);
        }
        children.append(child);
    }
    for (const pid_t child : children)
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_EQ(ScratchTree::content(tree.at("config/Brisko/Brisko.conf.broken-1")), "nonsense\n");
    EXPECT_FALSE(QFile::exists(broken(2)));
    const UserDefaults defaults(path());
    for (int process = 0; process < 4; ++process)
        EXPECT_EQ(defaults.integer(u"p%1"_s.arg(process)), 1);
}

} // namespace
