// SPDX-License-Identifier: MIT
#include "Fakes/Closed.h"
#include "Fakes/FakePlatform.h"
#include "Services/AccessStore.h"
#include "Support/UserDefaults.h"

#include <QCoro/QCoroCore>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_AccessStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void requestsAreTheDocumentedOnes();
    void folderKeysReplaceSlashes();
    void pathsWithUnderscoreAndSlashShareAKey();
    void pickingAFolderKeepsItsGrant();
    void cancellingThePickerKeepsNothing();
    void aFolderThatNoGrantCanBeMadeForIsStillPicked();
    void accessNeedsAStoredGrant();
    void aStaleGrantIsRenewed();
    void aGrantThatIsNotStaleIsLeftAlone();
    void aGrantThatCannotBeResolvedGivesNoAccess();
    void grantsOutliveTheStore();
    void consentIsAskedForOnce();
    void cancellingTheQuestionKeepsNothing();
    void theChosenFolderCountsEvenWhenItIsAnother();
    void aReadableFolderIsGrantedWithoutAQuestion();
    void aMissingFolderNeedsNoGrant();
    void anUnreadableFolderIsAskedFor();
    void nobodyToAskIsARefusal();
    void aGrantThatFailsIsAskedForAgain();
    void fullDiskAccess_data();
    void fullDiskAccess();
    void fullDiskAccessIsProbedAsTheUser_data();
    void fullDiskAccessIsProbedAsTheUser();
    void fullDiskAccessWithoutAHomeHasNothingToProtect();

private:
    [[nodiscard]] bool ensure(const FileURL &hint) const
    {
        return QCoro::waitFor(AccessStore::ensureAccess(m_context, u"library"_s, hint, u"Why"_s));
    }
    [[nodiscard]] bool holds(const QString &key) const { return m_defaults->contains(u"com.brisko.bookmark."_s + key); }

    std::unique_ptr<ScratchTree> m_tree;
    std::unique_ptr<FakePlatform> m_fake;
    std::unique_ptr<UserDefaults> m_defaults;
    FakePanel m_panel;
    AccessContext m_context;
};

namespace {

/// Folders are there and yet cannot be used, as when permissions are missing.
class ClosedGrants : public FakeGrants
{
public:
    [[nodiscard]] bool startAccessing(const FileURL &folder) const override
    {
        return folder != closed && FakeGrants::startAccessing(folder);
    }
    FileURL closed;
};

} // namespace

void tst_AccessStore::init()
{
    m_tree = std::make_unique<ScratchTree>();
    m_fake = std::make_unique<FakePlatform>(m_tree->folder("home"), m_tree->folder("trash"));
    m_defaults = std::make_unique<UserDefaults>(QFile::decodeName(m_tree->at("defaults.conf").path()));
    m_panel.answer = std::nullopt;
    m_panel.asked = 0;
    m_context = {.platform = m_fake->platform, .defaults = m_defaults.get(), .panel = &m_panel};
}

void tst_AccessStore::requestsAreTheDocumentedOnes()
{
    QCOMPARE(AccessStore::libraryForScan.key, "library"_L1);
    QCOMPARE(AccessStore::libraryForScan.message.toString(),
             u"Brisko needs access to the Library folder to scan caches and logs."_s);
    QCOMPARE(AccessStore::libraryForApps.key, "library"_L1);
    QCOMPARE(AccessStore::libraryForApps.message.toString(),
             u"Brisko needs access to the Library folder to find app-related files."_s);
    QCOMPARE(AccessStore::applications.key, "applications"_L1);
    QCOMPARE(AccessStore::applications.message.toString(),
             u"Brisko needs access to the Applications folder to move apps to Trash."_s);
}

void tst_AccessStore::folderKeysReplaceSlashes()
{
    QCOMPARE(AccessStore::folderKey(FileURL::fromPath("/Users/me/Movies").value()), u"folder._Users_me_Movies"_s);
}

void tst_AccessStore::pathsWithUnderscoreAndSlashShareAKey()
{
    QCOMPARE(AccessStore::folderKey(FileURL::fromPath("/a_b").value()),
             AccessStore::folderKey(FileURL::fromPath("/a/b").value()));
}

void tst_AccessStore::pickingAFolderKeepsItsGrant()
{
    const FileURL folder = m_tree->folder("picked");
    m_panel.answer = folder;
    QCOMPARE(QCoro::waitFor(AccessStore::pickFolder(m_context, u"Choose"_s)), std::optional(folder));
    QCOMPARE(m_panel.lastHint, std::nullopt);
    QCOMPARE(m_panel.lastMessage, u"Choose"_s);
    QCOMPARE(m_panel.lastButton, u"Add Folder"_s);
    QVERIFY(holds(AccessStore::folderKey(folder)));
    QVERIFY(AccessStore::startAccessing(m_context, AccessStore::folderKey(folder)));
}

void tst_AccessStore::cancellingThePickerKeepsNothing()
{
    QCOMPARE(QCoro::waitFor(AccessStore::pickFolder(m_context, u"Choose"_s)), std::nullopt);
    QVERIFY(!QFile::exists(QFile::decodeName(m_tree->at("defaults.conf").path())));
}

void tst_AccessStore::aFolderThatNoGrantCanBeMadeForIsStillPicked()
{
    class NoGrants : public FakeGrants
    {
    public:
        [[nodiscard]] std::expected<QByteArray, std::error_code> makeGrant(const FileURL &) const override
        {
            return std::unexpected(std::make_error_code(std::errc::permission_denied));
        }
    };
    auto platform = std::make_shared<Platform>();
    platform->folderGrants = std::make_unique<NoGrants>();
    m_context.platform = platform;
    const FileURL folder = m_tree->folder("picked");
    m_panel.answer = folder;
    QCOMPARE(QCoro::waitFor(AccessStore::pickFolder(m_context, u"Choose"_s)), std::optional(folder));
    QVERIFY(!holds(AccessStore::folderKey(folder)));
}

void tst_AccessStore::accessNeedsAStoredGrant()
{
    const FileURL folder = m_tree->folder("folder");
    QVERIFY(!AccessStore::startAccessing(m_context, u"key"_s));
    AccessStore::saveBookmark(m_context, u"key"_s, folder);
    QVERIFY(AccessStore::startAccessing(m_context, u"key"_s));
    QVERIFY(!AccessStore::startAccessing(m_context, u"other"_s));
}

void tst_AccessStore::aStaleGrantIsRenewed()
{
    const FileURL folder = m_tree->folder("folder");
    const QString key = u"com.brisko.bookmark.key"_s;
    m_defaults->setData(key, folder.path() + "/.");
    m_fake->grants->stale = true;
    QVERIFY(AccessStore::startAccessing(m_context, u"key"_s));
    QCOMPARE(m_defaults->data(key), std::optional(folder.path()));
}

void tst_AccessStore::aGrantThatIsNotStaleIsLeftAlone()
{
    const QString key = u"com.brisko.bookmark.key"_s;
    const QByteArray record = m_tree->folder("folder").path() + "/.";
    m_defaults->setData(key, record);
    QVERIFY(AccessStore::startAccessing(m_context, u"key"_s));
    QCOMPARE(m_defaults->data(key), std::optional(record));
}

void tst_AccessStore::aGrantThatCannotBeResolvedGivesNoAccess()
{
    m_defaults->setData(u"com.brisko.bookmark.key"_s, "no path");
    QVERIFY(!AccessStore::startAccessing(m_context, u"key"_s));
    m_defaults->setData(u"com.brisko.bookmark.key"_s, QByteArray());
    QVERIFY(!AccessStore::startAccessing(m_context, u"key"_s));
}

void tst_AccessStore::grantsOutliveTheStore()
{
    const FileURL folder = m_tree->folder("folder \xFF");
    AccessStore::saveBookmark(m_context, u"folder._a_b"_s, folder);
    m_defaults = std::make_unique<UserDefaults>(QFile::decodeName(m_tree->at("defaults.conf").path()));
    m_context.defaults = m_defaults.get();
    QVERIFY(AccessStore::startAccessing(m_context, u"folder._a_b"_s));
}

void tst_AccessStore::consentIsAskedForOnce()
{
    m_fake->grants->consent = true;
    const FileURL folder = m_tree->folder("home/Library");
    m_panel.answer = folder;
    QVERIFY(ensure(folder));
    QCOMPARE(m_panel.asked, 1);
    QCOMPARE(m_panel.lastHint, std::optional(folder));
    QCOMPARE(m_panel.lastMessage, u"Why"_s);
    QCOMPARE(m_panel.lastButton, u"Grant Access"_s);
    QVERIFY(ensure(folder));
    QCOMPARE(m_panel.asked, 1);
}

void tst_AccessStore::cancellingTheQuestionKeepsNothing()
{
    m_fake->grants->consent = true;
    QVERIFY(!ensure(m_tree->folder("home/Library")));
    QCOMPARE(m_panel.asked, 1);
    QVERIFY(!holds(u"library"_s));
}

void tst_AccessStore::theChosenFolderCountsEvenWhenItIsAnother()
{
    m_fake->grants->consent = true;
    const FileURL other = m_tree->folder("other");
    m_panel.answer = other;
    QVERIFY(ensure(m_tree->folder("home/Library")));
    QCOMPARE(m_defaults->data(u"com.brisko.bookmark.library"_s), std::optional(other.path()));
}

void tst_AccessStore::aReadableFolderIsGrantedWithoutAQuestion()
{
    QVERIFY(ensure(m_tree->folder("home/Library")));
    QCOMPARE(m_panel.asked, 0);
    QVERIFY(holds(u"library"_s));
}

void tst_AccessStore::aMissingFolderNeedsNoGrant()
{
    QVERIFY(ensure(m_tree->at("home/Library")));
    QVERIFY(ensure(m_tree->link("dangling", "nowhere")));
    QVERIFY(ensure(m_tree->file("file").child("below")));
    QCOMPARE(m_panel.asked, 0);
    QVERIFY(!holds(u"library"_s));
}

void tst_AccessStore::anUnreadableFolderIsAskedFor()
{
    auto grants = std::make_unique<ClosedGrants>();
    ClosedGrants *closed = grants.get();
    auto platform = std::make_shared<Platform>();
    platform->folderGrants = std::move(grants);
    m_context.platform = platform;
    const FileURL folder = m_tree->folder("home/Library");
    closed->closed = folder;

    QVERIFY(!ensure(folder));
    QCOMPARE(m_panel.asked, 1);
    QVERIFY(!holds(u"library"_s));

    m_panel.answer = folder; // granted, and still closed
    QVERIFY(!ensure(folder));
    QCOMPARE(m_panel.asked, 2);

    m_panel.answer = m_tree->folder("open");
    QVERIFY(ensure(folder));
    QCOMPARE(m_panel.asked, 3);
    QVERIFY(ensure(folder));
    QCOMPARE(m_panel.asked, 3);
}

void tst_AccessStore::nobodyToAskIsARefusal()
{
    m_fake->grants->consent = true;
    m_context.panel = nullptr;
    QVERIFY(!ensure(m_tree->folder("home/Library")));
    QCOMPARE(QCoro::waitFor(AccessStore::pickFolder(m_context, u"Choose"_s)), std::nullopt);
}

void tst_AccessStore::aGrantThatFailsIsAskedForAgain()
{
    m_fake->grants->consent = true;
    const FileURL gone = m_tree->at("gone");
    m_defaults->setData(u"com.brisko.bookmark.library"_s, gone.path());
    m_panel.answer = m_tree->folder("home/Library");
    QVERIFY(ensure(m_tree->at("home/Library")));
    QCOMPARE(m_panel.asked, 1);
}

namespace {

using Build = void (*)(const ScratchTree &);
constexpr const char *kDatabase = "home/Library/Application Support/com.apple.TCC/TCC.db";
constexpr const char *kSafari = "home/Library/Safari";

} // namespace

void tst_AccessStore::fullDiskAccess_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<bool>("hasAccess");
    const auto row = [](const char *name, Build build, bool hasAccess) { QTest::newRow(name) << build << hasAccess; };
    row(
        "nothing there", [](const ScratchTree &) {}, true);
    row(
        "database", [](const ScratchTree &tree) { tree.file(kDatabase, QByteArray(100, 'x')); }, true);
    row(
        "empty database", [](const ScratchTree &tree) { tree.file(kDatabase, ""); }, true);
    row(
        "database that cannot be read", [](const ScratchTree &tree) { tree.folder(kDatabase); }, false);
    row(
        "database that would never answer",
        [](const ScratchTree &tree) {
            tree.folder(tree.at(kDatabase).parent().path().sliced(tree.root().path().size() + 1));
            QCOMPARE(::mkfifo(tree.at(kDatabase).path().constData(), 0600), 0);
        },
        false);
    row(
        "database decides although Safari is closed",
        [](const ScratchTree &tree) {
            tree.file(kDatabase);
            tree.file(kSafari);
        },
        true);
    row(
        "Safari", [](const ScratchTree &tree) { tree.folder(kSafari); }, true);
    row(
        "Safari that cannot be listed", [](const ScratchTree &tree) { tree.file(kSafari); }, false);
}

void tst_AccessStore::fullDiskAccess()
{
    QFETCH(const Build, build);
    build(*m_tree);
    QTEST(AccessStore::hasFullDiskAccess(*m_fake->places), "hasAccess");
}

void tst_AccessStore::fullDiskAccessIsProbedAsTheUser_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("closed database") << QByteArray(kDatabase) << false;
    QTest::newRow("closed Safari") << QByteArray(kSafari) << true;
}

void tst_AccessStore::fullDiskAccessIsProbedAsTheUser()
{
    QFETCH(const QByteArray, path);
    QFETCH(const bool, isFolder);
    const FileURL item = isFolder ? m_tree->folder(path) : m_tree->file(path);
    {
        const Closed closing(*m_tree, item);
        const OrdinaryUser user;
        QVERIFY(!AccessStore::hasFullDiskAccess(*m_fake->places));
    }
    const OrdinaryUser user;
    QVERIFY(AccessStore::hasFullDiskAccess(*m_fake->places));
}

void tst_AccessStore::fullDiskAccessWithoutAHomeHasNothingToProtect()
{
    m_fake->places->setHome(std::nullopt);
    QVERIFY(AccessStore::hasFullDiskAccess(*m_fake->places));
}

QTEST_GUILESS_MAIN(tst_AccessStore)
#include "tst_AccessStore.moc"
