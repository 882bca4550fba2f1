// SPDX-License-Identifier: MIT
#include "CommandLine/CommandTable.h"
#include "CommandLine/Help.h"
#include "CommandLine/Parser.h"

#include <QtTest>

#include <limits>

using namespace CommandLine;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Invocation)

namespace {

/// Arguments as a shell would part them; `''` stands for an empty one.
QList<QByteArray> words(const char *line)
{
    QList<QByteArray> parts;
    if (*line == '\0')
        return parts;
    for (const QByteArray &part : QByteArray(line).split(' '))
        parts.append(part == "''" ? QByteArray() : QByteArray(part).replace('_', ' '));
    return parts;
}

} // namespace

class tst_Parser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void understands_data();
    void understands();
    void refuses_data();
    void refuses();
    void keepsTheBytesOfArguments();
    void namesArgumentsWithoutControlCharacters();
    void readsSizes_data();
    void readsSizes();
    void helpWinsOverWhatIsMissing();
    void everyCommandHasHelpThatNamesItsOptions();
    void helpFitsTheScreen();
};

void tst_Parser::understands_data()
{
    QTest::addColumn<QList<QByteArray>>("arguments");
    QTest::addColumn<Invocation>("expected");
    const auto row = [](const char *line, const Invocation &expected) {
        QTest::newRow(line) << words(line) << expected;
    };
    const auto with = [](Command command, const auto &change) {
        Invocation made;
        made.command = command;
        change(made);
        return made;
    };
    using enum Command;
    const auto plain = [&](Command command) { return with(command, [](Invocation &) {}); };
    row("scan junk", plain(scanJunk));
    row("scan large-files", with(scanLargeFiles, [](auto &i) { i.list = FolderList::largeFiles; }));
    row("scan large-files --folder a --folder=b --min-size 2k", with(scanLargeFiles, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.folders = {"a", "b"};
            i.minSize = 2048;
        }));
    row("scan large-files --min-size=1 --min-size=3", with(scanLargeFiles, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.minSize = 3;
        }));
    row("scan duplicates --folder -x", with(scanDuplicates, [](auto &i) { i.folders = {"-x"}; }));
    row("scan apps", plain(scanApps));
    row("scan startup", plain(scanStartup));
    row("scan all --json --progress", with(scanAll, [](auto &i) { i.json = i.progress = true; }));
    row("--json scan all", with(scanAll, [](auto &i) { i.json = true; }));
    row("scan --json all", with(scanAll, [](auto &i) { i.json = true; }));
    row("clean junk --all", with(cleanJunk, [](auto &i) { i.all = true; }));
    row("clean junk --category App_Caches --category=Trash --category Trash --yes --dry-run",
        with(cleanJunk, [](auto &i) {
            i.categories = {"App Caches", "Trash", "Trash"};
            i.yes = i.dryRun = true;
        }));
    row("remove large-files a b", with(removeLargeFiles, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.operands = {"a", "b"};
        }));
    row("remove large-files --all --min-size 10M --folder d", with(removeLargeFiles, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.all = true;
            i.minSize = 10 * 1024 * 1024;
            i.folders = {"d"};
        }));
    row("remove large-files --json -- --all --yes", with(removeLargeFiles, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.json = true;
            i.operands = {"--all", "--yes"};
        }));
    row("remove duplicates --keep-first", with(removeDuplicates, [](auto &i) { i.keepFirst = true; }));
    row("remove duplicates - --json", with(removeDuplicates, [](auto &i) {
            i.operands = {"-"};
            i.json = true;
        }));
    row("uninstall scan junk", with(uninstall, [](auto &i) { i.operands = {"scan", "junk"}; }));
    row("startup enable f", with(startupEnable, [](auto &i) { i.operands = {"f"}; }));
    row("startup disable f", with(startupDisable, [](auto &i) { i.operands = {"f"}; }));
    row("startup remove f --dry-run", with(startupRemove, [](auto &i) {
            i.operands = {"f"};
            i.dryRun = true;
        }));
    row("stats", plain(stats));
    row("history", plain(history));
    row("folders duplicates", plain(listFolders));
    row("folders large-files", with(listFolders, [](auto &i) { i.list = FolderList::largeFiles; }));
    row("folders duplicates add d", with(addFolder, [](auto &i) { i.operands = {"d"}; }));
    row("folders duplicates remove d", with(removeFolder, [](auto &i) { i.operands = {"d"}; }));
    row("folders large-files add d", with(addFolder, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.operands = {"d"};
        }));
    row("folders large-files remove d", with(removeFolder, [](auto &i) {
            i.list = FolderList::largeFiles;
            i.operands = {"d"};
        }));
    row("folders duplicates add -- -d", with(addFolder, [](auto &i) { i.operands = {"-d"}; }));
    row("update", plain(update));
}

void tst_Parser::understands()
{
    QFETCH(const QList<QByteArray>, arguments);
    QFETCH(const Invocation, expected);
    const auto request = parse(arguments);
    QVERIFY2(request, request ? "" : qPrintable(request.error().message));
    QVERIFY(std::holds_alternative<Invocation>(*request));
    QVERIFY(std::get<Invocation>(*request) == expected);
}

void tst_Parser::refuses_data()
{
    QTest::addColumn<QList<QByteArray>>("arguments");
    QTest::addColumn<QString>("says"); // a piece of the message
    const auto row = [](const char *line, const QString &says) { QTest::newRow(line) << words(line) << says; };
    row("", u"no command"_s);
    row("''", u"unknown command \"\""_s);
    row("bogus", u"unknown command \"bogus\""_s);
    row("bogus --help", u"unknown command"_s);
    row("Scan junk", u"unknown command"_s);
    row("scan_junk", u"unknown command"_s);
    row("scan", u"junk, large-files, duplicates, apps, startup, all"_s);
    row("scan bogus", u"knows no \"bogus\""_s);
    row("scan junk extra", u"unexpected argument \"extra\""_s);
    row("scan junk ''", u"empty"_s);
    row("scan junk --", {});
    row("scan junk -- --json", u"unexpected argument \"--json\""_s);
    row("scan junk --bogus", u"unknown option \"--bogus\""_s);
    row("scan junk --js", u"unknown option"_s);
    row("scan junk -j", u"unknown option \"-j\""_s);
    row("scan junk --json=1", u"--json takes no value"_s);
    row("scan junk --yes", u"takes no --yes"_s);
    row("scan junk --dry-run", u"takes no --dry-run"_s);
    row("scan junk --folder a", u"takes no --folder"_s);
    row("scan junk --all", u"takes no --all"_s);
    row("scan duplicates --min-size 5", u"takes no --min-size"_s);
    row("scan all --folder a", u"takes no --folder"_s);
    row("scan large-files --folder", u"--folder needs a value"_s);
    row("scan large-files --folder=", u"--folder needs a folder"_s);
    row("scan large-files --min-size", u"--min-size needs a value"_s);
    row("scan large-files --min-size 1.5M", u"no size: \"1.5M\""_s);
    row("scan large-files --min-size --json", u"no size: \"--json\""_s);
    row("clean", u"needs one of junk"_s);
    row("clean junk", u"which categories"_s);
    row("clean junk --all --category Trash", u"not both"_s);
    row("clean junk --category trash", u"unknown category \"trash\""_s);
    row("clean junk --category Nothing", u"unknown category \"Nothing\""_s);
    row("clean junk --category", u"--category needs a value"_s);
    row("clean junk --all Trash", u"unexpected argument \"Trash\""_s);
    row("remove", u"large-files, duplicates"_s);
    row("remove large-files", u"which files"_s);
    row("remove large-files --all f", u"not both"_s);
    row("remove large-files --keep-first", u"takes no --keep-first"_s);
    row("remove duplicates", u"which files"_s);
    row("remove duplicates --keep-first f", u"not both"_s);
    row("remove duplicates --all", u"takes no --all"_s);
    row("remove duplicates ''", u"empty"_s);
    row("uninstall", u"needs APP"_s);
    row("uninstall --all", u"takes no --all"_s);
    row("startup", u"enable, disable, remove"_s);
    row("startup enable", u"needs FILE"_s);
    row("startup enable a b", u"unexpected argument \"b\""_s);
    row("startup enable a --yes", u"takes no --yes"_s);
    row("startup disable a --dry-run", u"takes no --dry-run"_s);
    row("startup remove", u"needs FILE"_s);
    row("stats now", u"unexpected argument"_s);
    row("history --yes", u"takes no --yes"_s);
    row("folders", u"duplicates, large-files"_s);
    row("folders junk", u"knows no \"junk\""_s);
    row("folders duplicates clear", u"unexpected argument \"clear\""_s);
    row("folders duplicates add", u"needs DIR"_s);
    row("folders duplicates add a b", u"unexpected argument \"b\""_s);
    row("folders large-files remove", u"needs DIR"_s);
    row("update --silent", u"unknown option"_s);
}

void tst_Parser::refuses()
{
    QFETCH(const QList<QByteArray>, arguments);
    QFETCH(const QString, says);
    const auto request = parse(arguments);
    if (says.isEmpty()) {
        QVERIFY(request); // the neighbour of a refusal that is none
        return;
    }
    QVERIFY(!request);
    QVERIFY2(request.error().message.contains(says), qPrintable(request.error().message));
    QVERIFY(!request.error().message.contains(u'\n'));
}

void tst_Parser::keepsTheBytesOfArguments()
{
    const QByteArray odd("a\xff\xfe b\n", 6);
    const auto request = parse({"scan", "duplicates", "--folder", odd});
    QVERIFY(request);
    QCOMPARE(std::get<Invocation>(*request).folders, QList<QByteArray>{odd});
    const auto equals = parse({"scan", "duplicates", "--folder=" + odd});
    QCOMPARE(std::get<Invocation>(*equals).folders, QList<QByteArray>{odd});
    const auto operand = parse({"remove", "duplicates", odd});
    QCOMPARE(std::get<Invocation>(*operand).operands, QList<QByteArray>{odd});
}

void tst_Parser::namesArgumentsWithoutControlCharacters()
{
    const auto request = parse({"scan", "\x1b[31m\nred\xff"});
    QVERIFY(!request);
    QVERIFY2(request.error().message.contains(uR"("\x1b[31m\x0ared\xff")"_s), qPrintable(request.error().message));
}

void tst_Parser::readsSizes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("size"); // -1: refused
    const auto row = [](const char *text, qint64 size) { QTest::newRow(text) << QByteArray(text) << size; };
    row("0", 0);
    row("1", 1);
    row("007", 7);
    row("100", 100);
    row("1k", 1024);
    row("1K", 1024);
    row("100M", 104'857'600);
    row("100m", 104'857'600);
    row("1g", 1'073'741'824);
    row("2G", 2'147'483'648);
    row("1T", 1'099'511'627'776);
    row("8388607T", 8'388'607LL * 1'099'511'627'776);
    row("9223372036854775807", std::numeric_limits<qint64>::max());
    row("9223372036854775808", -1);
    row("8388608T", -1);
    row("99999999999999999999K", -1);
    row("", -1);
    row("K", -1);
    row("-1", -1);
    row("+1", -1);
    row("1.5M", -1);
    row("1,5M", -1);
    row(" 1", -1);
    row("1 ", -1);
    row("1 M", -1);
    row("1MB", -1);
    row("1MiB", -1);
    row("1KK", -1);
    row("1P", -1);
    row("0x10", -1);
    row("1e3", -1);
    row("\xd9\xa1", -1); // a digit of another script
}

void tst_Parser::readsSizes()
{
    QFETCH(const QByteArray, text);
    QFETCH(const qint64, size);
    QCOMPARE(parseSize(text).value_or(-1), size);
}

void tst_Parser::helpWinsOverWhatIsMissing()
{
    const auto helpFor = [](const char *line) {
        const auto request = parse(words(line));
        return request && std::holds_alternative<HelpRequest>(*request) ? std::get<HelpRequest>(*request).words
                                                                        : QByteArray("none");
    };
    QCOMPARE(helpFor("--help"), QByteArray());
    QCOMPARE(helpFor("-h"), QByteArray());
    QCOMPARE(helpFor("scan --help"), QByteArray("scan"));
    QCOMPARE(helpFor("remove large-files --help"), QByteArray("remove large-files"));
    QCOMPARE(helpFor("clean junk --yes --help"), QByteArray("clean junk"));
    QCOMPARE(helpFor("uninstall --help --version"), QByteArray("uninstall"));
    // Behind `--` it is the name of a file.
    QCOMPARE(helpFor("remove duplicates -- --help"), QByteArray("none"));
    const auto version = parse({"--version"});
    QVERIFY(version && std::holds_alternative<VersionRequest>(*version));
}

void tst_Parser::everyCommandHasHelpThatNamesItsOptions()
{
    const QByteArray general = helpText({});
    for (const CommandSpec &command : allCommands()) {
        QVERIFY2(general.contains(command.words), command.words.data());
        const QByteArray help = helpText(command.words);
        QVERIFY(help.startsWith("Usage: brisko " + command.words.toByteArray()));
        for (const OptionSpec &option : allOptions())
            QCOMPARE(help.contains("\n  " + option.name.toByteArray()), holds(optionsOf(command), option.option));
    }
    for (const QByteArrayView name : junkCategoryNames())
        QVERIFY(helpText("clean junk").contains(name));
    QVERIFY(helpText("scan").contains("scan duplicates"));
    QVERIFY(!helpText("scan").contains("uninstall"));
}

void tst_Parser::helpFitsTheScreen()
{
    QList<QByteArray> texts{helpText({}), helpText("scan"), helpText("folders")};
    for (const CommandSpec &command : allCommands())
        texts.append(helpText(command.words));
    for (const QByteArray &text : texts) {
        for (const QByteArray &line : text.split('\n'))
            QVERIFY2(line.size() <= 80, line.constData());
    }
}

QTEST_GUILESS_MAIN(tst_Parser)
#include "tst_Parser.moc"
