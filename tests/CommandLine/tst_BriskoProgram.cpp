// SPDX-License-Identifier: MIT
#include "CommandLine/ProgramRunner.h"

#include <QDir>
#include <QJsonArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <map>

using namespace Qt::StringLiterals;

namespace {

using Input = ProgramRunner::Input;
using Output = ProgramRunner::Output;
using Arguments = QList<QByteArray>;

const Arguments kLarge{"remove", "large-files", "--folder", "files", "--min-size", "1K"};

QList<QByteArray> urlsOf(const QJsonValue &list)
{
    QList<QByteArray> urls;
    for (const auto item : list.toArray())
        urls.append(item[u"url"].toString().toLatin1());
    return urls;
}

/// Everything below a folder with its kind, size and date, by the bytes of its path.
std::map<QByteArray, QByteArray> contentsOf(const FileURL &folder)
{
    std::map<QByteArray, QByteArray> contents;
    const auto walk = [&contents](const auto &self, const FileURL &at) -> void {
        struct stat status {
        };
        if (::lstat(at.path().constData(), &status) != 0)
            return;
        const bool isFolder = S_ISDIR(status.st_mode);
        contents[at.path()] = QByteArray::number(status.st_mode) + ' ' +
                              (isFolder ? QByteArray() : QByteArray::number(qint64{status.st_size})) + ' ' +
                              (isFolder ? QByteArray() : QByteArray::number(qint64{status.st_mtim.tv_sec}));
        if (!isFolder)
            return;
        const QDir list(QFile::decodeName(at.path()));
        for (const QString &name :
             list.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
            self(self, at.child(QFile::encodeName(name)));
    };
    walk(walk, folder);
    return contents;
}

/// The content of a file of any name; "missing" when there is none.
QByteArray bytesOf(const FileURL &file)
{
    const Descriptor opened(::open(file.path().constData(), O_RDONLY | O_CLOEXEC));
    if (!opened.isOpen())
        return "missing";
    QByteArray bytes(10'000, Qt::Uninitialized);
    bytes.resize(static_cast<qsizetype>(
        std::max<ssize_t>(::read(opened.get(), bytes.data(), static_cast<size_t>(bytes.size())), 0)));
    return bytes;
}

FileURL trashed(const ProgramRunner &runner, QByteArrayView name)
{
    return runner.tree.at("home/.local/share/Trash/files").child(name);
}

/// Leaves only one folder in both saved lists, so that nothing outside of the scratch folder is looked through.
void saveOnly(ProgramRunner &runner, const QByteArray &folder)
{
    for (const QByteArray &list : {QByteArray("duplicates"), QByteArray("large-files")}) {
        const QJsonArray before = runner.run({"folders", list, "add", folder, "--json"}).json()[u"folders"].toArray();
        for (qsizetype i = 0; i + 1 < before.size(); ++i)
            runner.run({"folders", list, "remove", before.at(i)[u"path"].toString().toUtf8()});
        const QJsonArray after = runner.run({"folders", list, "--json"}).json()[u"folders"].toArray();
        QCOMPARE(after.size(), 1);
        QCOMPARE(after.first()[u"path"].toString().toUtf8(), runner.tree.at(folder).path());
    }
}

/// An HTTP server that gives every client the same answer.
class FeedServer : public QTcpServer
{
public:
    explicit FeedServer(const QByteArray &status, const QByteArray &body)
    {
        connect(this, &QTcpServer::newConnection, this, [this, status, body] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [socket, status, body] {
                if (!socket->readAll().contains("\r\n\r\n"))
                    return;
                socket->write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
                              "\r\nConnection: close\r\n\r\n" + body);
                socket->disconnectFromHost();
            });
        });
        if (!listen(QHostAddress::LocalHost))
            qFatal("no server could be started");
    }
    [[nodiscard]] QByteArray address() const
    {
        return "http://127.0.0.1:" + QByteArray::number(serverPort()) + "/appcast.json";
    }
};

QByteArray feed(const QByteArray &version)
{
    return R"({"latestVersion":")" + version +
           R"(","latestBuildNumber":7,"releaseDate":"2026-01-02T03:04:05Z","downloadURL":"https://x.invalid/b.dmg",)"
           R"("fileSizeBytes":123,"releaseNotes":{"en":"News"},"criticalUpdate":false})";
}

} // namespace

class tst_BriskoProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutACommandItSaysWhatToDo();
    void withoutTheWindowsModuleItSaysSo();
    void helpAndVersion();
    void wrongCommandLinesExitWithTwo_data();
    void wrongCommandLinesExitWithTwo();
    void scansJunk();
    void scansLargeFilesOfAnyName();
    void scansDuplicates();
    void scansAppsReadOnly();
    void scansAllOfItsLists();
    void cleansJunkIntoThePrivateTrash();
    void removesIntoThePrivateTrash();
    void everythingBehindTwoDashesIsAFile();
    void aDryRunChangesNothing();
    void withoutATerminalNothingIsRemoved();
    void asksOnATerminal_data();
    void asksOnATerminal();
    void controlCDuringTheQuestionDeclines();
    void endOfInputDuringTheQuestionDeclines();
    void anInterruptedScanStopsCleanly_data();
    void anInterruptedScanStopsCleanly();
    void anInterruptedRemovalIsRecorded();
    void aSignalThatWasIgnoredStaysIgnored();
    void switchesAndRemovesStartupItems();
    void keepsFolderLists();
    void showsStats();
    void checksForUpdates();
    void refusesAnAppcastOfAnotherMachine();
    void anInterruptedUpdateCheckEndsAtOnce();
    void progressIsOneLineOnATerminal();
    void progressIsALineEachWhenAsked();
    void aReaderThatWentAwayIsNoError();
    void aFullDiskIsAnError();
    void aClosedOutputIsAnErrorAndHitsNoFile();
    void aDamagedSettingsFileIsKept();
    void withoutAUsableHome_data();
    void withoutAUsableHome();
    void standardErrorIsEmptyInAnyLocale();
    void errorsOfTheSystemAreInItsLanguage();
    void longListsArePrintedQuickly();
};

void tst_BriskoProgram::withoutACommandItSaysWhatToDo()
{
    ProgramRunner runner;
    const ProgramEnd ended = runner.run({});
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QVERIFY(ended.errors.contains("brisko scan all") && ended.errors.contains("brisko --help"));
    QCOMPARE(ended.errors.count('\n'), 1);
    QVERIFY(!ScratchTree::exists(runner.tree.at("home/.config")));
}

void tst_BriskoProgram::withoutTheWindowsModuleItSaysSo()
{
    const ScratchTree tree;
    const QString alone = tree.folder("bin").child("brisko").text();
    QVERIFY(QFile::copy(QStringLiteral(BRISKO_PROGRAM), alone));
    QProcess program;
    program.start(alone, QStringList());
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 1);
    const QByteArray errors = program.readAllStandardError();
    QVERIFY2(errors.startsWith("brisko: the window cannot be loaded: brisko-window"), errors);
    QCOMPARE(errors.count('\n'), 1);
    program.start(alone, {u"--version"_s});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0); // commands need no window
}

void tst_BriskoProgram::helpAndVersion()
{
    ProgramRunner runner;
    const ProgramEnd version = runner.run({"--version"});
    QCOMPARE(version.status, 0);
    QCOMPARE(version.output, QByteArray("brisko " BRISKO_VERSION "\n"));
    for (const Arguments &arguments : {Arguments{"--help"}, Arguments{"scan", "--help"},
                                       Arguments{"remove", "duplicates", "--help"}, Arguments{"uninstall", "--help"}}) {
        const ProgramEnd help = runner.run(arguments);
        QCOMPARE(help.status, 0);
        QVERIFY(help.output.startsWith("Usage: brisko "));
        QCOMPARE(help.errors, QByteArray());
    }
    // Looking something up makes no files.
    QVERIFY(!ScratchTree::exists(runner.tree.at("home/.config")));
}

void tst_BriskoProgram::wrongCommandLinesExitWithTwo_data()
{
    QTest::addColumn<Arguments>("arguments");
    const auto row = [](const Arguments &arguments) { QTest::newRow(arguments.join(' ').constData()) << arguments; };
    row({"bogus"});
    row({"scan"});
    row({"scan", "junk", "--bogus"});
    row({"scan", "junk", "--json", "--yes"});
    row({"clean", "junk", "--category", "Nonsense", "--json"});
    row({"scan", "large-files", "--min-size", "12Q", "--json"});
    row({"remove", "large-files", "--folder", "files", "--json", "files/nothing"});
    row({"remove", "duplicates", "--folder", "files", "--json", "--yes", "files/nothing"});
    row({"remove", "duplicates", "--folder", "files", "--json", "--yes", "files/a", "files/b"});
    row({"uninstall", "--json", "--dry-run", "no such application"});
    row({"startup", "enable", "--json", "nothing.plist"});
    row({"folders", "duplicates", "add", "files/a", "--json"});
    row({"folders", "large-files", "add", "nothing", "--json"});
}

void tst_BriskoProgram::wrongCommandLinesExitWithTwo()
{
    QFETCH(const Arguments, arguments);
    ProgramRunner runner;
    runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.tree.file("files/b", QByteArray(5'000, 'x'));
    const auto before = contentsOf(runner.tree.at("files"));
    const ProgramEnd ended = runner.run(arguments);
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QVERIFY2(ended.errors.startsWith("brisko: ") && ended.errors.count('\n') == 1, ended.errors.constData());
    QCOMPARE(contentsOf(runner.tree.at("files")), before);
}

void tst_BriskoProgram::scansJunk()
{
    ProgramRunner runner;
    runner.tree.file("home/Library/Caches/c", "12345");
    const ProgramEnd ended = runner.run({"scan", "junk", "--json"});
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.output.count('\n'), 1);
    const QJsonObject category = ended.json()[u"categories"][0].toObject();
    QCOMPARE(category.keys(),
             (QStringList{u"deletesDirectly"_s, u"files"_s, u"name"_s, u"paths"_s, u"symbol"_s, u"totalSize"_s}));
    QCOMPARE(category[u"name"].toString(), u"App Caches"_s);
    QCOMPARE(urlsOf(category[u"files"]), QList<QByteArray>{runner.tree.at("home/Library/Caches/c").encoded()});
    QCOMPARE(ended.json()[u"junkReclaimable"].toInteger(), 5);
    const ProgramEnd plain = runner.run({"scan", "junk"});
    QCOMPARE(plain.status, 0);
    QVERIFY(plain.output.contains("App Caches") && plain.output.contains("1 category · 5 bytes reclaimable"));
}

void tst_BriskoProgram::scansLargeFilesOfAnyName()
{
    ProgramRunner runner;
    const QByteArray odd = "o\xff\x1b[31m\n\"\\d";
    const FileURL file = runner.tree.sparseFile("folder \xfe/" + odd, 3'000'000'000);
    runner.tree.sparseFile("folder \xfe/small", 100);
    const ProgramEnd ended = runner.run({"scan", "large-files", "--folder", "folder \xfe", "--json"});
    QCOMPARE(ended.status, 0);
    QCOMPARE(urlsOf(ended.json()[u"files"]), QList<QByteArray>{file.encoded()});
    QCOMPARE(ended.json()[u"files"][0][u"size"].toInteger(), 3'000'000'000);
    QCOMPARE(ended.json()[u"totalSize"].toInteger(), 3'000'000'000);
    const ProgramEnd plain = runner.run({"scan", "large-files", "--folder", "folder \xfe", "--min-size=100"});
    QVERIFY(plain.output.contains("\\x1b[31m\\x0a"));
    QVERIFY(!plain.output.contains('\x1b'));
    QVERIFY(plain.output.contains("2 files · 3 GB total"));
}

void tst_BriskoProgram::scansDuplicates()
{
    ProgramRunner runner;
    const FileURL a = runner.tree.file("files/a", QByteArray(5'000, 'x'));
    const FileURL b = runner.tree.file("files/b", QByteArray(5'000, 'x'));
    runner.tree.file("files/c", QByteArray(5'000, 'y'));
    const ProgramEnd ended = runner.run({"scan", "duplicates", "--folder", "files", "--json"});
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.json()[u"groups"].toArray().size(), 1);
    const QJsonObject group = ended.json()[u"groups"][0].toObject();
    QCOMPARE(urlsOf(group[u"files"]), (QList<QByteArray>{a.encoded(), b.encoded()}));
    QCOMPARE(group[u"id"].toString().size(), 64);
    QCOMPARE(group[u"reclaimable"].toInteger(), 5'000);
    QCOMPARE(ended.json()[u"duplicateReclaimable"].toInteger(), 5'000);
}

void tst_BriskoProgram::scansAppsReadOnly()
{
    ProgramRunner runner;
    const ProgramEnd ended = runner.run({"scan", "apps", "--json"});
    QCOMPARE(ended.status, 0);
    QVERIFY(ended.json()[u"apps"].isArray());
    QVERIFY(ended.json()[u"unusedAppsSize"].isDouble());
    QCOMPARE(ended.json().size(), 2);
}

void tst_BriskoProgram::scansAllOfItsLists()
{
    ProgramRunner runner;
    runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.tree.file("files/b", QByteArray(5'000, 'x'));
    runner.tree.sparseFile("files/big", 200'000'000);
    runner.tree.file("home/Library/Caches/c", QByteArray(1'000, 'c'));
    saveOnly(runner, "files");
    const ProgramEnd ended = runner.run({"scan", "all", "--json"});
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.json().keys(), (QStringList{u"apps"_s, u"duplicates"_s, u"junk"_s, u"largeFiles"_s, u"toast"_s}));
    QCOMPARE(ended.json()[u"duplicates"][u"duplicateReclaimable"].toInteger(), 5'000);
    QCOMPARE(ended.json()[u"junk"][u"junkReclaimable"].toInteger(), 1'000);
    QCOMPARE(ended.json()[u"largeFiles"][u"totalSize"].toInteger(), 200'000'000);
    QVERIFY(ended.json()[u"toast"][u"message"].toString().startsWith(u"Scan complete — "));
}

void tst_BriskoProgram::cleansJunkIntoThePrivateTrash()
{
    ProgramRunner runner;
    const FileURL cache = runner.tree.file("home/Library/Caches/c", "12345");
    const ProgramEnd ended = runner.run({"clean", "junk", "--category", "App Caches", "--yes", "--json"});
    QCOMPARE(ended.status, 0);
    QVERIFY(!ScratchTree::exists(cache));
    QCOMPARE(bytesOf(trashed(runner, "c")), QByteArray("12345"));
    QCOMPARE(ended.json()[u"activity"][u"title"].toString(), u"App Caches cleaned"_s);
    // The Trash itself goes for good.
    const ProgramEnd emptied = runner.run({"clean", "junk", "--category", "Trash", "--yes", "--json"});
    QCOMPARE(emptied.status, 0);
    QCOMPARE(urlsOf(emptied.json()[u"removed"]), QList<QByteArray>{trashed(runner, "c").encoded()});
    QVERIFY(!ScratchTree::exists(trashed(runner, "c")));
    const QJsonArray history = runner.run({"history", "--json"}).json()[u"activities"].toArray();
    QCOMPARE(history.size(), 2);
    QCOMPARE(history.at(0)[u"title"].toString(), u"Trash cleaned"_s);
    QCOMPARE(history.at(1)[u"id"].toString(), ended.json()[u"activity"][u"id"].toString());
    QCOMPARE(history.at(1)[u"date"].toString(), ended.json()[u"activity"][u"date"].toString());
}

void tst_BriskoProgram::removesIntoThePrivateTrash()
{
    ProgramRunner runner;
    const QByteArray odd = "o\xff\n";
    const FileURL file = runner.tree.file("files/" + odd, QByteArray(5'000, 'x'));
    const FileURL other = runner.tree.file("files/other", QByteArray(5'000, 'y'));
    const ProgramEnd ended = runner.run(kLarge + Arguments{"--yes", "--json", "files/" + odd});
    QCOMPARE(ended.status, 0);
    QCOMPARE(urlsOf(ended.json()[u"removed"]), QList<QByteArray>{file.encoded()});
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 5'000);
    QVERIFY(!ScratchTree::exists(file) && ScratchTree::exists(other));
    QCOMPARE(bytesOf(trashed(runner, odd)), QByteArray(5'000, 'x'));

    runner.tree.file("files/copy", QByteArray(5'000, 'y'));
    const ProgramEnd copies = runner.run({"remove", "duplicates", "--folder", "files", "--keep-first", "--yes"});
    QCOMPARE(copies.status, 0);
    QCOMPARE(copies.output, QByteArray("Removed 1 duplicates — 5 KB freed\n"));
    QVERIFY(ScratchTree::exists(trashed(runner, "other")));
}

void tst_BriskoProgram::everythingBehindTwoDashesIsAFile()
{
    ProgramRunner runner;
    const FileURL file = runner.tree.file("--yes", QByteArray(5'000, 'x'));
    const Arguments base{"remove", "large-files", "--folder", ".", "--min-size", "1K", "--json"};
    QCOMPARE(runner.run(base + Arguments{"--", "--yes"}).status, 2); // named, but nobody to ask
    QVERIFY(ScratchTree::exists(file));
    QCOMPARE(runner.run(base + Arguments{"--yes", "--", "--yes"}).status, 0);
    QVERIFY(!ScratchTree::exists(file));
}

void tst_BriskoProgram::aDryRunChangesNothing()
{
    ProgramRunner runner;
    runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.tree.file("files/b", QByteArray(5'000, 'x'));
    runner.tree.file("home/Library/Caches/c", "12345");
    runner.tree.file("home/.local/share/Trash/files/t", "t");
    const FileURL item = runner.tree.file("home/Library/LaunchAgents/a.plist", "<plist><dict/></plist>");
    // The first start completes the settings, the first scans add their grants and the log.
    runner.run({"scan", "junk"});
    runner.run({"scan", "duplicates", "--folder", "files"});
    const QList<Arguments> commands{
        {"clean", "junk", "--all"},
        kLarge + Arguments{"--all"},
        {"remove", "duplicates", "--folder", "files", "--keep-first"},
        {"startup", "remove", item.path()},
    };
    for (const Arguments &command : commands) {
        for (const QByteArray &also : {QByteArray("--json"), QByteArray("--yes")}) {
            auto before = contentsOf(runner.tree.at("home"));
            before.merge(contentsOf(runner.tree.at("files")));
            const ProgramEnd ended = runner.run(command + Arguments{"--dry-run", also});
            QVERIFY2(ended.status == 0, ended.errors.constData());
            QVERIFY(!ended.output.isEmpty());
            auto after = contentsOf(runner.tree.at("home"));
            after.merge(contentsOf(runner.tree.at("files")));
            const QByteArray log = runner.tree.at("home/tmp/brisko_scan.log").path();
            before.erase(log);
            after.erase(log);
            QCOMPARE(after, before);
        }
    }
    const ProgramEnd ended = runner.run({"clean", "junk", "--all", "--dry-run", "--json"});
    QCOMPARE(urlsOf(ended.json()[u"wouldRemove"]).size(), 2);
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 6);
}

void tst_BriskoProgram::withoutATerminalNothingIsRemoved()
{
    ProgramRunner runner;
    const FileURL file = runner.tree.file("files/a", QByteArray(5'000, 'x'));
    const ProgramEnd ended = runner.run(kLarge + Arguments{"--all", "--json"});
    QCOMPARE(ended.status, 2);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errors.count('\n'), 1);
    QVERIFY(ScratchTree::exists(file));
    // Nothing to remove comes first.
    const ProgramEnd nothing =
        runner.run({"remove", "large-files", "--folder", "files", "--min-size", "1T", "--all", "--json"});
    QCOMPARE(nothing.status, 0);
    QVERIFY(nothing.json()[u"removed"].toArray().isEmpty());
}

void tst_BriskoProgram::asksOnATerminal_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("status");
    QTest::newRow("y") << QByteArray("y\n") << 0;
    QTest::newRow("YES") << QByteArray("YES\n") << 0;
    QTest::newRow("n") << QByteArray("n\n") << 1;
    QTest::newRow("return alone") << QByteArray("\n") << 1;
    QTest::newRow("yess") << QByteArray("yess\n") << 1;
}

void tst_BriskoProgram::asksOnATerminal()
{
    QFETCH(const QByteArray, typed);
    QFETCH(const int, status);
    ProgramRunner runner;
    const FileURL file = runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.start(kLarge + Arguments{"--all", "--json"}, Input::terminal);
    QVERIFY(runner.waitFor("[y/N] "));
    QVERIFY(ScratchTree::exists(file));
    runner.type(typed);
    const ProgramEnd ended = runner.end();
    QCOMPARE(ended.status, status);
    QCOMPARE(ScratchTree::exists(file), status != 0);
    QCOMPARE(ended.json()[u"removed"].toArray().size(), status == 0 ? 1 : 0);
    QVERIFY(ended.errors.contains("Remove 1 large file?") && ended.errors.contains("Total Size"));
}

void tst_BriskoProgram::controlCDuringTheQuestionDeclines()
{
    ProgramRunner runner;
    const FileURL file = runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.start(kLarge + Arguments{"--all", "--json"}, Input::terminal);
    QVERIFY(runner.waitFor("[y/N] "));
    runner.type("\x03");
    const ProgramEnd ended = runner.end();
    QCOMPARE(ended.status, 130);
    QVERIFY(ended.json()[u"removed"].isArray() && ended.json()[u"removed"].toArray().isEmpty());
    QVERIFY(ScratchTree::exists(file));
}

void tst_BriskoProgram::endOfInputDuringTheQuestionDeclines()
{
    ProgramRunner runner;
    const FileURL file = runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.start(kLarge + Arguments{"--all"}, Input::terminal);
    QVERIFY(runner.waitFor("[y/N] "));
    runner.type("\x04");
    QCOMPARE(runner.end().status, 1);
    QVERIFY(ScratchTree::exists(file));
}

void tst_BriskoProgram::anInterruptedScanStopsCleanly_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_BriskoProgram::anInterruptedScanStopsCleanly()
{
    QFETCH(const int, signal);
    ProgramRunner runner;
    // Equal to the end, and long: comparing them takes its time, on disk they take none.
    for (const char *name : {"files/a", "files/b", "files/c", "files/d"})
        runner.tree.sparseFile(name, 8LL * 1024 * 1024 * 1024);
    runner.start({"scan", "duplicates", "--folder", "files", "--json", "--progress"});
    QVERIFY(runner.waitFor("\n"));
    QElapsedTimer since;
    since.start();
    runner.signal(signal);
    const ProgramEnd ended = runner.end();
    QCOMPARE(ended.status, 130);
    QVERIFY2(since.elapsed() < 5'000, qPrintable(QString::number(since.elapsed())));
    QCOMPARE(ended.output, QByteArray("{\"groups\":[],\"duplicateReclaimable\":0}\n"));
}

void tst_BriskoProgram::anInterruptedRemovalIsRecorded()
{
    constexpr int count = 6'000;
    ProgramRunner runner;
    for (int i = 0; i < count; ++i)
        runner.tree.file("files/" + QByteArray::number(i), "0123456789");
    runner.start({"remove", "large-files", "--folder", "files", "--min-size", "10", "--all", "--yes", "--json"});
    const QByteArray trash = runner.tree.at("home/.local/share/Trash/files").path();
    QVERIFY(runner.waitUntil([&trash] { return !QDir(QFile::decodeName(trash)).isEmpty(); }));
    runner.signal(SIGINT);
    runner.signal(SIGINT); // a second wish is like the first
    const ProgramEnd ended = runner.end();
    QCOMPARE(ended.status, 130);
    const QList<QByteArray> removed = urlsOf(ended.json()[u"removed"]);
    QVERIFY2(!removed.isEmpty() && removed.size() < count, qPrintable(QString::number(removed.size())));
    for (const QByteArray &url : removed) {
        const FileURL file = FileURL::fromEncoded(url).value();
        QVERIFY(!ScratchTree::exists(file));
        QCOMPARE(bytesOf(trashed(runner, file.name())), QByteArray("0123456789"));
    }
    // Nothing is lost, and nothing is half done.
    const auto entries = [](const FileURL &folder) {
        return QDir(QFile::decodeName(folder.path())).entryList(QDir::Files | QDir::Hidden).size();
    };
    QCOMPARE(entries(runner.tree.at("files")), count - removed.size());
    QCOMPARE(entries(runner.tree.at("home/.local/share/Trash/files")), removed.size());
    QCOMPARE(entries(runner.tree.at("home/.local/share/Trash/info")), removed.size());
    QVERIFY(ended.json()[u"failed"].toArray().isEmpty());
    QCOMPARE(ended.json()[u"bytes"].toInteger(), 10 * removed.size());
    const QJsonArray history = runner.run({"history", "--json"}).json()[u"activities"].toArray();
    QCOMPARE(history.size(), 1);
    QCOMPARE(history.first()[u"bytes"].toInteger(), 10 * removed.size());
}

void tst_BriskoProgram::aSignalThatWasIgnoredStaysIgnored()
{
    ProgramRunner runner;
    runner.ignoresHangUp = true;
    runner.start({"stats", "--json"});
    QVERIFY(runner.waitUntil([&runner] { return ScratchTree::exists(runner.tree.at("home/.config/Brisko")); }));
    runner.signal(SIGHUP);
    QCOMPARE(runner.end().status, 0);
}

void tst_BriskoProgram::switchesAndRemovesStartupItems()
{
    ProgramRunner runner;
    const QByteArray content =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST "
        "1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n"
        "<dict>\n\t<key>Label</key>\n\t<string>a</string>\n</dict>\n</plist>\n";
    const FileURL item = runner.tree.file("home/Library/LaunchAgents/a.plist", content);
    const QJsonObject listed = runner.run({"scan", "startup", "--json"}).json();
    QVERIFY(urlsOf(listed[u"items"]).contains(item.encoded()));
    // In the asked state already: nothing is written.
    const ProgramEnd same = runner.run({"startup", "enable", "home/Library/LaunchAgents/a.plist", "--json"});
    QCOMPARE(same.status, 0);
    QVERIFY(same.json()[u"toast"].isNull());
    QCOMPARE(ScratchTree::content(item), content);
    const ProgramEnd off = runner.run({"startup", "disable", item.path(), "--json"});
    QCOMPARE(off.status, 0);
    QCOMPARE(off.json()[u"item"][u"isEnabled"].toBool(true), false);
    QVERIFY(ScratchTree::content(item).contains("<key>Disabled</key>"));
    QVERIFY(ScratchTree::content(item).contains("<key>Label</key>"));
    const ProgramEnd removed = runner.run({"startup", "remove", item.path(), "--yes", "--json"});
    QCOMPARE(removed.status, 0);
    QCOMPARE(urlsOf(removed.json()[u"removed"]), QList<QByteArray>{item.encoded()});
    QVERIFY(!ScratchTree::exists(item) && ScratchTree::exists(trashed(runner, "a.plist")));
}

void tst_BriskoProgram::keepsFolderLists()
{
    ProgramRunner runner;
    const QByteArray odd = "odd \xff\n,;\"";
    runner.tree.folder(odd);
    for (const QByteArray &list : {QByteArray("duplicates"), QByteArray("large-files")}) {
        const QJsonArray before = runner.run({"folders", list, "--json"}).json()[u"folders"].toArray();
        const ProgramEnd added = runner.run({"folders", list, "add", odd, "--json"});
        QCOMPARE(added.status, 0);
        const QList<QByteArray> urls = urlsOf(runner.run({"folders", list, "--json"}).json()[u"folders"]);
        QCOMPARE(urls.size(), before.size() + 1);
        QCOMPARE(urls.last(), runner.tree.at(odd).encoded());
        QCOMPARE(runner.run({"folders", list, "remove", odd}).status, 0);
        QCOMPARE(runner.run({"folders", list, "remove", odd}).status, 0); // not listed any more: no harm
        QCOMPARE(runner.run({"folders", list, "--json"}).json()[u"folders"].toArray(), before);
    }
}

void tst_BriskoProgram::showsStats()
{
    ProgramRunner runner;
    QElapsedTimer since;
    since.start();
    const ProgramEnd ended = runner.run({"stats", "--json"});
    QCOMPARE(ended.status, 0);
    QVERIFY(since.elapsed() >= 1'000);
    const QJsonObject stats = ended.json();
    QCOMPARE(stats.keys(),
             (QStringList{u"availableDisk"_s, u"cpuUsage"_s, u"diskTemperature"_s, u"memoryTotal"_s, u"memoryUsed"_s}));
    QVERIFY(stats[u"cpuUsage"].toDouble(-1) >= 0 && stats[u"cpuUsage"].toDouble() <= 1);
    QVERIFY(stats[u"memoryUsed"].toInteger() > 0);
    QVERIFY(stats[u"memoryTotal"].toInteger() > stats[u"memoryUsed"].toInteger());
    QVERIFY(stats[u"availableDisk"].toInteger() > 0);
}

void tst_BriskoProgram::checksForUpdates()
{
    const FeedServer newer("200 OK", feed("99.1"));
    const FeedServer same("200 OK", feed(BRISKO_VERSION));
    const FeedServer missing("404 Not Found", "{}");
    const FeedServer broken("200 OK", "{");
    const auto check = [](const FeedServer &server) {
        ProgramRunner runner;
        runner.variables.append("BRISKO_APPCAST_URL=" + server.address());
        return runner.run({"update", "--json"});
    };
    const ProgramEnd available = check(newer);
    QCOMPARE(available.status, 0);
    QCOMPARE(available.errors, QByteArray());
    QVERIFY(available.json()[u"toast"].isNull());
    QCOMPARE(
        available.json()[u"updateInfo"].toObject().keys(),
        (QStringList{u"criticalUpdate"_s, u"downloadURL"_s, u"fileSizeBytes"_s, u"latestBuildNumber"_s,
                     u"latestVersion"_s, u"minimumSystemVersion"_s, u"releaseDate"_s, u"releaseNotes"_s, u"sha256"_s}));
    QCOMPARE(available.json()[u"updateInfo"][u"latestVersion"].toString(), u"99.1"_s);
    QCOMPARE(available.json()[u"updateInfo"][u"releaseDate"].toString(), u"2026-01-02T03:04:05Z"_s);
    QVERIFY(available.json()[u"updateInfo"][u"sha256"].isNull());
    const ProgramEnd upToDate = check(same);
    QCOMPARE(upToDate.status, 0);
    QVERIFY(upToDate.json()[u"updateInfo"].isNull());
    QCOMPARE(upToDate.json()[u"toast"][u"message"].toString(), u"You're up to date!"_s);
    for (const FeedServer *server : {&missing, &broken}) {
        const ProgramEnd unreachable = check(*server);
        QCOMPARE(unreachable.status, 1);
        QVERIFY(unreachable.json()[u"updateInfo"].isNull());
        QCOMPARE(unreachable.json()[u"toast"][u"symbol"].toString(), u"wifi.exclamationmark"_s);
    }
}

void tst_BriskoProgram::refusesAnAppcastOfAnotherMachine()
{
    for (const char *address : {"http://192.0.2.1/appcast.json", "ftp://127.0.0.1/a", "nonsense"}) {
        ProgramRunner runner;
        runner.variables.append(QByteArray("BRISKO_APPCAST_URL=") + address);
        const ProgramEnd ended = runner.run({"update", "--json"});
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.json()[u"toast"][u"symbol"].toString(), u"wifi.exclamationmark"_s);
        QVERIFY2(ended.errors.count('\n') == 1 && ended.errors.contains("BRISKO_APPCAST_URL"),
                 ended.errors.constData());
    }
}

void tst_BriskoProgram::anInterruptedUpdateCheckEndsAtOnce()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    ProgramRunner runner;
    runner.variables.append("BRISKO_APPCAST_URL=http://127.0.0.1:" + QByteArray::number(silent.serverPort()) + "/a");
    runner.start({"update", "--json"});
    QVERIFY(runner.waitUntil([&silent] { return silent.hasPendingConnections(); }));
    QElapsedTimer since;
    since.start();
    runner.signal(SIGINT);
    const ProgramEnd ended = runner.end();
    QCOMPARE(ended.status, 130);
    QVERIFY(since.elapsed() < 5'000);
    QCOMPARE(ended.output, QByteArray("{\"updateInfo\":null,\"toast\":null}\n"));
}

void tst_BriskoProgram::progressIsOneLineOnATerminal()
{
    ProgramRunner runner;
    runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.start({"scan", "large-files", "--folder", "files", "--min-size", "1K", "--json"}, Input::terminal);
    const ProgramEnd ended = runner.end();
    QCOMPARE(ended.status, 0);
    QVERIFY2(ended.errors.startsWith("\rScanning for large files…"), ended.errors.constData());
    QVERIFY(ended.errors.endsWith(" \r"));
    QVERIFY(!ended.errors.contains('\n'));
    QCOMPARE(ended.json()[u"files"].toArray().size(), 1);
}

void tst_BriskoProgram::progressIsALineEachWhenAsked()
{
    ProgramRunner runner;
    runner.tree.file("files/a", QByteArray(5'000, 'x'));
    const ProgramEnd ended = runner.run({"scan", "large-files", "--folder", "files", "--progress"});
    QVERIFY(ended.errors.startsWith("Scanning for large files…\n"));
    QVERIFY(ended.errors.endsWith('\n') && !ended.errors.contains('\r'));
    QCOMPARE(runner.run({"scan", "large-files", "--folder", "files"}).errors, QByteArray());
}

void tst_BriskoProgram::aReaderThatWentAwayIsNoError()
{
    ProgramRunner runner;
    for (int i = 0; i < 3'000; ++i)
        runner.tree.file("files/" + QByteArray(60, 'n') + QByteArray::number(i), "x");
    for (const Arguments &also : {Arguments{}, Arguments{"--json"}}) {
        const ProgramEnd ended = runner.run(
            Arguments{"scan", "large-files", "--folder", "files", "--min-size", "1"} + also, Output::brokenPipe);
        QCOMPARE(ended.status, 0);
        QCOMPARE(ended.errors, QByteArray());
    }
    QCOMPARE(runner.run({"--help"}, Output::brokenPipe).status, 0);
}

void tst_BriskoProgram::aFullDiskIsAnError()
{
    ProgramRunner runner;
    for (const Arguments &arguments : {Arguments{"history"}, Arguments{"history", "--json"}, Arguments{"--help"}}) {
        const ProgramEnd ended = runner.run(arguments, Output::full);
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.errors, QByteArray("brisko: standard output: No space left on device\n"));
    }
}

void tst_BriskoProgram::aClosedOutputIsAnErrorAndHitsNoFile()
{
    ProgramRunner runner;
    const ProgramEnd ended = runner.run({"folders", "duplicates", "--json"}, Output::closed);
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errors, QByteArray("brisko: standard output: Bad file descriptor\n"));
    // Whatever was opened meanwhile did not become standard output.
    QVERIFY(!ScratchTree::content(runner.tree.at("home/.config/Brisko/Brisko.conf")).contains("\"folders\""));
}

void tst_BriskoProgram::aDamagedSettingsFileIsKept()
{
    ProgramRunner runner;
    const QByteArray damage("\0\1garbage", 9);
    runner.tree.file("home/.config/Brisko/Brisko.conf", damage);
    const ProgramEnd ended = runner.run({"history", "--json"});
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.output, QByteArray("{\"activities\":[]}\n"));
    QCOMPARE(ended.errors.count('\n'), 1);
    const FileURL kept = runner.tree.at("home/.config/Brisko/Brisko.conf.broken-1");
    QVERIFY2(ended.errors.contains(kept.path()), ended.errors.constData());
    QCOMPARE(ScratchTree::content(kept), damage);
    QCOMPARE(runner.run({"history", "--json"}).errors, QByteArray());
}

void tst_BriskoProgram::withoutAUsableHome_data()
{
    QTest::addColumn<QByteArray>("home");
    QTest::newRow("root") << QByteArray("/");
    QTest::newRow("relative") << QByteArray("home");
    QTest::newRow("missing") << QByteArray("/nonexistent/home");
    QTest::newRow("no folder") << QByteArray("/dev/null");
}

void tst_BriskoProgram::withoutAUsableHome()
{
    QFETCH(const QByteArray, home);
    ProgramRunner runner;
    const FileURL file = runner.tree.file("files/a", QByteArray(5'000, 'x'));
    runner.variables.append("HOME=" + home);
    runner.variables.removeFirst();
    for (const Arguments &arguments : {Arguments{"scan", "junk"}, Arguments{"scan", "large-files", "--folder", "files"},
                                       kLarge + Arguments{"--all", "--yes"}}) {
        const ProgramEnd ended = runner.run(arguments);
        QCOMPARE(ended.status, 1);
        QCOMPARE(ended.errors, QByteArray("No usable home folder\n"));
        QCOMPARE(ended.output, QByteArray());
    }
    QVERIFY(ScratchTree::exists(file));
}

void tst_BriskoProgram::standardErrorIsEmptyInAnyLocale()
{
    for (const char *locale : {"C", "POSIX", "xx_XX.nonsense", "C.UTF-8"}) {
        ProgramRunner runner;
        runner.variables.removeAll("LC_ALL=C.UTF-8");
        runner.variables.append(QByteArray("LC_ALL=") + locale);
        const ProgramEnd ended = runner.run({"history"});
        QCOMPARE(ended.status, 0);
        QCOMPARE(ended.errors, QByteArray());
    }
}

void tst_BriskoProgram::errorsOfTheSystemAreInItsLanguage()
{
    ProgramRunner runner;
    const FileURL locales = runner.tree.folder("locales");
    QProcess maker;
    maker.start(u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s, locales.child("de_DE.UTF-8").text()});
    QVERIFY(maker.waitForFinished());
    QCOMPARE(maker.exitCode(), 0);
    runner.tree.file("files/a", QByteArray(5'000, 'a'));
    runner.tree.file("home/.local/share"); // where a folder should be
    runner.variables.removeAll("LC_ALL=C.UTF-8");
    runner.variables += {"LC_ALL=de_DE.UTF-8", "LOCPATH=" + locales.path()};
    const ProgramEnd ended =
        runner.run({"remove", "large-files", "--folder", "files", "--min-size", "1", "--all", "--yes"});
    QCOMPARE(ended.status, 1);
    QVERIFY2(ended.errors.contains("Verschieben in den Papierkorb nicht möglich: Ist kein Verzeichnis"), ended.errors);
}

void tst_BriskoProgram::longListsArePrintedQuickly()
{
    constexpr int count = 20'000;
    ProgramRunner runner;
    for (int folder = 0; folder < 20; ++folder) {
        runner.tree.folder("files/" + QByteArray::number(folder));
        for (int i = 0; i < count / 20; ++i) {
            const FileURL file = runner.tree.at("files/" + QByteArray::number(folder) + '/' + QByteArray::number(i));
            const Descriptor made(::open(file.path().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
            QVERIFY(made.isOpen());
        }
    }
    QElapsedTimer since;
    since.start();
    const ProgramEnd ended = runner.run({"scan", "large-files", "--folder", "files", "--min-size", "0", "--json"});
    QCOMPARE(ended.status, 0);
    QCOMPARE(ended.json()[u"files"].toArray().size(), count);
    QVERIFY2(since.elapsed() < 60'000, qPrintable(QString::number(since.elapsed())));
}

QTEST_GUILESS_MAIN(tst_BriskoProgram)
#include "tst_BriskoProgram.moc"
