// SPDX-License-Identifier: MIT
#include "CommandLine/FakeTerminal.h"
#include "CommandLine/JsonResults.h"
#include "CommandLine/JsonWriter.h"
#include "CommandLine/PeopleResults.h"
#include "CommandLine/Printer.h"
#include "CommandLine/ProgressLine.h"

#include "Models/CheckedSum.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTimeZone>
#include <QtTest>

#include <limits>

using namespace CommandLine;
using namespace Qt::StringLiterals;

namespace {

FileURL url(QByteArrayView path)
{
    return FileURL::fromPath(path).value();
}

QByteArray jsonOf(const Result &result)
{
    QByteArray text;
    JsonWriter json([&text](QByteArrayView piece) { text += piece; });
    writeJson(json, result);
    json.flush();
    return text;
}

QByteArray written(const std::function<void(JsonWriter &)> &write)
{
    QByteArray text;
    JsonWriter json([&text](QByteArrayView piece) { text += piece; });
    write(json);
    json.flush();
    return text;
}

QDateTime moment(const QString &text)
{
    return QDateTime::fromString(text, Qt::ISODateWithMs);
}

QByteArray peopleOf(const Result &result, FakeTerminal &terminal)
{
    {
        Printer output(&terminal, Stream::output);
        Printer errors(&terminal, Stream::error);
        writeForPeople(output, errors, result);
    }
    return terminal.takeOutput();
}

} // namespace

class tst_Printing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jsonKeepsOrderAndNesting();
    void jsonNumbersKeepAllTheirBits();
    void jsonTextsSurviveAnyContent();
    void jsonDatesHaveAFractionOnlyWhenThereIsOne_data();
    void jsonDatesHaveAFractionOnlyWhenThereIsOne();
    void jsonIsWrittenInPieces();
    void everyResultHasTheKeysThatProgramsRelyOn_data();
    void everyResultHasTheKeysThatProgramsRelyOn();
    void aPathKeepsItsBytesInTheUrl();
    void absentValuesAreNull();
    void escapesWhatWouldSteerATerminal_data();
    void escapesWhatWouldSteerATerminal();
    void wideCharactersTakeTwoColumns();
    void fitsTextsToTheScreen();
    void coloursOnlyWhereWanted();
    void longListsAreComplete();
    void listsLineUp();
    void failuresGoToStandardError();
    void theQuestionShowsTitleMessageAndRows();
    void progressOverwritesItsLine();
    void progressPrintsEveryTextWhenAsked();
    void progressIsSilentWithoutATerminal();
};

void tst_Printing::jsonKeepsOrderAndNesting()
{
    const QByteArray text = written([](JsonWriter &json) {
        json.beginObject();
        json.key("z");
        json.beginArray();
        json.beginObject();
        json.endObject();
        json.beginArray();
        json.endArray();
        json.number(qint64{1});
        json.null();
        json.endArray();
        json.key("a");
        json.beginObject();
        json.key("b");
        json.boolean(true);
        json.textKey(u"\"q\"");
        json.boolean(false);
        json.endObject();
        json.endObject();
    });
    QCOMPARE(text, QByteArray(R"({"z":[{},[],1,null],"a":{"b":true,"\"q\"":false}})"));
}

void tst_Printing::jsonNumbersKeepAllTheirBits()
{
    for (const qint64 number : {std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(),
                                qint64{9'007'199'254'740'993}, qint64{0}, qint64{-1}})
        QCOMPARE(written([number](JsonWriter &json) { json.number(number); }), QByteArray::number(number));
    for (const double number : {0.1, 0.12345678901234567, 1e-9, 41.0}) {
        const QByteArray text = written([number](JsonWriter &json) { json.number(number); });
        QCOMPARE(text.toDouble(), number);
    }
    QCOMPARE(written([](JsonWriter &json) { json.number(std::numeric_limits<double>::quiet_NaN()); }),
             QByteArray("null"));
    QCOMPARE(written([](JsonWriter &json) { json.number(std::numeric_limits<double>::infinity()); }),
             QByteArray("null"));
}

void tst_Printing::jsonTextsSurviveAnyContent()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int round = 0; round < 2'000; ++round) {
        QString text;
        const int length = random.bounded(20);
        for (int i = 0; i < length; ++i) {
            const char32_t character = random.bounded(4) == 0 ? random.bounded(0x20U) : random.bounded(0x11000U);
            if (character < 0xd800 || character > 0xdfff)
                text += QString::fromUcs4(&character, 1);
        }
        const QByteArray json = '[' + written([&text](JsonWriter &writer) { writer.text(text); }) + ']';
        const QJsonDocument document = QJsonDocument::fromJson(json);
        QVERIFY2(document.isArray(), qPrintable(u"seed %1: "_s.arg(seed) + QString::fromUtf8(json)));
        QCOMPARE(document.array().first().toString(), text);
        QVERIFY(!json.contains('\x1b') && !json.contains('\n'));
    }
    // Half of a pair is no character; what comes out must still be UTF-8.
    const QByteArray lone = written([](JsonWriter &json) { json.text(QString(QChar(0xd800)) + u"a"_s); });
    QVERIFY(lone.isValidUtf8());
    QCOMPARE(written([](JsonWriter &json) { json.text(u"\u009b2J"_s); }), QByteArray(R"("\u009b2J")"));
}

void tst_Printing::jsonDatesHaveAFractionOnlyWhenThereIsOne_data()
{
    QTest::addColumn<QDateTime>("date");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("whole second") << moment(u"2026-01-02T03:04:05Z"_s) << QByteArray("\"2026-01-02T03:04:05Z\"");
    QTest::newRow("fraction") << moment(u"2026-01-02T03:04:05.678Z"_s) << QByteArray("\"2026-01-02T03:04:05.678Z\"");
    QTest::newRow("short fraction") << moment(u"2026-01-02T03:04:05.500Z"_s)
                                    << QByteArray("\"2026-01-02T03:04:05.5Z\"");
    QTest::newRow("fraction with noughts")
        << moment(u"2026-01-02T03:04:05.007Z"_s) << QByteArray("\"2026-01-02T03:04:05.007Z\"");
    QTest::newRow("another zone") << QDateTime(QDate(2026, 1, 2), QTime(1, 0), QTimeZone(7200))
                                  << QByteArray("\"2026-01-01T23:00:00Z\"");
    QTest::newRow("long ago") << moment(u"0001-01-01T00:00:00Z"_s) << QByteArray("\"0001-01-01T00:00:00Z\"");
    QTest::newRow("far ahead") << QDateTime(QDate(12026, 1, 2), QTime(1, 0), Qt::UTC) << QByteArray("null");
    QTest::newRow("invalid") << QDateTime() << QByteArray("null");
}

void tst_Printing::jsonDatesHaveAFractionOnlyWhenThereIsOne()
{
    QFETCH(const QDateTime, date);
    QFETCH(const QByteArray, text);
    QCOMPARE(written([&date](JsonWriter &json) { json.date(date); }), text);
}

void tst_Printing::jsonIsWrittenInPieces()
{
    LargeFilesResult result;
    for (int i = 0; i < 100'000; ++i)
        result.files.append({.url = url("/some/folder/" + QByteArray::number(i)), .size = i, .modified = {}});
    qsizetype largest = 0;
    qsizetype total = 0;
    JsonWriter json([&](QByteArrayView piece) {
        largest = std::max(largest, piece.size());
        total += piece.size();
    });
    writeJson(json, result);
    json.flush();
    QVERIFY(total > 5'000'000);
    QVERIFY2(largest < 80'000, qPrintable(QString::number(largest)));
}

void tst_Printing::everyResultHasTheKeysThatProgramsRelyOn_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QByteArray>("expected");
    const QDateTime date = moment(u"2026-01-02T03:04:05Z"_s);
    const QByteArray at = "\"2026-01-02T03:04:05Z\"";
    const ToastData toast{.symbol = u"checkmark.circle.fill"_s, .tintHex = Tint::success, .message = u"Done"_s};
    const QByteArray toastJson = R"({"symbol":"checkmark.circle.fill","tint":"#22C55E","message":"Done"})";

    const JunkResult junk{.categories = {{.id = QUuid::createUuid(),
                                          .name = u"App Caches"_s,
                                          .symbol = u"archivebox"_s,
                                          .paths = {url("/h/.cache"), url("/h/a b")},
                                          .files = {{.url = url("/h/.cache/x"), .size = 7, .modified = date}},
                                          .totalSize = 7,
                                          .deletesDirectly = true}},
                          .reclaimable = 7};
    const QByteArray junkJson = R"({"categories":[{"name":"App Caches","symbol":"archivebox",)"
                                R"("paths":["file:///h/.cache","file:///h/a%20b"],)"
                                R"("files":[{"url":"file:///h/.cache/x","path":"/h/.cache/x","size":7,"modified":)" +
                                at + R"(}],"totalSize":7,"deletesDirectly":true}],"junkReclaimable":7})";
    QTest::newRow("scan junk") << jsonOf(junk) << junkJson;

    const LargeFilesResult large{.files = {{.url = url("/h/b"), .size = 9, .modified = {}}}, .totalSize = 9};
    const QByteArray largeJson =
        R"({"files":[{"url":"file:///h/b","path":"/h/b","size":9,"modified":null}],"totalSize":9})";
    QTest::newRow("scan large-files") << jsonOf(large) << largeJson;

    const DuplicatesResult duplicates{.groups = {{.id = u"00ff"_s,
                                                  .files = {{.url = url("/h/c"), .size = 5, .modified = date},
                                                            {.url = url("/h/d"), .size = 5, .modified = {}}}}},
                                      .reclaimable = 5};
    const QByteArray duplicatesJson =
        R"({"groups":[{"id":"00ff","reclaimable":5,"files":[{"url":"file:///h/c","path":"/h/c","size":5,"modified":)" +
        at + R"(},{"url":"file:///h/d","path":"/h/d","size":5,"modified":null}]}],"duplicateReclaimable":5})";
    QTest::newRow("scan duplicates") << jsonOf(duplicates) << duplicatesJson;

    const AppsResult apps{.apps = {{.url = url("/Applications/A.app"),
                                    .name = u"A"_s,
                                    .bundleID = u"org.a"_s,
                                    .version = {},
                                    .icon = url("/i"),
                                    .lastUsed = date,
                                    .bundleSize = 3,
                                    .relatedFiles = {{.name = u"Caches"_s, .url = url("/h/l"), .size = {}}},
                                    .detailed = true}},
                          .unusedSize = 3,
                          .now = date.addDays(31)};
    const QByteArray appsJson =
        R"({"apps":[{"url":"file:///Applications/A.app","path":"/Applications/A.app","name":"A","bundleID":"org.a",)"
        R"("version":null,"lastUsed":)" +
        at +
        R"(,"bundleSize":3,"unused":true,"relatedFiles":[{"name":"Caches","url":"file:///h/l","path":"/h/l",)"
        R"("size":null}]}],"unusedAppsSize":3})";
    QTest::newRow("scan apps") << jsonOf(apps) << appsJson;

    const StartupItem item{.name = u"a.plist"_s,
                           .path = url("/h/a.plist"),
                           .type = StartupType::launchDaemon,
                           .isEnabled = false,
                           .isUserLevel = true};
    const QByteArray itemJson = R"({"url":"file:///h/a.plist","path":"/h/a.plist","name":"a.plist",)"
                                R"("type":"Launch Daemon","isEnabled":false,"isUserLevel":true})";
    QTest::newRow("scan startup") << jsonOf(StartupResult{{item}}) << QByteArray(R"({"items":[)" + itemJson + "]}");
    QTest::newRow("startup enable") << jsonOf(SwitchResult{.item = item, .toast = toast})
                                    << QByteArray(R"({"item":)" + itemJson + R"(,"toast":)" + toastJson + '}');

    QTest::newRow("scan all")
        << jsonOf(FullScanResult{
               .apps = apps, .duplicates = duplicates, .junk = junk, .largeFiles = large, .toast = toast})
        << QByteArray(R"({"apps":)" + appsJson + R"(,"duplicates":)" + duplicatesJson + R"(,"junk":)" + junkJson +
                      R"(,"largeFiles":)" + largeJson + R"(,"toast":)" + toastJson + '}');

    const ActivityRecord record{.id = QUuid(u"{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"_s),
                                .kind = ActivityKind::junkRemoved,
                                .title = u"t"_s,
                                .detail = u"d"_s,
                                .bytes = 4,
                                .date = date};
    const QByteArray recordJson = R"({"id":"67C8770B-44F1-410A-AB9A-F9B5446F13EE","kind":"junkRemoved","title":"t",)"
                                  R"("detail":"d","bytes":4,"date":)" +
                                  at + '}';
    const RemovalReport report{
        .removed = {{.url = url("/h/e"), .size = 4}, {.url = url("/h/f"), .size = {}}},
        .failed = {{.url = url("/h/g"), .error = std::make_error_code(std::errc::permission_denied)}},
        .bytes = 4,
        .stopped = false,
        .toast = {},
        .alert = AlertData{.id = QUuid::createUuid(), .title = u"T"_s, .message = u"M"_s},
        .activity = record};
    const QByteArray reportFields =
        R"("removed":[{"url":"file:///h/e","path":"/h/e","size":4},{"url":"file:///h/f","path":"/h/f","size":null}],)"
        R"("failed":[{"url":"file:///h/g","path":"/h/g","error":"Permission denied"}],"bytes":4,"toast":null,)"
        R"("alert":{"title":"T","message":"M"},"activity":)" +
        recordJson;
    QTest::newRow("remove") << jsonOf(RemovalResult{report}) << QByteArray('{' + reportFields + '}');
    QTest::newRow("remove, nothing")
        << jsonOf(RemovalResult{})
        << QByteArray(R"({"removed":[],"failed":[],"bytes":0,"toast":null,"alert":null,"activity":null})");
    QTest::newRow("clean junk, several") << jsonOf(CategoriesResult{{{.category = u"Trash"_s, .report = report}}})
                                         << QByteArray(R"({"results":[{"category":"Trash",)" + reportFields + "}]}");
    QTest::newRow("dry run") << jsonOf(DryRunResult{.items = report.removed, .bytes = 4})
                             << QByteArray(R"({"wouldRemove":[{"url":"file:///h/e","path":"/h/e","size":4},)"
                                           R"({"url":"file:///h/f","path":"/h/f","size":null}],"bytes":4})");
    QTest::newRow("stats")
        << jsonOf(StatsResult{
               .cpuUsage = 0.25, .memoryUsed = 1, .memoryTotal = 2, .availableDisk = 3, .diskTemperature = {}})
        << QByteArray(R"({"cpuUsage":0.25,"memoryUsed":1,"memoryTotal":2,"availableDisk":3,)"
                      R"("diskTemperature":null})");
    QTest::newRow("history") << jsonOf(HistoryResult{{record}}) << QByteArray(R"({"activities":[)" + recordJson + "]}");
    QTest::newRow("folders") << jsonOf(FoldersResult{{url("/")}})
                             << QByteArray(R"({"folders":[{"url":"file:///","path":"/"}]})");
    const UpdateInfo info{.latestVersion = u"2.0"_s,
                          .latestBuildNumber = 12,
                          .releaseDate = date,
                          .minimumSystemVersion = {},
                          .downloadURL = QUrl(u"https://x.invalid/a b"_s),
                          .fileSizeBytes = 9'007'199'254'740'993,
                          .sha256 = {},
                          .releaseNotes = {{u"de"_s, u"Ä"_s}, {u"en"_s, u"A"_s}},
                          .criticalUpdate = true};
    QTest::newRow("update") << jsonOf(UpdateResult{.info = info, .toast = {}})
                            << QByteArray(
                                   R"({"updateInfo":{"latestVersion":"2.0","latestBuildNumber":12,"releaseDate":)" +
                                   at +
                                   R"(,"minimumSystemVersion":null,"downloadURL":"https://x.invalid/a%20b",)"
                                   R"("fileSizeBytes":9007199254740993,"sha256":null,)"
                                   R"("releaseNotes":{"de":"Ä","en":"A"},"criticalUpdate":true},"toast":null})");
    QTest::newRow("update, none") << jsonOf(UpdateResult{.info = {}, .toast = toast})
                                  << QByteArray(R"({"updateInfo":null,"toast":)" + toastJson + '}');
}

void tst_Printing::everyResultHasTheKeysThatProgramsRelyOn()
{
    QFETCH(const QByteArray, json);
    QFETCH(const QByteArray, expected);
    QCOMPARE(json, expected);
    QVERIFY(QJsonDocument::fromJson(json).isObject());
}

void tst_Printing::aPathKeepsItsBytesInTheUrl()
{
    QByteArray name;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '/')
            name += static_cast<char>(byte);
    }
    const FileURL odd = url("/x/" + name);
    const QJsonDocument document = QJsonDocument::fromJson(jsonOf(FoldersResult{{odd}}));
    const QJsonObject folder = document[u"folders"].toArray().first().toObject();
    QCOMPARE(FileURL::fromEncoded(folder[u"url"].toString().toLatin1()).value(), odd);
    QCOMPARE(folder[u"path"].toString(), odd.text());
}

void tst_Printing::absentValuesAreNull()
{
    QCOMPARE(jsonOf(SwitchResult{}), QByteArray(R"({"item":null,"toast":null})"));
    QCOMPARE(jsonOf(StatsResult{}), QByteArray(R"({"cpuUsage":0,"memoryUsed":null,"memoryTotal":null,)"
                                               R"("availableDisk":null,"diskTemperature":null})"));
}

void tst_Printing::escapesWhatWouldSteerATerminal_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *tag, const QByteArray &bytes, const QString &shown) {
        QTest::newRow(tag) << bytes << shown;
    };
    row("plain", "a b~", u"a b~"_s);
    row("escape", "a\x1b[2Jb", uR"(a\x1b[2Jb)"_s);
    row("line end and tab", "a\nb\tc\r", uR"(a\x0ab\x09c\x0d)"_s);
    row("delete", "\x7f", uR"(\x7f)"_s);
    row("eight-bit control", "\xc2\x9b", uR"(\x9b)"_s);
    row("text turned round", "a\xe2\x80\xaegpj.exe", uR"(a\u202egpj.exe)"_s);
    row("umlaut", "\xc3\xa4", u"ä"_s);
    row("beyond the basic plane", "\xf0\x9f\x98\x80!", u"😀!"_s);
    row("no UTF-8",
        "a\xff"
        "b\xc3",
        uR"(a\xffb\xc3)"_s);
    row("no UTF-8 among umlauts", "\xc3\xa4\xe2\x80\xc3\xa4", uR"(ä\xe2\x80ä)"_s);
    row("empty", "", QString());
}

void tst_Printing::escapesWhatWouldSteerATerminal()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, shown);
    QCOMPARE(escaped(bytes), shown);
}

void tst_Printing::wideCharactersTakeTwoColumns()
{
    QCOMPARE(columnsOf(u"abc"), 3);
    QCOMPARE(columnsOf(u"äö"), 2);
    QCOMPARE(columnsOf(u"日本"), 4);
    QCOMPARE(columnsOf(u"e\u0301"), 1);
    QCOMPARE(columnsOf(u""), 0);
}

void tst_Printing::fitsTextsToTheScreen()
{
    QCOMPARE(fitted(u"abcdef"_s, 6), u"abcdef"_s);
    QCOMPARE(fitted(u"abcdef"_s, 5), u"abcd…"_s);
    QCOMPARE(fitted(u"日本語"_s, 5), u"日本…"_s);
    QCOMPARE(fitted(u"日本語"_s, 4), u"日…"_s);
}

void tst_Printing::coloursOnlyWhereWanted()
{
    const LargeFilesResult result{.files = {{.url = url("/a\x1b[31m"), .size = 1, .modified = {}}}, .totalSize = 1};
    FakeTerminal plain;
    QVERIFY(!peopleOf(result, plain).contains('\x1b'));
    FakeTerminal coloured;
    coloured.colours = true;
    const QByteArray text = peopleOf(result, coloured);
    QVERIFY(text.contains("\x1b[1m"));
    QCOMPARE(text.count("\x1b["), 2 * text.count("\x1b[0m")); // each is ended
    QVERIFY(text.contains("/a\\x1b[31m"));
}

void tst_Printing::longListsAreComplete()
{
    LargeFilesResult result;
    for (int i = 0; i < 5'000; ++i)
        result.files.append({.url = url("/f/" + QByteArray::number(i)), .size = 1, .modified = {}});
    FakeTerminal terminal;
    const QByteArray text = peopleOf(result, terminal);
    for (int i = 0; i < 5'000; ++i)
        QVERIFY(text.contains("/f/" + QByteArray::number(i) + '\n'));
    QVERIFY(terminal.writes < 20);
}

void tst_Printing::listsLineUp()
{
    LargeFilesResult result;
    for (const qint64 size : {qint64{0}, qint64{1}, qint64{999}, qint64{1'234'567'898}, qint64{999'990'000'000}})
        result.files.append({.url = url("/f"), .size = size, .modified = moment(u"2026-09-28T03:04:05Z"_s)});
    FakeTerminal terminal;
    const QByteArray text = peopleOf(result, terminal);
    qsizetype column = -1;
    for (const QByteArray &line : text.split('\n')) {
        if (!line.endsWith("/f"))
            continue;
        if (column < 0)
            column = line.indexOf("/f");
        QCOMPARE(line.indexOf("/f"), column);
    }
    QVERIFY(column > 0);
}

void tst_Printing::failuresGoToStandardError()
{
    RemovalResult result;
    result.report.failed = {{.url = url("/h/g\n"), .error = std::make_error_code(std::errc::permission_denied)}};
    result.report.alert = AlertData{.id = {}, .title = u"Can't move to Trash"_s, .message = u"Permission denied"_s};
    FakeTerminal terminal;
    QCOMPARE(peopleOf(result, terminal), QByteArray());
    QCOMPARE(terminal.errors, QByteArray("/h/g\\x0a: Permission denied\nCan't move to Trash: Permission denied\n"));
}

void tst_Printing::theQuestionShowsTitleMessageAndRows()
{
    FakeTerminal terminal;
    {
        Printer errors(&terminal, Stream::error);
        writeQuestion(errors, ConfirmData{.id = {},
                                          .iconImage = {},
                                          .symbol = {},
                                          .title = u"Remove a\x1b?"_s,
                                          .message = u"It will go."_s,
                                          .rows = {{u"Type"_s, u"T"_s}, {u"Total Size"_s, u"1 MB"_s}},
                                          .confirmTitle = u"Move to Trash"_s,
                                          .onConfirm = {}});
    }
    QCOMPARE(terminal.errors, QByteArray("Remove a\\x1b?\nIt will go.\n  Type        T\n  Total Size  1 MB\n"
                                         "Move to Trash? [y/N] "));
    QCOMPARE(terminal.output, QByteArray());
}

void tst_Printing::progressOverwritesItsLine()
{
    FakeTerminal terminal;
    terminal.errorIsTerminal = true;
    terminal.width = 11;
    {
        ProgressLine progress(&terminal, false);
        progress.show(u"Scanning…"_s);
        QCOMPARE(terminal.errors, QByteArray("\rScanning…"));
        // What follows at once waits for its turn; only the newest is drawn.
        progress.show(u"b"_s);
        progress.show(u"a\x1b much too long"_s);
        QCOMPARE(terminal.errors, QByteArray("\rScanning…"));
        QTRY_COMPARE(terminal.errors, QByteArray("\rScanning…\ra\\x1b muc…"));
        progress.show({});
        QVERIFY(terminal.errors.endsWith("\r          \r"));
        const qsizetype size = terminal.errors.size();
        progress.show({});
        QCOMPARE(terminal.errors.size(), size);
    }
    QVERIFY(!terminal.errors.contains('\n'));
    QCOMPARE(terminal.output, QByteArray());
}

void tst_Printing::progressPrintsEveryTextWhenAsked()
{
    for (const bool isTerminal : {false, true}) {
        FakeTerminal terminal;
        terminal.errorIsTerminal = isTerminal;
        ProgressLine progress(&terminal, true);
        progress.show(u"one"_s);
        progress.show(u"two\n"_s);
        progress.show({});
        QCOMPARE(terminal.errors, QByteArray("one\ntwo\\x0a\n"));
    }
}

void tst_Printing::progressIsSilentWithoutATerminal()
{
    FakeTerminal terminal;
    ProgressLine progress(&terminal, false);
    progress.show(u"one"_s);
    progress.show({});
    QCOMPARE(terminal.errors, QByteArray());
}

QTEST_GUILESS_MAIN(tst_Printing)
#include "tst_Printing.moc"
