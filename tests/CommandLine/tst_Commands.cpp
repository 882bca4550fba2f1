// SPDX-License-Identifier: MIT
#include "CommandLine/CommandTable.h"
#include "CommandLine/Commands.h"
#include "CommandLine/FakeTerminal.h"
#include "CommandLine/Matching.h"
#include "CommandLine/Parser.h"
#include "State/StateFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <unistd.h>

using namespace CommandLine;
using namespace Qt::StringLiterals;

namespace {

/// How a command ended, and what it left behind.
struct Ended {
    ExitStatus status = ExitStatus::done;
    QByteArray output;
    QByteArray errors;

    [[nodiscard]] QJsonObject json() const
    {
        const QJsonDocument document = QJsonDocument::fromJson(output);
        return document.object();
    }
    /// Nothing on standard output, one line on standard error.
    [[nodiscard]] bool isRefusal() const
    {
        return status == ExitStatus::wrongUse && output.isEmpty() && errors.count('\n') == 1 && errors.endsWith('\n');
    }
};

QStringList pathsOf(const QJsonValue &list)
{
    QStringList paths;
    for (const auto item : list.toArray())
        paths.append(item[u"path"].toString());
    return paths;
}

class CommandFixture : public StateFixture
{
public:
    /// Carries out a command line, with this fixture's terminal and home, from the scratch folder.
    Ended run(const QList<QByteArray> &arguments)
    {
        const auto request = parse(arguments);
        if (!request)
            qFatal("the test's own command line is wrong: %s", qPrintable(request.error().message));
        make();
        Environment environment;
        environment.state = state.get();
        environment.terminal = &terminal;
        environment.interruption = &interruption;
        environment.workingFolder = workingFolder;
        environment.now = [this] { return now; };
        terminal.output.clear();
        terminal.errors.clear();
        Ended ended;
        ended.status =
            wait(carryOut(std::make_shared<Session>(std::get<Invocation>(*request), std::move(environment))));
        ended.output = terminal.output;
        ended.errors = terminal.errors;
        settle();
        return ended;
    }

    FileURL app(const QByteArray &relative, const QString &identifier)
    {
        const FileURL bundle = tree.folder("home/System/Applications/" + relative);
        tree.file("home/System/Applications/" + relative + "/binary", QByteArray(5'000, 'x'));
        fakes.workspace->bundles.insert(bundle, {.identifier = identifier, .version = u"1.0"_s, .icon = {}});
        return bundle;
    }

    FileURL startupItem(const QByteArray &relative, bool enabled)
    {
        const FileURL file = tree.file(relative);
        PropertyDictionary table;
        if (!enabled)
            table.values.insert(u"Disabled"_s, true);
        fakes.propertyList->tables.insert(file, table);
        return file;
    }

    FileURL large(const QByteArray &name, qint64 size = 2'048) const
    {
        return tree.file("files/" + name, QByteArray(size, 'l'));
    }

    FakeTerminal terminal;
    Interruption interruption;
    std::optional<FileURL> workingFolder = tree.root();
};

const QList<QByteArray> kLarge{"remove", "large-files", "--folder", "files", "--min-size", "1K"};

} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyAClearYesRemoves_data();
    void onlyAClearYesRemoves();
    void theQuestionIsThatOfThePage();
    void withoutATerminalNothingIsRemoved();
    void nothingToRemoveNeedsNoTerminal_data();
    void nothingToRemoveNeedsNoTerminal();
    void aDryRunAsksNothingAndRemovesNothing();
    void aFileThatIsNotListedIsRefused();
    void filesAreMatchedByPathThenByResolvedFolder();
    void aFolderAboveALinkIsTheSystemsOwn();
    void someFailuresExitWithOne();
    void onlyFailuresExitWithOne();
    void anInterruptionStopsBetweenTwoItems();
    void anInterruptionDuringTheQuestionDeclines();
    void anInterruptionAfterTheAnswerRemovesNothing();
    void anInterruptedScanStillAnswersPrograms();
    void everyCategoryOfTheScanCanBeNamed();
    void categoriesAreCleanedInTheirOwnOrder();
    void aCategoryEmptiedByAnEarlierOneIsReported();
    void aKnownCategoryWithoutFindings();
    void theTrashIsDeletedForGood();
    void everyCopyOfAGroupIsRefused();
    void keepFirstLeavesTheFirst();
    void uninstallMatchesPathThenIdentifierThenName();
    void anAmbiguousApplicationIsRefused();
    void uninstallReportsLeftoversFirst();
    void startupItemsAreSwitched();
    void anItemInTheAskedStateIsNotTouched();
    void systemLevelItemsStayAsTheyAre();
    void startupItemsAreRemoved();
    void anUnknownStartupItemIsRefused();
    void foldersAreAddedAndRemoved();
    void whatIsNoDirectoryIsNotAdded();
    void givenFoldersAreNotSaved();
    void aMissingFolderIsToldButNoRefusal();
    void withoutAHomeNothingIsFoundAndNothingRemoved_data();
    void withoutAHomeNothingIsFoundAndNothingRemoved();
    void historyIsNewestFirst();
    void statsKnowWhatTheyDoNotKnow();
    void scanAllEndsWithItsMessage();
    void everyProgressTextIsPrintedWhenAsked();
    void locatesArguments_data();
    void locatesArguments();
};

void tst_Commands::onlyAClearYesRemoves_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("isYes");
    for (const char *yes : {"y", "Y", "yes", "YES", "Yes", " yes ", "y\r"})
        QTest::newRow(yes) << QByteArray(yes) << true;
    for (const char *no : {"", "n", "no", "yep", "ye", "yes!", "y y", "j", "1", "true", "Move to Trash"})
        QTest::newRow(no) << QByteArray(no) << false;
}

void tst_Commands::onlyAClearYesRemoves()
{
    QFETCH(const QByteArray, answer);
    QFETCH(const bool, isYes);
    CommandFixture f;
    const FileURL file = f.large("a");
    f.terminal.answers = true;
    f.terminal.answer = answer;
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--json"});
    QCOMPARE(f.terminal.asked, 1);
    QCOMPARE(ended.status, isYes ? ExitStatus::done : ExitStatus::failed);
    QCOMPARE(ScratchTree::exists(file), !isYes);
    QCOMPARE(pathsOf(ended.json()[u"removed"]), isYes ? QStringList{file.text()} : QStringList());
    if (!isYes) {
        QCOMPARE(ended.output, QByteArray("{\"removed\":[],\"failed\":[],\"bytes\":0,\"toast\":null,\"alert\":null,"
                                          "\"activity\":null}\n"));
        QVERIFY(f.state->activities().isEmpty());
    }
}

void tst_Commands::theQuestionIsThatOfThePage()
{
    CommandFixture f;
    f.large("a", 3'000);
    f.large("b", 2'000);
    f.terminal.answers = true;
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all"});
    QCOMPARE(ended.status, ExitStatus::failed);
    QVERIFY2(ended.errors.contains("Remove 2 large files?\nThe selected files will be moved to Trash.\n"
                                   "  Total Size  5 KB\nMove to Trash? [y/N] \n"),
             ended.errors.constData());
    QCOMPARE(ended.output, QByteArray());
}

void tst_Commands::withoutATerminalNothingIsRemoved()
{
    CommandFixture f;
    const FileURL file = f.large("a");
    QVERIFY(f.run(kLarge + QList<QByteArray>{"--all"}).isRefusal());
    QVERIFY(f.run(kLarge + QList<QByteArray>{"--all", "--json"}).isRefusal());
    QVERIFY(ScratchTree::exists(file));
    QCOMPARE(f.terminal.asked, 0);
    QCOMPARE(f.run(kLarge + QList<QByteArray>{"--all", "--yes"}).status, ExitStatus::done);
    QVERIFY(!ScratchTree::exists(file));
}

void tst_Commands::nothingToRemoveNeedsNoTerminal_data()
{
    QTest::addColumn<QList<QByteArray>>("arguments");
    QTest::addColumn<QByteArray>("json");
    const QByteArray report = R"({"removed":[],"failed":[],"bytes":0,"toast":null,"alert":null,"activity":null})";
    QTest::newRow("large files") << kLarge + QList<QByteArray>{"--all"} << report;
    QTest::newRow("duplicates") << QList<QByteArray>{"remove", "duplicates", "--folder", "files", "--keep-first"}
                                << report;
    QTest::newRow("all junk") << QList<QByteArray>{"clean", "junk", "--all"} << QByteArray(R"({"results":[]})");
    QTest::newRow("one category") << QList<QByteArray>{"clean", "junk", "--category", "Trash"} << report;
    QTest::newRow("two categories") << QList<QByteArray>{"clean", "junk",       "--category",
                                                         "Trash", "--category", "App Caches"}
                                    << QByteArray(R"({"results":[]})");
    QTest::newRow("dry run") << kLarge + QList<QByteArray>{"--all", "--dry-run"}
                             << QByteArray(R"({"wouldRemove":[],"bytes":0})");
}

void tst_Commands::nothingToRemoveNeedsNoTerminal()
{
    QFETCH(QList<QByteArray>, arguments);
    QFETCH(const QByteArray, json);
    CommandFixture f;
    f.tree.folder("files");
    const Ended plain = f.run(arguments);
    QCOMPARE(plain.status, ExitStatus::done);
    QCOMPARE(plain.errors, QByteArray());
    QVERIFY(!plain.output.isEmpty());
    const Ended ended = f.run(arguments + QList<QByteArray>{"--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(ended.output, json + '\n');
}

void tst_Commands::aDryRunAsksNothingAndRemovesNothing()
{
    CommandFixture f;
    const FileURL big = f.large("big", 9'000);
    const FileURL small = f.large("small", 2'000);
    f.terminal.answers = true;
    f.terminal.answer = "y";
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--yes", "--dry-run", "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(f.terminal.asked, 0);
    QVERIFY(ScratchTree::exists(big) && ScratchTree::exists(small));
    QCOMPARE(pathsOf(ended.json()[u"wouldRemove"]), (QStringList{big.text(), small.text()}));
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 11'000);
    QVERIFY(f.state->activities().isEmpty());
}

void tst_Commands::aFileThatIsNotListedIsRefused()
{
    CommandFixture f;
    const FileURL file = f.large("a");
    f.tree.file("files/small", "x");
    f.tree.file("elsewhere/big", QByteArray(5'000, 'x'));
    for (const char *name : {"files/small", "elsewhere/big", "files/nothing", "files", "/", ".", "files/a/..", "a"}) {
        const Ended ended = f.run(kLarge + QList<QByteArray>{"files/a", name, "--yes", "--json"});
        QVERIFY2(ended.isRefusal(), name);
        QVERIFY2(ended.errors.contains('"' + QByteArray(name) + '"'), ended.errors.constData());
    }
    QVERIFY(ScratchTree::exists(file));
    // Also where there is nothing at all to remove: the command line comes first.
    QVERIFY(f.run({"remove", "large-files", "--folder", "files", "--min-size", "1T", "files/a"}).isRefusal());
    QVERIFY(f.run({"remove", "large-files", "--folder", "files", "--dry-run", "files/nothing"}).isRefusal());
}

void tst_Commands::filesAreMatchedByPathThenByResolvedFolder()
{
    const QByteArray odd("odd \xff\n name", 11);
    for (const QByteArray &argument :
         {"files/" + odd, "./files//" + odd, "files/../files/" + odd, "link/" + odd, "link/../files/" + odd}) {
        CommandFixture f;
        const FileURL file = f.large(odd);
        const FileURL other = f.large("other");
        f.tree.link("link", "files");
        const Ended ended = f.run(kLarge + QList<QByteArray>{"--yes", "--json", "--", argument});
        QVERIFY2(ended.status == ExitStatus::done, ended.errors.constData());
        QVERIFY(!ScratchTree::exists(file));
        QVERIFY(ScratchTree::exists(other));
        const QByteArray url = ended.json()[u"removed"][0][u"url"].toString().toLatin1();
        QCOMPARE(FileURL::fromEncoded(url).value(), file);
    }
    CommandFixture f;
    const FileURL file = f.large("a");
    f.workingFolder.reset();
    QVERIFY(
        f.run({"remove", "large-files", "--folder", f.tree.at("files").path(), "--min-size", "1K", "a"}).isRefusal());
    const Ended ended = f.run(
        {"remove", "large-files", "--folder", f.tree.at("files").path(), "--min-size", "1K", "--yes", file.path()});
    QCOMPARE(ended.status, ExitStatus::done);
    QVERIFY(!ScratchTree::exists(file));
}

void tst_Commands::aFolderAboveALinkIsTheSystemsOwn()
{
    // By text alone "link/../a" would be the other file.
    CommandFixture f;
    f.tree.folder("files/deep");
    const FileURL meant = f.large("a");
    const FileURL other = f.tree.file("a", QByteArray(5'000, 'x'));
    f.tree.link("link", "files/deep");
    const Ended ended = f.run({"remove", "large-files", "--folder", ".", "--min-size", "1K", "--yes", "link/../a"});
    QCOMPARE(ended.status, ExitStatus::done);
    QVERIFY(!ScratchTree::exists(meant));
    QVERIFY(ScratchTree::exists(other));
}

void tst_Commands::someFailuresExitWithOne()
{
    CommandFixture f;
    const FileURL stays = f.large("a", 4'000);
    const FileURL goes = f.large("b", 3'000);
    f.fakes.trashCan->refuse(stays);
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--yes", "--json"});
    QCOMPARE(ended.status, ExitStatus::failed);
    QCOMPARE(pathsOf(ended.json()[u"removed"]), QStringList{goes.text()});
    QCOMPARE(pathsOf(ended.json()[u"failed"]), QStringList{stays.text()});
    QCOMPARE(ended.json()[u"failed"][0][u"error"].toString(), u"Permission denied"_s);
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 3'000);
    QVERIFY(ended.json()[u"toast"].isNull());
    QVERIFY(ended.json()[u"alert"][u"message"].toString().startsWith(u"3 KB freed, but 1 protected"));
    QCOMPARE(ended.json()[u"activity"][u"kind"].toString(), u"largeFilesRemoved"_s);
    QCOMPARE(ended.errors, QByteArray());
}

void tst_Commands::onlyFailuresExitWithOne()
{
    CommandFixture f;
    const FileURL stays = f.large("a");
    f.fakes.trashCan->refuse(stays);
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--yes", "--json"});
    QCOMPARE(ended.status, ExitStatus::failed);
    QCOMPARE(pathsOf(ended.json()[u"removed"]), QStringList());
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 0);
    QCOMPARE(ended.json()[u"alert"][u"title"].toString(), u"Can't move to Trash"_s);
    QVERIFY(ended.json()[u"activity"].isNull());
    const Ended plain = f.run(kLarge + QList<QByteArray>{"--all", "--yes"});
    QCOMPARE(plain.output, QByteArray());
    QVERIFY(plain.errors.endsWith(stays.path() + ": Permission denied\nCan't move to Trash: Permission denied\n"));
}

void tst_Commands::anInterruptionStopsBetweenTwoItems()
{
    CommandFixture f;
    const FileURL first = f.large("a", 4'000);
    const FileURL second = f.large("b", 3'000);
    f.fakes.trashCan->setBefore([&f, &first](const FileURL &item) {
        if (item == first)
            QMetaObject::invokeMethod(
                &f.interruption, [&f] { f.interruption.interrupt(); }, Qt::BlockingQueuedConnection);
    });
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--yes", "--json"});
    QCOMPARE(ended.status, ExitStatus::interrupted);
    QVERIFY(!ScratchTree::exists(first));
    QVERIFY(ScratchTree::exists(second));
    QCOMPARE(pathsOf(ended.json()[u"removed"]), QStringList{first.text()});
    QVERIFY(ended.json()[u"failed"].toArray().isEmpty());
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 4'000);
    QCOMPARE(f.state->activities().size(), 1);
}

void tst_Commands::anInterruptionDuringTheQuestionDeclines()
{
    CommandFixture f;
    const FileURL file = f.large("a");
    f.terminal.answers = true;
    f.terminal.beforeAnswer = [&f] { f.interruption.interrupt(); };
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--json"});
    QCOMPARE(ended.status, ExitStatus::interrupted);
    QVERIFY(ScratchTree::exists(file));
    QVERIFY(ended.json()[u"removed"].toArray().isEmpty() && ended.json().contains(u"activity"));
}

void tst_Commands::anInterruptionAfterTheAnswerRemovesNothing()
{
    CommandFixture f;
    const FileURL file = f.large("a");
    f.terminal.answers = true;
    f.terminal.answer = "y";
    f.terminal.beforeAnswer = [&f] { f.interruption.interrupt(); };
    const Ended ended = f.run(kLarge + QList<QByteArray>{"--all", "--json"});
    QCOMPARE(ended.status, ExitStatus::interrupted);
    QVERIFY(ScratchTree::exists(file));
    QVERIFY(f.fakes.trashCan->asked().isEmpty());
    QVERIFY(ended.json().contains(u"removed"));
}

void tst_Commands::anInterruptedScanStillAnswersPrograms()
{
    const QList<std::pair<QList<QByteArray>, QString>> commands{
        {{"scan", "junk"}, u"categories"_s},
        {{"scan", "large-files", "--folder", "files"}, u"files"_s},
        {{"scan", "duplicates", "--folder", "files"}, u"groups"_s},
        {{"scan", "apps"}, u"apps"_s},
        {{"scan", "startup"}, u"items"_s},
        {{"scan", "all"}, u"largeFiles"_s},
        {{"clean", "junk", "--all"}, u"results"_s},
        {kLarge + QList<QByteArray>{"--all", "--yes"}, u"removed"_s},
        {kLarge + QList<QByteArray>{"--all", "--dry-run"}, u"wouldRemove"_s},
        {{"startup", "enable", "x"}, u"item"_s},
        {{"stats"}, u"cpuUsage"_s},
    };
    for (const auto &[arguments, key] : commands) {
        // A scan of so little may be over before the interruption comes: only one that is met counts.
        bool isMet = false;
        for (int tries = 0; tries < 50 && !isMet; ++tries) {
            CommandFixture f;
            const FileURL file = f.large("a");
            QMetaObject::invokeMethod(
                &f.interruption, [&f] { f.interruption.interrupt(); }, Qt::QueuedConnection);
            const Ended ended = f.run(arguments + QList<QByteArray>{"--json"});
            isMet = ended.status == ExitStatus::interrupted;
            if (!isMet)
                continue;
            QVERIFY2(ended.json().contains(key), ended.output.constData());
            QVERIFY(ScratchTree::exists(file));
        }
        QVERIFY2(isMet, arguments.last().constData());
    }
}

void tst_Commands::everyCategoryOfTheScanCanBeNamed()
{
    CommandFixture f;
    f.oldDownload("old.txt", 1);
    f.oldDownload("setup.dmg", 1);
    const FileURL temporary = f.tree.file("home/tmp/old", "x");
    ScratchTree::setModified(temporary, f.now.addDays(-10));
    for (const char *name :
         {"Library/Caches/c", "Library/Logs/l.log", ".Trash/t", "Library/Logs/DiagnosticReports/r.ips",
          "Library/Caches/Firefox/p", "Library/Containers/com.tencent.qq/Data/Library/Caches/q"})
        f.tree.file(QByteArray("home/") + name, "x");
    QList<QByteArray> found;
    for (const auto category : f.run({"scan", "junk", "--json"}).json()[u"categories"].toArray())
        found.append(category[u"name"].toString().toUtf8());
    QList<QByteArray> known;
    for (const QByteArrayView name : junkCategoryNames())
        known.append(name.toByteArray());
    QCOMPARE(found, known);
}

void tst_Commands::categoriesAreCleanedInTheirOwnOrder()
{
    CommandFixture f;
    const FileURL old = f.oldDownload("old.txt", 10);
    const FileURL cache = f.tree.file("home/Library/Caches/c", "cache");
    const FileURL log = f.tree.file("home/Library/Logs/l.log", "log");
    const Ended ended = f.run({"clean", "junk", "--category", "App Caches", "--category", "Old Downloads", "--category",
                               "App Caches", "--yes", "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    const QJsonArray results = ended.json()[u"results"].toArray();
    QCOMPARE(results.size(), 2);
    QCOMPARE(results.at(0)[u"category"].toString(), u"Old Downloads"_s);
    QCOMPARE(results.at(1)[u"category"].toString(), u"App Caches"_s);
    QCOMPARE(pathsOf(results.at(0)[u"removed"]), QStringList{old.text()});
    QCOMPARE(pathsOf(results.at(1)[u"removed"]), QStringList{cache.text()});
    QCOMPARE(results.at(0)[u"toast"][u"message"].toString(), u"Cleaned — 10 bytes freed"_s);
    QVERIFY(ScratchTree::exists(log));

    const Ended single = f.run({"clean", "junk", "--category", "System Logs", "--yes", "--json"});
    QCOMPARE(pathsOf(single.json()[u"removed"]), QStringList{log.text()});
    QVERIFY(!single.json().contains(u"category"));
}

void tst_Commands::aCategoryEmptiedByAnEarlierOneIsReported()
{
    CommandFixture f;
    // The browser's cache folder lies inside the caches folder, so that one file is in both categories.
    const FileURL file = f.tree.file("home/Library/Caches/Firefox/page", "12345");
    const Ended dry = f.run({"clean", "junk", "--all", "--dry-run", "--json"});
    QCOMPARE(pathsOf(dry.json()[u"wouldRemove"]), (QStringList{file.text(), file.text()}));
    QCOMPARE(dry.json()[u"bytes"].toInteger(), 10); // as listed
    const Ended ended = f.run({"clean", "junk", "--all", "--yes", "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    const QJsonArray results = ended.json()[u"results"].toArray();
    QCOMPARE(results.size(), 2);
    QCOMPARE(results.at(0)[u"category"].toString(), u"App Caches"_s);
    QCOMPARE(results.at(1)[u"category"].toString(), u"Browser Caches"_s);
    QVERIFY(results.at(1)[u"removed"].toArray().isEmpty());
    QVERIFY(results.at(1)[u"toast"].isNull() && results.at(1)[u"alert"].isNull() &&
            results.at(1)[u"activity"].isNull());
    QCOMPARE(results.at(1)[u"bytes"].toInteger(), 0);
}

void tst_Commands::aKnownCategoryWithoutFindings()
{
    CommandFixture f;
    const FileURL cache = f.tree.file("home/Library/Caches/c", "cache");
    const Ended one = f.run({"clean", "junk", "--category", "Trash", "--yes", "--json"});
    QCOMPARE(one.status, ExitStatus::done);
    QCOMPARE(one.output, QByteArray("{\"removed\":[],\"failed\":[],\"bytes\":0,\"toast\":null,\"alert\":null,"
                                    "\"activity\":null}\n"));
    const Ended two = f.run({"clean", "junk", "--category", "Trash", "--category", "App Caches", "--yes", "--json"});
    QCOMPARE(two.json()[u"results"].toArray().size(), 1);
    QVERIFY(!ScratchTree::exists(cache));
}

void tst_Commands::theTrashIsDeletedForGood()
{
    CommandFixture f;
    const FileURL item = f.tree.file("home/.Trash/item", "12");
    f.terminal.answers = true;
    f.terminal.answer = "y";
    const Ended ended = f.run({"clean", "junk", "--category", "Trash", "--json"});
    QVERIFY(ended.errors.contains("Clean 1 category?\nThis will permanently delete 1 file.\n  Total Size  2 bytes\n"));
    QCOMPARE(ended.status, ExitStatus::done);
    QVERIFY(!ScratchTree::exists(item));
    QVERIFY(QDir(f.trash.text()).isEmpty());
}

void tst_Commands::everyCopyOfAGroupIsRefused()
{
    CommandFixture f;
    const QByteArray content(8'000, 'd');
    const FileURL a = f.tree.file("files/a", content);
    const FileURL b = f.tree.file("files/b", content);
    const FileURL c = f.tree.file("files/c", content);
    const QList<QByteArray> base{"remove", "duplicates", "--folder", "files", "--yes", "--json"};
    QVERIFY(f.run(base + QList<QByteArray>{"files/a", "files/b", "files/c"}).isRefusal());
    QVERIFY(f.run(base + QList<QByteArray>{"--dry-run", "files/c", "files/b", "files/a", "files/a"}).isRefusal());
    QVERIFY(f.run(base + QList<QByteArray>{"files/none"}).isRefusal());
    QVERIFY(ScratchTree::exists(a) && ScratchTree::exists(b) && ScratchTree::exists(c));
    // Which of them stays is the user's choice, also when it is not the first.
    const Ended ended = f.run(base + QList<QByteArray>{"files/c", "files/a"});
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(pathsOf(ended.json()[u"removed"]), (QStringList{a.text(), c.text()}));
    QVERIFY(ScratchTree::exists(b));
    QCOMPARE(ended.json()[u"toast"][u"message"].toString(), u"Removed 2 duplicates — 16 KB freed"_s);
}

void tst_Commands::keepFirstLeavesTheFirst()
{
    CommandFixture f;
    const FileURL a = f.tree.file("files/a", QByteArray(8'000, 'd'));
    const FileURL b = f.tree.file("files/b", QByteArray(8'000, 'd'));
    f.terminal.answers = true;
    f.terminal.answer = "yes";
    const Ended ended = f.run({"remove", "duplicates", "--folder", "files", "--keep-first"});
    QVERIFY(ended.errors.contains("Remove 1 duplicate file?\n"));
    QVERIFY(ended.errors.contains("  Selected Files  1 · 8 KB\n"));
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(ended.output, QByteArray("Removed 1 duplicates — 8 KB freed\n"));
    QVERIFY(ScratchTree::exists(a) && !ScratchTree::exists(b));
}

void tst_Commands::uninstallMatchesPathThenIdentifierThenName()
{
    CommandFixture f;
    const FileURL one = f.app("One.app", u"org.one"_s);
    const FileURL two = f.app("Two.app", u"org.two"_s);
    const FileURL decoy = f.app("org.two.app", u"org.decoy"_s); // its name is the identifier of another
    const auto matched = [&](const QByteArray &argument) {
        return pathsOf(f.run({"uninstall", "--dry-run", "--json", argument}).json()[u"wouldRemove"]);
    };
    QCOMPARE(matched(one.path()), QStringList{one.text()});
    QCOMPARE(matched(one.path() + '/'), QStringList{one.text()});
    QCOMPARE(matched("home/System/Applications/One.app"), QStringList{one.text()});
    QCOMPARE(matched("org.one"), QStringList{one.text()});
    QCOMPARE(matched("One"), QStringList{one.text()});
    QCOMPARE(matched("org.two"), QStringList{two.text()});
    QCOMPARE(matched(decoy.path()), QStringList{decoy.text()});
    for (const char *wrong : {"one", "One.app", "org", "On"})
        QVERIFY2(f.run({"uninstall", "--yes", "One", wrong}).isRefusal(), wrong);
    QVERIFY(f.run({"uninstall", "--yes", "\xff"}).isRefusal());
    QVERIFY(ScratchTree::exists(one));
}

void tst_Commands::anAmbiguousApplicationIsRefused()
{
    CommandFixture f;
    const FileURL one = f.app("A/Same.app", u"org.a"_s);
    const FileURL two = f.app("B/Same.app", u"org.b"_s);
    f.fakes.places->setFolders(Place::applications, {one.parent(), two.parent()});
    const Ended ended = f.run({"uninstall", "--yes", "Same"});
    QVERIFY(ended.isRefusal());
    QVERIFY(ended.errors.contains(one.path()) && ended.errors.contains(two.path()));
    QVERIFY(ScratchTree::exists(one) && ScratchTree::exists(two));
    QCOMPARE(f.run({"uninstall", "--yes", "org.b"}).status, ExitStatus::done);
    QVERIFY(ScratchTree::exists(one) && !ScratchTree::exists(two));
}

void tst_Commands::uninstallReportsLeftoversFirst()
{
    CommandFixture f;
    const FileURL bundle = f.app("One.app", u"org.one"_s);
    const FileURL preferences = f.tree.file("home/Library/Preferences/org.one.plist", "p");
    const FileURL caches = f.tree.file("home/Library/Caches/org.one/c", "c").parent();
    f.terminal.answers = true;
    f.terminal.answer = "y";
    const Ended ended = f.run({"uninstall", "org.one", "--json"});
    QVERIFY2(ended.status == ExitStatus::done, ended.errors.constData());
    QVERIFY(ended.errors.contains("Uninstall One?\nThis will move the application and related files to Trash.\n"));
    QVERIFY(ended.errors.contains("  Application    1 · "));
    QVERIFY(ended.errors.contains("  Related Files  2 · "));
    const QStringList removed = pathsOf(ended.json()[u"removed"]);
    QCOMPARE(removed.size(), 3);
    QCOMPARE(removed.last(), bundle.text());
    QVERIFY(removed.contains(preferences.text()) && removed.contains(caches.text()));
    qint64 sum = 0;
    for (const auto item : ended.json()[u"removed"].toArray())
        sum += item[u"size"].toInteger();
    QCOMPARE(ended.json()[u"bytes"].toInteger(), sum);
    QCOMPARE(ended.json()[u"activity"][u"bytes"].toInteger(), sum);
}

void tst_Commands::startupItemsAreSwitched()
{
    CommandFixture f;
    const FileURL file = f.startupItem("home/Library/LaunchAgents/a.plist", true);
    const Ended off = f.run({"startup", "disable", file.path(), "--json"});
    QCOMPARE(off.status, ExitStatus::done);
    QCOMPARE(off.json()[u"item"][u"isEnabled"].toBool(true), false);
    QCOMPARE(off.json()[u"item"][u"type"].toString(), u"Launch Agent"_s);
    QCOMPARE(off.json()[u"toast"][u"message"].toString(), u"a disabled"_s);
    QCOMPARE(off.json()[u"toast"][u"tint"].toString(), u"#F59E0B"_s);
    QCOMPARE(f.fakes.propertyList->tables.value(file).boolean(u"Disabled"_s), true);
    const Ended on = f.run({"startup", "enable", "home/Library/LaunchAgents/a.plist", "--json"});
    QCOMPARE(on.status, ExitStatus::done);
    QCOMPARE(on.json()[u"item"][u"isEnabled"].toBool(), true);
    QCOMPARE(on.json()[u"toast"][u"message"].toString(), u"a enabled"_s);
}

void tst_Commands::anItemInTheAskedStateIsNotTouched()
{
    CommandFixture f;
    const FileURL file = f.startupItem("home/Library/LaunchAgents/a.plist", true);
    const Ended ended = f.run({"startup", "enable", file.path(), "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    QVERIFY(ended.json()[u"toast"].isNull());
    QCOMPARE(ended.json()[u"item"][u"isEnabled"].toBool(), true);
    QVERIFY(!f.fakes.propertyList->tables.value(file).boolean(u"Disabled"_s).has_value());
}

void tst_Commands::systemLevelItemsStayAsTheyAre()
{
    CommandFixture f;
    const FileURL file = f.startupItem("system/LaunchDaemons/d.plist", true);
    const Ended off = f.run({"startup", "disable", file.path(), "--json"});
    QCOMPARE(off.status, ExitStatus::failed);
    QCOMPARE(off.json()[u"item"][u"isEnabled"].toBool(), true);
    QCOMPARE(off.json()[u"item"][u"isUserLevel"].toBool(true), false);
    QCOMPARE(f.run({"startup", "enable", file.path()}).status, ExitStatus::done);
    const Ended removed = f.run({"startup", "remove", file.path(), "--yes", "--json"});
    QCOMPARE(removed.status, ExitStatus::failed);
    QCOMPARE(removed.json()[u"alert"][u"title"].toString(), u"Can't remove startup item"_s);
    QCOMPARE(removed.json()[u"failed"][0][u"error"].toString(), u"Cannot remove system-level startup items"_s);
    QVERIFY(ScratchTree::exists(file));
}

void tst_Commands::startupItemsAreRemoved()
{
    CommandFixture f;
    const FileURL file = f.startupItem("home/Library/LaunchAgents/a.plist", false);
    f.terminal.answers = true;
    f.terminal.answer = "n";
    const Ended declined = f.run({"startup", "remove", file.path()});
    QCOMPARE(declined.status, ExitStatus::failed);
    QVERIFY(declined.errors.contains("Remove a?\nThis will move the plist file to Trash."));
    QVERIFY(declined.errors.contains("  Type  Launch Agent\n  Path  " + file.path() + "\nRemove? [y/N] "));
    QVERIFY(ScratchTree::exists(file));
    const Ended dry = f.run({"startup", "remove", file.path(), "--dry-run", "--json"});
    QCOMPARE(pathsOf(dry.json()[u"wouldRemove"]), QStringList{file.text()});
    const Ended ended = f.run({"startup", "remove", file.path(), "--yes", "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(pathsOf(ended.json()[u"removed"]), QStringList{file.text()});
    QCOMPARE(ended.json()[u"bytes"].toInteger(-1), 0);
    QCOMPARE(ended.json()[u"activity"][u"kind"].toString(), u"startupItemRemoved"_s);
    QVERIFY(!ScratchTree::exists(file));
}

void tst_Commands::anUnknownStartupItemIsRefused()
{
    CommandFixture f;
    f.startupItem("home/Library/LaunchAgents/a.plist", true);
    for (const char *verb : {"enable", "disable", "remove"}) {
        QVERIFY(f.run({"startup", verb, "home/Library/LaunchAgents/b.plist"}).isRefusal());
        QVERIFY(f.run({"startup", verb, "a.plist", "--json"}).isRefusal());
    }
}

void tst_Commands::foldersAreAddedAndRemoved()
{
    for (const QByteArray &list : {QByteArray("duplicates"), QByteArray("large-files")}) {
        CommandFixture f;
        const QByteArray odd = "odd \xff";
        f.tree.folder(odd);
        f.tree.link("link", odd);
        const auto folders = [&](const QList<QByteArray> &arguments) {
            const Ended ended = f.run(QList<QByteArray>{"folders", list} + arguments + QList<QByteArray>{"--json"});
            QList<QByteArray> paths;
            for (const auto folder : ended.json()[u"folders"].toArray())
                paths.append(FileURL::fromEncoded(folder[u"url"].toString().toLatin1()).value().path());
            return ended.status == ExitStatus::done ? paths : QList<QByteArray>{"failed"};
        };
        const QList<QByteArray> before = folders({});
        QVERIFY(!before.isEmpty());
        const QList<QByteArray> after = before + QList<QByteArray>{f.tree.at(odd).path()};
        QCOMPARE(folders({"add", odd}), after);
        QCOMPARE(folders({"add", "./" + odd + "/"}), after);
        QCOMPARE(folders({}), after); // a new start reads what was saved
        QCOMPARE(folders({"remove", "unlisted"}), after);
        QCOMPARE(folders({"remove", odd}), before);
        QCOMPARE(folders({"add", "link"}), before + QList<QByteArray>{f.tree.at("link").path()});
    }
}

void tst_Commands::whatIsNoDirectoryIsNotAdded()
{
    CommandFixture f;
    f.tree.file("file");
    f.tree.link("broken", "nowhere");
    for (const char *wrong : {"file", "nothing", "broken", "file/x"})
        QVERIFY2(f.run({"folders", "duplicates", "add", wrong, "--json"}).isRefusal(), wrong);
}

void tst_Commands::givenFoldersAreNotSaved()
{
    CommandFixture f;
    f.large("a", 4'000);
    f.run({"folders", "large-files"}); // every start completes the settings
    const QStringList saved = f.defaults.textList(DefaultsKey::largeFileFolders);
    const Ended ended = f.run({"scan", "large-files", "--folder", "files", "--min-size", "1K", "--json"});
    QCOMPARE(ended.json()[u"files"].toArray().size(), 1);
    QCOMPARE(ended.json()[u"totalSize"].toInteger(), 4'000);
    QCOMPARE(f.defaults.textList(DefaultsKey::largeFileFolders), saved);
    QCOMPARE(f.run({"scan", "large-files", "--folder", "files", "--min-size", "4001", "--json"}).output,
             QByteArray("{\"files\":[],\"totalSize\":0}\n"));
}

void tst_Commands::aMissingFolderIsToldButNoRefusal()
{
    CommandFixture f;
    const FileURL file = f.large("a", 4'000);
    const Ended ended = f.run({"scan", "large-files", "--folder", "missing", "--folder", "files", "--folder", "files/a",
                               "--min-size", "1K", "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(pathsOf(ended.json()[u"files"]), QStringList{file.text()});
    QCOMPARE(ended.errors, QByteArray("brisko: missing: No such file or directory\n"
                                      "brisko: files/a: Not a directory\n"));
}

void tst_Commands::withoutAHomeNothingIsFoundAndNothingRemoved_data()
{
    QTest::addColumn<QList<QByteArray>>("arguments");
    QTest::addColumn<QString>("key");
    const auto row = [](const QList<QByteArray> &arguments, const QString &key) {
        QTest::newRow(arguments.join(' ').constData()) << arguments << key;
    };
    row({"scan", "junk"}, u"categories"_s);
    row({"scan", "large-files", "--folder", "files"}, u"files"_s);
    row({"scan", "duplicates", "--folder", "files"}, u"groups"_s);
    row({"scan", "apps"}, u"apps"_s);
    row({"scan", "startup"}, u"items"_s);
    row({"scan", "all"}, u"toast"_s);
    row({"clean", "junk", "--all", "--yes"}, u"results"_s);
    row({"clean", "junk", "--category", "Trash", "--yes"}, u"removed"_s);
    row(kLarge + QList<QByteArray>{"--all", "--yes"}, u"removed"_s);
    row(kLarge + QList<QByteArray>{"files/a", "--yes"}, u"removed"_s);
    row({"remove", "duplicates", "--keep-first", "--dry-run"}, u"wouldRemove"_s);
    row({"uninstall", "x", "--yes"}, u"removed"_s);
    row({"startup", "remove", "x", "--yes"}, u"removed"_s);
    row({"startup", "enable", "x"}, u"item"_s);
    row({"history"}, u"activities"_s);
    row({"folders", "duplicates"}, u"folders"_s);
    row({"folders", "duplicates", "add", "files"}, u"folders"_s);
}

void tst_Commands::withoutAHomeNothingIsFoundAndNothingRemoved()
{
    QFETCH(const QList<QByteArray>, arguments);
    QFETCH(const QString, key);
    CommandFixture f;
    const FileURL file = f.large("a", 4'000);
    f.fakes.places->setHome(std::nullopt);
    const Ended ended = f.run(arguments + QList<QByteArray>{"--json"});
    QCOMPARE(ended.status, ExitStatus::failed);
    QCOMPARE(ended.errors, QByteArray("No usable home folder\n"));
    QVERIFY2(ended.json().contains(key), ended.output.constData());
    QVERIFY(ScratchTree::exists(file));
    const Ended plain = f.run(arguments);
    QCOMPARE(plain.output, QByteArray());
    QCOMPARE(plain.errors, QByteArray("No usable home folder\n"));
}

void tst_Commands::historyIsNewestFirst()
{
    CommandFixture f;
    f.large("a", 4'000);
    f.run(kLarge + QList<QByteArray>{"--all", "--yes"});
    f.now = f.now.addSecs(60);
    f.large("b", 3'000);
    f.run(kLarge + QList<QByteArray>{"--all", "--yes"});
    const QJsonArray activities = f.run({"history", "--json"}).json()[u"activities"].toArray();
    QCOMPARE(activities.size(), 2);
    QCOMPARE(activities.at(0)[u"bytes"].toInteger(), 3'000);
    QCOMPARE(activities.at(1)[u"bytes"].toInteger(), 4'000);
    QVERIFY(activities.at(0)[u"date"].toString().endsWith(u'Z'));
    QVERIFY(f.run({"history"}).output.contains("1 large file removed"));
}

void tst_Commands::statsKnowWhatTheyDoNotKnow()
{
    CommandFixture f;
    f.fakes.figures->physical = 0;
    const QJsonObject stats = f.run({"stats", "--json"}).json();
    QVERIFY(stats[u"memoryUsed"].isNull() && stats[u"memoryTotal"].isNull());
    QVERIFY(stats[u"diskTemperature"].isNull());
    QCOMPARE(stats[u"availableDisk"].toInteger(), 5'000);
    QCOMPARE(stats[u"cpuUsage"].toDouble(-1), 0.0);
    QCOMPARE(stats.size(), 5);
}

void tst_Commands::scanAllEndsWithItsMessage()
{
    CommandFixture f;
    f.app("One.app", u"org.one"_s);
    f.oldDownload("old.txt", 1'000);
    const Ended ended = f.run({"scan", "all", "--json"});
    QCOMPARE(ended.status, ExitStatus::done);
    QCOMPARE(ended.json()[u"toast"][u"message"].toString(), u"Scan complete — 1 KB can be freed"_s);
    QVERIFY(ended.json()[u"apps"][u"apps"][0][u"bundleSize"].toInteger() > 0);
    QCOMPARE(ended.json()[u"junk"][u"junkReclaimable"].toInteger(), 1'000);
    QCOMPARE(ended.json()[u"duplicates"][u"duplicateReclaimable"].toInteger(-1), 0);
    QCOMPARE(ended.json()[u"largeFiles"][u"totalSize"].toInteger(-1), 0);
    const Ended plain = f.run({"scan", "all"});
    QVERIFY(plain.output.endsWith("Scan complete — 1 KB can be freed\n"));
}

void tst_Commands::everyProgressTextIsPrintedWhenAsked()
{
    CommandFixture f;
    f.large("a");
    const Ended silent = f.run({"scan", "large-files", "--folder", "files", "--json"});
    QCOMPARE(silent.errors, QByteArray());
    const Ended ended = f.run({"scan", "large-files", "--folder", "files", "--json", "--progress"});
    QVERIFY(ended.errors.startsWith("Scanning for large files…\n"));
    QVERIFY(ended.errors.endsWith('\n'));
    QCOMPARE(ended.output, silent.output);
}

void tst_Commands::locatesArguments_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<QByteArray>("expected"); // below the scratch folder; empty: absent
    QTest::newRow("name") << QByteArray("a") << QByteArray("a");
    QTest::newRow("dots") << QByteArray("./a/./b/") << QByteArray("a/b");
    QTest::newRow("itself") << QByteArray(".") << QByteArray(".");
    QTest::newRow("above") << QByteArray("real/deep/..") << QByteArray("real");
    QTest::newRow("above a link") << QByteArray("link/..") << QByteArray("real");
    QTest::newRow("through a link") << QByteArray("link/x") << QByteArray("link/x");
    QTest::newRow("above what is missing") << QByteArray("missing/../a") << QByteArray("a");
    QTest::newRow("dots in a name") << QByteArray("..a/b..") << QByteArray("..a/b..");
}

void tst_Commands::locatesArguments()
{
    QFETCH(const QByteArray, argument);
    QFETCH(const QByteArray, expected);
    const ScratchTree tree;
    tree.folder("real/deep");
    tree.link("link", "real/deep");
    QCOMPARE(Matching::locate(argument, tree.root()), std::optional{tree.at(expected)});
    QCOMPARE(Matching::locate(argument, std::nullopt), std::optional<FileURL>{});
    QCOMPARE(Matching::locate(tree.root().path() + '/' + argument, std::nullopt), std::optional{tree.at(expected)});
}

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_Commands.moc"
