// SPDX-License-Identifier: MIT
#include "Services/JunkScanService.h"

#include "Fakes/FakePlatform.h"
#include "Fakes/RandomTree.h"
#include "Support/Tasks.h"
#include "Support/UserDefaults.h"

#include <QCoro/QCoroCore>
#include <QMutex>
#include <QTest>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;
using JunkScanService::FolderRule;
using JunkScanService::Owners;

namespace {

const QDateTime kNow = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000, Qt::UTC);

QDateTime daysAgo(qint64 days)
{
    return kNow.addSecs(-days * 86'400);
}

/// What a shell prints.
QByteArray output(const QByteArray &command)
{
    FILE *shell = ::popen(command.constData(), "re");
    QByteArray all;
    char part[4096];
    for (size_t got; (got = std::fread(part, 1, sizeof part, shell)) > 0;)
        all.append(part, static_cast<qsizetype>(got));
    if (::pclose(shell) != 0)
        throw std::runtime_error("a command failed");
    return all;
}

/// Notes when it is asked, among what else happens.
class NotingPanel : public FakePanel
{
public:
    explicit NotingPanel(QStringList &events)
        : m_events(events)
    {
    }
    QCoro::Task<std::optional<FileURL>> choose(std::optional<FileURL> hint, QString message,
                                               QString buttonText) override
    {
        m_events.append(u"asked: "_s + message);
        return FakePanel::choose(std::move(hint), std::move(message), std::move(buttonText));
    }

private:
    QStringList &m_events;
};

} // namespace

class tst_JunkScanService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void categoriesAreTheDocumentedOnes();
    void progressIsToldInOrder();
    void installersOfAnyAgeAndCaseAreNoOldDownloads();
    void theInstallerSetIsThePlatforms();
    void downloadsAreOldFromExactlyThirtyDays();
    void aFileWithoutADateIsOld();
    void subfoldersOfDownloadsAreNeverEntered();
    void cachesAreListedTwoLevelsDeep();
    void diagnosticReportsAreCrashReportsOnly();
    void hiddenEntriesAreNeverFound();
    void linksAndPipesAreIgnoredAndPackagesAreFolders();
    void temporaryFilesAreOldFromExactlySevenDays();
    void inAForeignFolderOnlyOwnEntriesCount();
    void aFolderInTheTrashIsOneItem();
    void everyKindOfTrashItemIsListed();
    void aLinkedTrashIsLeftAlone();
    void aForeignTrashIsLeftAlone();
    void theDesktopsTrashHoldsHiddenItemsToo();
    void aMissingBrowserFolderIsSkipped();
    void browserCachesAreListedFourLevelsDeep();
    void chatCachesAreListedThreeLevelsDeep();
    void aFileInTwoPlacesOfACategoryCountsOnce();
    void aCategoryOfEmptyFilesIsDropped();
    void unreadableFoldersContributeNothing();
    void identifiersAreFresh();
    void withoutAHomeNothingIsFound();
    void aCancelledScanFindsNothingMore();
    void theQuestionComesBeforeAnyScanning_data();
    void theQuestionComesBeforeAnyScanning();
    void randomFoldersAreSearchedAsFindSearches();
    void sizesAreWhatDuSays();

private:
    /// A file under home that was changed so many days ago.
    FileURL aged(QByteArrayView relative, qint64 days, const QByteArray &content = "content") const
    {
        const FileURL made = m_tree->file(relative, content);
        ScratchTree::setModified(made, daysAgo(days));
        return made;
    }
    [[nodiscard]] QList<JunkCategory> scan() const
    {
        return JunkScanService::scanSync(*m_fake->platform, kNow, {}, {});
    }
    /// The URLs of one category, ordered; none when it is absent.
    [[nodiscard]] QList<FileURL> found(const QString &name) const
    {
        QList<FileURL> urls;
        for (const JunkCategory &category : scan()) {
            if (category.name != name)
                continue;
            for (const JunkFile &file : category.files)
                urls.append(file.url);
        }
        std::sort(urls.begin(), urls.end());
        return urls;
    }

    std::unique_ptr<ScratchTree> m_tree;
    std::unique_ptr<FakePlatform> m_fake;
};

void tst_JunkScanService::init()
{
    m_tree = std::make_unique<ScratchTree>();
    m_fake = std::make_unique<FakePlatform>(m_tree->root(), m_tree->at("elsewhere"));
}

void tst_JunkScanService::categoriesAreTheDocumentedOnes()
{
    aged("Downloads/old.txt", 100);
    aged("Downloads/tool.pkg", 0);
    aged("Library/Caches/a", 0);
    aged("Library/Logs/a.log", 0);
    aged("Library/Logs/DiagnosticReports/a.ips", 0);
    aged("tmp/a", 100);
    aged(".Trash/a", 0);
    aged("Library/Caches/Firefox/a", 0);
    aged("Library/Containers/com.tencent.qq/Data/Library/Caches/a", 0);
    const QList<JunkCategory> categories = scan();
    struct Expected {
        QString name;
        QString symbol;
        Place place;
        qsizetype files;
    };
    const QList<Expected> expected{{u"Old Downloads"_s, u"arrow.down.circle"_s, Place::downloads, 1},
                                   {u"App Caches"_s, u"archivebox"_s, Place::caches, 2},
                                   {u"System Logs"_s, u"doc.text"_s, Place::logs, 1},
                                   {u"Temp Files"_s, u"clock.arrow.circlepath"_s, Place::temporary, 1},
                                   {u"Trash"_s, u"trash"_s, Place::trash, 1},
                                   {u"Crash Reports"_s, u"ladybug"_s, Place::crashReports, 1},
                                   {u"Browser Caches"_s, u"globe"_s, Place::browserCaches, 1},
                                   {u"Chat App Caches"_s, u"message"_s, Place::chatCaches, 1},
                                   {u"Leftover Installers"_s, u"shippingbox"_s, Place::downloads, 1}};
    QCOMPARE(categories.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const JunkCategory &category = categories.at(i);
        QCOMPARE(category.name, expected.at(i).name);
        QCOMPARE(category.symbol, expected.at(i).symbol);
        // All folders of the place are named, whether they exist or not.
        QCOMPARE(category.paths, m_fake->places->folders(expected.at(i).place));
        QCOMPARE(category.files.size(), expected.at(i).files);
        QCOMPARE(category.totalSize, 7 * expected.at(i).files);
        QCOMPARE(category.deletesDirectly, category.name == u"Trash");
    }
    QCOMPARE(categories.constFirst().files.constFirst(),
             (JunkFile{.url = m_tree->at("Downloads/old.txt"), .size = 7, .modified = daysAgo(100)}));
}

void tst_JunkScanService::progressIsToldInOrder()
{
    QStringList texts;
    (void)JunkScanService::scanSync(*m_fake->platform, kNow, [&](const QString &text) { texts.append(text); }, {});
    QCOMPARE(texts, (QStringList{u"Scanning system caches…"_s, u"Scanning Trash…"_s, u"Scanning crash reports…"_s,
                                 u"Scanning browser caches…"_s, u"Scanning chat caches…"_s, u"Scanning installers…"_s,
                                 u"Done"_s}));
}

void tst_JunkScanService::installersOfAnyAgeAndCaseAreNoOldDownloads()
{
    const QList<FileURL> installers{aged("Downloads/Setup.DMG", 90), aged("Downloads/new.pkg", 0),
                                    aged("Downloads/x.mpkg", 31)};
    const FileURL other = aged("Downloads/dmg", 90);
    QCOMPARE(found(u"Leftover Installers"_s), installers);
    QCOMPARE(found(u"Old Downloads"_s), QList<FileURL>{other});
}

void tst_JunkScanService::theInstallerSetIsThePlatforms()
{
    class DebianPlaces : public FakePlaces
    {
    public:
        using FakePlaces::FakePlaces;
        [[nodiscard]] QSet<QByteArray> installerExtensions() const override { return {"deb"}; }
    };
    Platform platform;
    platform.places = std::make_unique<DebianPlaces>(m_tree->root());
    aged("Downloads/a.deb", 90);
    aged("Downloads/b.dmg", 90);
    const QList<JunkCategory> categories = JunkScanService::scanSync(platform, kNow, {}, {});
    QCOMPARE(categories.size(), 2);
    QCOMPARE(categories.at(0).files.constFirst().url, m_tree->at("Downloads/b.dmg"));
    QCOMPARE(categories.at(1).files.constFirst().url, m_tree->at("Downloads/a.deb"));
}

void tst_JunkScanService::downloadsAreOldFromExactlyThirtyDays()
{
    const FileURL exact = aged("Downloads/exact", 30);
    aged("Downloads/young", 29);
    ScratchTree::setModified(m_tree->file("Downloads/almost"), daysAgo(30).addMSecs(1));
    QCOMPARE(found(u"Old Downloads"_s), QList<FileURL>{exact});
}

void tst_JunkScanService::aFileWithoutADateIsOld()
{
    const FolderRule rule{.notNewerThan = daysAgo(30)};
    QVERIFY(JunkScanService::counts(rule, {}, std::nullopt));
    QVERIFY(JunkScanService::counts(rule, {}, daysAgo(30)));
    QVERIFY(!JunkScanService::counts(rule, {}, daysAgo(29)));
}

void tst_JunkScanService::subfoldersOfDownloadsAreNeverEntered()
{
    aged("Downloads/folder/old", 90);
    aged("Downloads/folder/setup.dmg", 90);
    QCOMPARE(scan(), QList<JunkCategory>{});
}

void tst_JunkScanService::cachesAreListedTwoLevelsDeep()
{
    const FileURL direct = aged("Library/Caches/direct", 0);
    const FileURL inner = aged("Library/Caches/a/b.cache", 0);
    aged("Library/Caches/a/b/c.cache", 0);
    QCOMPARE(found(u"App Caches"_s), (QList<FileURL>{inner, direct}));
}

void tst_JunkScanService::diagnosticReportsAreCrashReportsOnly()
{
    const FileURL report = aged("Library/Logs/DiagnosticReports/x.ips", 0);
    const FileURL deep = aged("Library/Logs/DiagnosticReports/Retired/y.ips", 0);
    const FileURL log = aged("Library/Logs/app/x.log", 0);
    const FileURL other = aged("Library/Caches/app/DiagnosticReports", 0);
    aged("Library/Caches/Logs/DiagnosticReports", 0); // the rule speaks of names alone
    QCOMPARE(found(u"Crash Reports"_s), (QList<FileURL>{deep, report}));
    QCOMPARE(found(u"System Logs"_s), QList<FileURL>{log});
    QCOMPARE(found(u"App Caches"_s), QList<FileURL>{other});
}

void tst_JunkScanService::hiddenEntriesAreNeverFound()
{
    aged("Downloads/.old", 90);
    aged("Library/Caches/.cache", 0);
    aged("Library/Caches/.folder/cache", 0);
    aged(".Trash/.DS_Store", 0);
    const FileURL trashed = aged(".Trash/file", 0);
    QCOMPARE(scan().size(), 1);
    QCOMPARE(found(u"Trash"_s), QList<FileURL>{trashed});
}

void tst_JunkScanService::linksAndPipesAreIgnoredAndPackagesAreFolders()
{
    const FileURL inside = aged("Library/Caches/Tool.app/data", 0);
    m_tree->link("Library/Caches/link", "Tool.app/data");
    m_tree->link("Library/Caches/folder-link", "Tool.app");
    m_tree->link("Library/Caches/loop", ".");
    QCOMPARE(::mkfifo(m_tree->at("Library/Caches/pipe").path().constData(), 0600), 0);
    QCOMPARE(found(u"App Caches"_s), QList<FileURL>{inside});
}

void tst_JunkScanService::temporaryFilesAreOldFromExactlySevenDays()
{
    const FileURL exact = aged("tmp/exact", 7);
    const FileURL inner = aged("tmp/folder/old", 8);
    aged("tmp/young", 6);
    aged("tmp/folder/deep/old", 90);
    QCOMPARE(found(u"Temp Files"_s), (QList<FileURL>{exact, inner}));
}

void tst_JunkScanService::inAForeignFolderOnlyOwnEntriesCount()
{
    const FolderRule rule{.maxDepth = 2, .owners = Owners::ownInForeignFolders};
    if (::geteuid() != 0) {
        // The shared temporary folder is foreign to every ordinary user.
        const auto shared = JunkScanService::scanDirectory(FileURL::fromPath("/tmp").value(), rule, {});
        for (const JunkFile &file : shared.value_or(JunkScanService::Found{}).files) {
            const FileURL parent = file.url.parent();
            QVERIFY(FileSystem::attributes(file.url).value().owner == ::geteuid() ||
                    (parent.path() != "/tmp" && FileSystem::attributes(parent).value().owner == ::geteuid()));
        }
        return;
    }
    const FileURL mine = m_tree->file("shared/mine");
    const FileURL inMine = m_tree->file("shared/my-folder/file");
    const FileURL foreignInMine = m_tree->file("shared/my-folder/given");
    m_tree->file("shared/foreign");
    m_tree->file("shared/foreign-folder/mine"); // in a folder that does not count
    m_tree->file("shared/foreign-folder/foreign");
    for (const char *item : {"shared", "shared/foreign", "shared/foreign-folder", "shared/foreign-folder/foreign",
                             "shared/my-folder/given"})
        OrdinaryUser::own(m_tree->at(item));
    auto counted = JunkScanService::scanDirectory(m_tree->at("shared"), rule, {}).value().files;
    std::sort(counted.begin(), counted.end(), [](const JunkFile &a, const JunkFile &b) { return a.url < b.url; });
    QCOMPARE(counted.size(), 3);
    QCOMPARE(counted.at(0).url, mine);
    QCOMPARE(counted.at(1).url, inMine);
    QCOMPARE(counted.at(2).url, foreignInMine);
    QCOMPARE(JunkScanService::scanDirectory(m_tree->at("shared"), {.maxDepth = 2}, {}).value().files.size(), 6);
    // The category is searched by this rule.
    for (const char *item : {"shared/mine", "shared/foreign"})
        ScratchTree::setModified(m_tree->at(item), daysAgo(90));
    m_fake->places->setFolders(Place::temporary, {m_tree->at("shared")});
    QCOMPARE(found(u"Temp Files"_s), QList<FileURL>{mine});
}

void tst_JunkScanService::aFolderInTheTrashIsOneItem()
{
    m_tree->file(".Trash/folder/a", "1");
    m_tree->file(".Trash/folder/sub/b", "22");
    m_tree->file(".Trash/folder/sub/.hidden", "4444");
    const QList<JunkCategory> categories = scan();
    QCOMPARE(categories.size(), 1);
    QCOMPARE(categories.constFirst().files.size(), 1);
    QCOMPARE(categories.constFirst().files.constFirst().url, m_tree->at(".Trash/folder"));
    QCOMPARE(categories.constFirst().files.constFirst().size, 7);
    QCOMPARE(categories.constFirst().totalSize, 7);
    QVERIFY(categories.constFirst().deletesDirectly);
}

void tst_JunkScanService::everyKindOfTrashItemIsListed()
{
    m_tree->file("outside/large", QByteArray(5'000, 'x'));
    m_tree->file(".Trash/a", "1");
    m_tree->link(".Trash/b", "../outside");
    QCOMPARE(::mkfifo(m_tree->at(".Trash/c").path().constData(), 0600), 0);
    m_tree->folder(".Trash/d");
    const auto trashed = JunkScanService::scanTrash(m_tree->at(".Trash"), FileSystem::Hidden::skip, {}).value();
    QCOMPARE(trashed.files.size(), 4);
    QCOMPARE(trashed.size, 1 + 10); // a link counts its own length, not what it leads to
    QVERIFY(!JunkScanService::scanTrash(m_tree->at("none"), FileSystem::Hidden::skip, {}));
}

void tst_JunkScanService::aLinkedTrashIsLeftAlone()
{
    m_tree->file("precious/file");
    m_tree->link(".Trash", "precious");
    m_tree->file("real/files/item");
    m_tree->link("Trash", "real");
    m_fake->places->setFolders(Place::trash, {m_tree->at(".Trash"), m_tree->at("Trash/files")});
    QCOMPARE(scan(), QList<JunkCategory>{});
}

void tst_JunkScanService::aForeignTrashIsLeftAlone()
{
    if (::geteuid() != 0) {
        const FileURL foreign = FileURL::fromPath("/usr").value();
        QVERIFY(!JunkScanService::scanTrash(foreign, FileSystem::Hidden::skip, {}));
        return;
    }
    m_tree->file(".Trash/file");
    OrdinaryUser::own(m_tree->at(".Trash"));
    m_tree->file("Trash/files/item");
    OrdinaryUser::own(m_tree->at("Trash"));
    m_fake->places->setFolders(Place::trash, {m_tree->at(".Trash"), m_tree->at("Trash/files")});
    QCOMPARE(scan(), QList<JunkCategory>{});
}

void tst_JunkScanService::theDesktopsTrashHoldsHiddenItemsToo()
{
    m_tree->file(".Trash/.bookkeeping");
    const FileURL plain = m_tree->file(".Trash/plain");
    const FileURL hidden = m_tree->file("data/Trash/files/.profile");
    const FileURL other = m_tree->file("data/Trash/files/other");
    m_tree->file("data/Trash/info/other.trashinfo");
    const QList<FileURL> folders{m_tree->at(".Trash"), m_tree->at("data/Trash/files")};
    m_fake->places->setFolders(Place::trash, folders);
    QCOMPARE(found(u"Trash"_s), (QList<FileURL>{plain, hidden, other}));
    QCOMPARE(scan().constFirst().paths, folders);
}

void tst_JunkScanService::aMissingBrowserFolderIsSkipped()
{
    const FileURL opera = aged("Library/Caches/Opera Software/a/file", 0);
    const FileURL chrome = aged("Library/Caches/Google/Chrome/file", 0);
    QCOMPARE(found(u"Browser Caches"_s), (QList<FileURL>{chrome, opera}));
    for (const JunkCategory &category : scan()) {
        if (category.name == u"Browser Caches") { // in the order of the folders
            QCOMPARE(category.files.constFirst().url, chrome);
            QCOMPARE(category.files.constLast().url, opera);
        }
    }
    init();
    aged("Library/Caches/other/file", 0);
    QCOMPARE(found(u"Browser Caches"_s), QList<FileURL>{});
    QCOMPARE(scan().size(), 1);
}

void tst_JunkScanService::browserCachesAreListedFourLevelsDeep()
{
    const FileURL fourth = aged("Library/Caches/Firefox/1/2/3/file", 0);
    aged("Library/Caches/Firefox/1/2/3/4/file", 0);
    QCOMPARE(found(u"Browser Caches"_s), QList<FileURL>{fourth});
}

void tst_JunkScanService::chatCachesAreListedThreeLevelsDeep()
{
    const QByteArray base = "Library/Containers/com.tencent.xinWeChat/Data/Library/Caches/";
    const FileURL third = aged(base + "1/2/file", 0);
    aged(base + "1/2/3/file", 0);
    QCOMPARE(found(u"Chat App Caches"_s), QList<FileURL>{third});
}

void tst_JunkScanService::aFileInTwoPlacesOfACategoryCountsOnce()
{
    const FileURL outer = aged("caches/file", 0);
    const FileURL inner = aged("caches/inner/file", 0);
    const FileURL deeper = aged("caches/inner/more/file", 0); // reached from the inner place alone
    m_fake->places->setFolders(Place::caches, {m_tree->at("caches"), m_tree->at("none"), m_tree->at("caches/inner")});
    QCOMPARE(found(u"App Caches"_s), (QList<FileURL>{outer, inner, deeper}));
    QCOMPARE(scan().constFirst().totalSize, 21);
}

void tst_JunkScanService::aCategoryOfEmptyFilesIsDropped()
{
    aged("Library/Caches/a", 0, "");
    aged("Library/Caches/b", 0, "");
    QCOMPARE(scan(), QList<JunkCategory>{});
    aged("Library/Caches/c", 0, "1");
    QCOMPARE(scan().size(), 1);
    QCOMPARE(scan().constFirst().files.size(), 3);
}

void tst_JunkScanService::unreadableFoldersContributeNothing()
{
    const FileURL open = aged("Library/Caches/open/file", 0);
    aged("Library/Caches/closed/file", 0);
    aged("Library/Logs/file", 0);
    for (const char *item :
         {"", "Library", "Library/Caches", "Library/Caches/open", "Library/Caches/closed", "Library/Logs"})
        OrdinaryUser::own(m_tree->at(item));
    for (const char *item : {"Library/Caches/closed", "Library/Logs"})
        QCOMPARE(::chmod(m_tree->at(item).path().constData(), 0), 0);
    {
        const OrdinaryUser user;
        QCOMPARE(found(u"App Caches"_s), QList<FileURL>{open});
        QCOMPARE(scan().size(), 1);
    }
    for (const char *item : {"Library/Caches/closed", "Library/Logs"})
        QCOMPARE(::chmod(m_tree->at(item).path().constData(), 0700), 0);
}

void tst_JunkScanService::identifiersAreFresh()
{
    aged("Library/Caches/a", 0);
    aged("Library/Logs/a", 0);
    const QList<JunkCategory> first = scan();
    const QList<JunkCategory> second = scan();
    QSet<QUuid> ids;
    for (const JunkCategory &category : first + second)
        ids.insert(category.id);
    QCOMPARE(ids.size(), 4);
    QVERIFY(!ids.contains(QUuid()));
}

void tst_JunkScanService::withoutAHomeNothingIsFound()
{
    aged("Library/Caches/a", 0);
    m_fake->places->setHome(std::nullopt);
    QStringList texts;
    QCOMPARE(JunkScanService::scanSync(*m_fake->platform, kNow, [&](const QString &text) { texts.append(text); }, {}),
             QList<JunkCategory>{});
    QCOMPARE(texts, QStringList{u"No usable home folder"_s});
}

void tst_JunkScanService::aCancelledScanFindsNothingMore()
{
    aged("Library/Caches/a", 0);
    aged(".Trash/a", 0);
    const CancelToken cancel;
    QStringList texts;
    const QList<JunkCategory> partial = JunkScanService::scanSync(
        *m_fake->platform, kNow,
        [&](const QString &text) {
            texts.append(text);
            if (text == u"Scanning Trash…")
                cancel.cancel();
        },
        cancel);
    QCOMPARE(partial.size(), 1);
    QCOMPARE(partial.constFirst().name, u"App Caches"_s);
    QCOMPARE(texts.size(), 2);
}

void tst_JunkScanService::theQuestionComesBeforeAnyScanning_data()
{
    QTest::addColumn<bool>("isGranted");
    QTest::newRow("granted") << true;
    QTest::newRow("refused") << false;
}

void tst_JunkScanService::theQuestionComesBeforeAnyScanning()
{
    QFETCH(const bool, isGranted);
    aged("Library/Caches/a", 0);
    m_fake->grants->consent = true;
    UserDefaults defaults(QFile::decodeName(m_tree->at("settings.conf").path()));
    QMutex mutex;
    QStringList events;
    QSet<QThread *> threads;
    NotingPanel panel(events);
    if (isGranted)
        panel.answer = m_tree->at("Library");
    TaskPools pools;
    const auto progress = [&](const QString &text) {
        const QMutexLocker lock(&mutex);
        events.append(text);
        threads.insert(QThread::currentThread());
    };
    const AccessContext access{.platform = m_fake->platform, .defaults = &defaults, .panel = &panel};
    const QList<JunkCategory> categories =
        QCoro::waitFor(JunkScanService::scan(access, &pools.userInitiated, kNow, progress, {}));
    QCOMPARE(categories.size(), 1);
    QCOMPARE(panel.asked, 1);
    QCOMPARE(panel.lastHint, std::optional(m_tree->at("Library")));
    QCOMPARE(events.size(), 8);
    QCOMPARE(events.at(0), u"asked: Brisko needs access to the Library folder to scan caches and logs."_s);
    QCOMPARE(events.at(1), u"Scanning system caches…"_s);
    QCOMPARE(events.at(7), u"Done"_s);
    QVERIFY(!threads.contains(QThread::currentThread()));
}

void tst_JunkScanService::randomFoldersAreSearchedAsFindSearches()
{
    for (unsigned seed = 201; seed <= 206; ++seed) {
        const RandomTree tree(seed, 400);
        for (const int depth : {1, 2, 3, 4}) {
            const auto ours = JunkScanService::scanDirectory(tree.root(), {.maxDepth = depth}, {});
            QList<QByteArray> lines;
            for (const JunkFile &file : ours.value_or(JunkScanService::Found{}).files)
                lines.append(file.url.path() + ' ' + QByteArray::number(file.size));
            QList<QByteArray> theirs =
                output("find '" + tree.root().path() + "' -mindepth 1 -maxdepth " + QByteArray::number(depth) +
                       " -name '.*' -prune -o -type f -printf '%p %s\\0'")
                    .split('\0');
            theirs.removeLast();
            std::sort(lines.begin(), lines.end());
            std::sort(theirs.begin(), theirs.end());
            QVERIFY2(lines == theirs, qPrintable(u"seed %1, depth %2"_s.arg(seed).arg(depth)));
        }
    }
}

void tst_JunkScanService::sizesAreWhatDuSays()
{
    for (unsigned seed = 211; seed <= 216; ++seed) {
        const RandomTree tree(seed, 400);
        const qint64 told = output("find '" + tree.root().path() + "' -type f -print0" +
                                   " | du -l -c -B1 --apparent-size --files0-from=- | tail -n 1 | cut -f 1")
                                .toLongLong();
        QVERIFY2(JunkScanService::directorySize(tree.root(), {}) == told, qPrintable(u"seed %1"_s.arg(seed)));
    }
}

QTEST_GUILESS_MAIN(tst_JunkScanService)
#include "tst_JunkScanService.moc"
