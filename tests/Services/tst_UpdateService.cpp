// SPDX-License-Identifier: MIT
#include "FeedServer.h"
#include "Services/UpdateService.h"
#include "Support/LanguageManager.h"
#include "Support/UserDefaults.h"
#include "TestCertificate.h"

#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <QCoro/QCoroCore>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using UpdateService::Failure;

Q_DECLARE_METATYPE(UpdateService::Failure)

namespace {

using Fields = QList<std::pair<QByteArray, QByteArray>>;

/// A sound feed with one field put in place of its own; an empty value leaves the field out.
QByteArray feed(const QByteArray &key = {}, const QByteArray &value = {})
{
    const Fields sound{{"latestVersion", "\"2.1.0\""},
                       {"latestBuildNumber", "210"},
                       {"releaseDate", "\"2024-03-05T10:20:30Z\""},
                       {"minimumSystemVersion", "\"13.0\""},
                       {"downloadURL", "\"https://example.org/brisko.dmg\""},
                       {"fileSizeBytes", "9007199254740993"},
                       {"sha256", "\"abc\""},
                       {"releaseNotes", "{\"en\":\"Faster.\",\"de\":\"Schneller.\"}"},
                       {"criticalUpdate", "false"}};
    QByteArrayList fields;
    for (const auto &[name, content] : sound) {
        const QByteArray used = name == key ? value : content;
        if (!used.isEmpty())
            fields.append('"' + name + "\":" + used);
    }
    return '{' + fields.join(',') + '}';
}

std::expected<UpdateInfo, Failure> fetch(const QUrl &address,
                                         std::chrono::milliseconds timeout = UpdateService::kTimeout)
{
    return QCoro::waitFor(UpdateService::fetchAppcast(address, timeout));
}

UpdateInfo withNotes(const QList<std::pair<QString, QString>> &notes)
{
    UpdateInfo info;
    info.releaseNotes = notes;
    return info;
}

} // namespace

class tst_UpdateService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void comparesVersions_data();
    void comparesVersions();

    void readsAWholeFeed();
    void readsAFeedWithoutOptionalFields();
    void readsDates_data();
    void readsDates();
    void refusesMalformedFeeds_data();
    void refusesMalformedFeeds();
    void keepsTheOrderOfReleaseNotes();
    void choosesReleaseNotes_data();
    void choosesReleaseNotes();

    void judgesAddresses_data();
    void judgesAddresses();
    void judgesRedirects_data();
    void judgesRedirects();
    void takesTheAddressFromTheEnvironment_data();
    void takesTheAddressFromTheEnvironment();
    void hasTheVersionOfTheBuild();

    void fetchesTheFeedPastEveryCache();
    void asksForNothingWhereItMayNot();
    void takesNothingButStatus200_data();
    void takesNothingButStatus200();
    void takesNoBodyThatIsNoFeed_data();
    void takesNoBodyThatIsNoFeed();
    void failsWhenNobodyListens();
    void failsAtTheDeadline_data();
    void failsAtTheDeadline();
    void countsTheDeadlineOverAllRedirects();
    void takesAFeedOfExactlyTheLargestSize();
    void stopsReadingAtTheLargestSize_data();
    void stopsReadingAtTheLargestSize();
    void failsWhenTheBodyIsCutOff_data();
    void failsWhenTheBodyIsCutOff();
    void followsThreeRedirects_data();
    void followsThreeRedirects();
    void refusesAFourthRedirectAndLoops();
    void followsNoRedirectThatLeavesThisMachineInTheClear_data();
    void followsNoRedirectThatLeavesThisMachineInTheClear();
    void fetchesOverTlsAndFollowsNoRedirectDownwards();
    void trustsNoUnknownCertificate();
    void sendsNothingForThisMachineThroughAProxy();
    void servesTwoFetchesAtOnce();

private:
    const QSslConfiguration m_usualTls = QSslConfiguration::defaultConfiguration();
};

void tst_UpdateService::cleanup()
{
    qunsetenv("BRISKO_APPCAST_URL");
    QSslConfiguration::setDefaultConfiguration(m_usualTls);
}

void tst_UpdateService::comparesVersions_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("newer");
    const auto row = [](const char *a, const char *b, bool newer) {
        QTest::addRow("%.40s over %.40s", a, b) << QString::fromLatin1(a) << QString::fromLatin1(b) << newer;
    };
    row("1.0.10", "1.0.9", true);
    row("1.0.9", "1.0.10", false);
    row("2.0", "2.0.0", false);
    row("2.0.0", "2.0", false);
    row("1.2", "1.2.0", false);
    row("1.10", "1.9", true);
    row("1.2.0.1", "1.2", true);
    row("1", "1", false);
    row("1.0.0", "0.9.9", true);
    row("", "", false);
    row("1", "", true);
    row("", "1", false);
    row("1.x", "1.0", false);
    row("1.0", "1.x", false);
    row("1.1", "1.x", true);
    row("1.1beta", "1.0", false);
    row("1..1", "1.0.1", false);
    row(".1", "0.1", false);
    row("01.002", "1.2", false);
    row("1. 2", "1.1", false);
    row("v2", "1", false);
    row("1.99999999999999999999999999", "1.9", true);
    row("99999999999999999999999999", "99999999999999999999999998", true);
    row("18446744073709551616.0", "0.1", true);
}

void tst_UpdateService::comparesVersions()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(UpdateService::isVersion(a, b), "newer");
}

void tst_UpdateService::readsAWholeFeed()
{
    const UpdateInfo wanted{.latestVersion = u"2.1.0"_s,
                            .latestBuildNumber = 210,
                            .releaseDate = QDateTime(QDate(2024, 3, 5), QTime(10, 20, 30), Qt::UTC),
                            .minimumSystemVersion = u"13.0"_s,
                            .downloadURL = QUrl(u"https://example.org/brisko.dmg"_s),
                            .fileSizeBytes = 9007199254740993,
                            .sha256 = u"abc"_s,
                            .releaseNotes = {{u"en"_s, u"Faster."_s}, {u"de"_s, u"Schneller."_s}},
                            .criticalUpdate = false};
    QVERIFY(UpdateService::decode(feed()) == wanted);
}

void tst_UpdateService::readsAFeedWithoutOptionalFields()
{
    const auto bare = UpdateService::decode(
        R"({"criticalUpdate":true,"releaseNotes":{},"downloadURL":"https://example.org/a","latestVersion":"3",
            "sha256":null,"releaseDate":null,"somethingNew":[1,2]})");
    QVERIFY(bare);
    QCOMPARE(bare->latestVersion, u"3"_s);
    QVERIFY(bare->criticalUpdate);
    QVERIFY(!bare->latestBuildNumber && !bare->releaseDate && !bare->minimumSystemVersion && !bare->fileSizeBytes &&
            !bare->sha256);
    QVERIFY(bare->releaseNotes.isEmpty());
}

void tst_UpdateService::readsDates_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDateTime>("date");
    const auto row = [](const char *text, const QDateTime &date) {
        QTest::addRow("%s", text) << QByteArray(text) << date;
    };
    const QDateTime moment(QDate(2024, 3, 5), QTime(10, 20, 30), Qt::UTC);
    row("2024-03-05T10:20:30Z", moment);
    row("2024-03-05T12:20:30+02:00", moment);
    row("2024-03-05T05:50:30-04:30", moment);
    row("2024-03-05T10:20:30+00:00", moment);
    row("2024-02-29T00:00:00Z", QDateTime(QDate(2024, 2, 29), QTime(0, 0), Qt::UTC));
    for (const char *odd : {"2024-03-05", "2024-03-05T10:20:30", "2024-03-05T10:20:30.5Z", "2024-03-05 10:20:30Z",
                            "2024-03-05T10:20Z", "20240305T102030Z", "2023-02-29T00:00:00Z", "2024-13-01T00:00:00Z",
                            "2024-03-05T25:00:00Z", "2024-03-05T10:20:30 Z", "2024-03-05T10:20:30Z ", "tomorrow", ""})
        row(odd, QDateTime());
}

void tst_UpdateService::readsDates()
{
    QFETCH(QByteArray, text);
    QFETCH(QDateTime, date);
    const auto info = UpdateService::decode(feed("releaseDate", '"' + text + '"'));
    QCOMPARE(info.has_value(), date.isValid());
    if (info)
        QCOMPARE(info->releaseDate, date);
}

void tst_UpdateService::refusesMalformedFeeds_data()
{
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char *tag, const QByteArray &body) { QTest::newRow(tag) << body; };
    row("nothing", "");
    row("no json", "<html>Welcome to the airport</html>");
    row("null", "null");
    row("array", '[' + feed() + ']');
    row("cut off", feed().chopped(1));
    row("two documents", feed() + feed());
    row("no UTF-8", feed("latestVersion", "\"2.\xFF\""));
    row("deep", QByteArray(500'000, '['));
    for (const char *key : {"latestVersion", "downloadURL", "releaseNotes", "criticalUpdate"}) {
        QTest::addRow("no %s", key) << feed(key, {});
        QTest::addRow("null %s", key) << feed(key, "null");
        QTest::addRow("number for %s", key) << feed(key, "1");
    }
    for (const char *key : {"releaseDate", "minimumSystemVersion", "sha256"})
        QTest::addRow("number for %s", key) << feed(key, "1");
    for (const char *key : {"latestBuildNumber", "fileSizeBytes"}) {
        QTest::addRow("text for %s", key) << feed(key, "\"1\"");
        QTest::addRow("fraction for %s", key) << feed(key, "1.5");
        QTest::addRow("too much for %s", key) << feed(key, "9223372036854775808");
    }
    row("note that is no text", feed("releaseNotes", "{\"en\":1}"));
    row("text for a flag", feed("criticalUpdate", "\"false\""));
    for (const char *address : {"http://example.org/a", "ftp://example.org/a", "file:///etc/passwd", "example.org/a",
                                "", "https:", "https:///a", "javascript:alert(1)", "https://exa mple.org/"})
        QTest::addRow("download %s", address) << feed("downloadURL", '"' + QByteArray(address) + '"');
}

void tst_UpdateService::refusesMalformedFeeds()
{
    QFETCH(QByteArray, body);
    QVERIFY(!UpdateService::decode(body));
}

void tst_UpdateService::keepsTheOrderOfReleaseNotes()
{
    const auto info = UpdateService::decode(feed("releaseNotes", R"({"tr":"1","de":"2","a":"3","b\u00e4":"4"})"));
    QVERIFY(info);
    QStringList languages;
    for (const auto &[language, note] : info->releaseNotes)
        languages.append(language);
    QCOMPARE(languages, (QStringList{u"tr"_s, u"de"_s, u"a"_s, u"bä"_s}));
}

void tst_UpdateService::choosesReleaseNotes_data()
{
    using Notes = QList<std::pair<QString, QString>>;
    QTest::addColumn<AppLanguage>("language");
    QTest::addColumn<Notes>("notes");
    QTest::addColumn<QString>("chosen");
    const std::pair<QString, QString> en{u"en"_s, u"english"_s};
    const std::pair<QString, QString> de{u"de"_s, u"deutsch"_s};
    const std::pair<QString, QString> deDe{u"de-DE"_s, u"deutschland"_s};
    const std::pair<QString, QString> zh{u"zh"_s, u"chinese"_s};
    const std::pair<QString, QString> zhHansCn{u"zh-Hans-CN"_s, u"mainland"_s};
    QTest::newRow("only German, seen in Japanese") << AppLanguage::ja << Notes{de} << u"deutsch"_s;
    QTest::newRow("full identifier first") << AppLanguage::de << Notes{en, de, deDe} << u"deutschland"_s;
    QTest::newRow("language alone") << AppLanguage::de << Notes{en, de} << u"deutsch"_s;
    QTest::newRow("English when there is none") << AppLanguage::ja << Notes{de, en} << u"english"_s;
    QTest::newRow("first of several others") << AppLanguage::ja << Notes{zh, de} << u"chinese"_s;
    QTest::newRow("Chinese in full") << AppLanguage::zhHans << Notes{zh, zhHansCn} << u"mainland"_s;
    QTest::newRow("Chinese by language") << AppLanguage::zhHant << Notes{zh, zhHansCn} << u"chinese"_s;
    QTest::newRow("none at all") << AppLanguage::en << Notes{} << QString();
}

void tst_UpdateService::choosesReleaseNotes()
{
    using Notes = QList<std::pair<QString, QString>>;
    QFETCH(AppLanguage, language);
    QFETCH(Notes, notes);
    QFETCH(QString, chosen);
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"Brisko.conf"_s));
    LanguageManager::apply(language, defaults);
    const std::optional<QString> found = UpdateService::localizedReleaseNotes(withNotes(notes));
    LanguageManager::apply(AppLanguage::en, defaults);
    QCOMPARE(found.has_value(), !notes.isEmpty());
    QCOMPARE(found.value_or(QString()), chosen);
}

void tst_UpdateService::judgesAddresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("allowed");
    const auto row = [](const char *address, bool allowed) {
        QTest::addRow("%s", address) << QString::fromLatin1(address) << allowed;
    };
    row("https://example.org/appcast.json", true);
    row("HTTPS://EXAMPLE.ORG/", true);
    row("http://localhost:8000/feed", true);
    row("http://127.0.0.1/feed", true);
    row("http://127.1.2.3:80/", true);
    row("http://[::1]:8080/feed", true);
    row("http://example.org/", false);
    row("http://localhost.example.org/", false);
    row("http://127.0.0.1.example.org/", false);
    row("http://127.0.0.1@example.org/", false);
    row("http://10.0.0.1/", false);
    row("http://0.0.0.0/", false);
    row("http://[::2]/", false);
    row("ftp://localhost/feed", false);
    row("file:///etc/passwd", false);
    row("file://localhost/feed", false);
    row("localhost:8000/feed", false);
    row("https:///feed", false);
    row("https:", false);
    row("data:application/json,{}", false);
    row("", false);
}

void tst_UpdateService::judgesAddresses()
{
    QFETCH(QString, address);
    QTEST(UpdateService::isAllowed(QUrl(address, QUrl::StrictMode)), "allowed");
}

void tst_UpdateService::judgesRedirects_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("allowed");
    const auto row = [](const char *from, const char *to, bool allowed) {
        QTest::addRow("%s to %s", from, to) << QString::fromLatin1(from) << QString::fromLatin1(to) << allowed;
    };
    row("https://a.example/", "https://b.example/", true);
    row("https://a.example/", "http://b.example/", false);
    row("https://a.example/", "http://localhost/", false);
    row("https://localhost/", "http://localhost/", false);
    row("http://localhost/", "http://127.0.0.1/", true);
    row("http://localhost/", "https://a.example/", true);
    row("http://localhost/", "http://a.example/", false);
    row("http://localhost/", "ftp://localhost/", false);
    row("https://a.example/", "file:///etc/passwd", false);
}

void tst_UpdateService::judgesRedirects()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QTEST(UpdateService::mayRedirect(QUrl(from), QUrl(to)), "allowed");
}

void tst_UpdateService::takesTheAddressFromTheEnvironment_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("usable");
    QTest::newRow("https") << u"https://example.org/a.json"_s << true;
    QTest::newRow("loopback") << u"http://127.0.0.1:1/a.json"_s << true;
    QTest::newRow("in the clear") << u"http://example.org/a.json"_s << false;
    QTest::newRow("file") << u"file:///tmp/a.json"_s << false;
    QTest::newRow("nonsense") << u"::::"_s << false;
    QTest::newRow("relative") << u"a.json"_s << false;
}

void tst_UpdateService::takesTheAddressFromTheEnvironment()
{
    QFETCH(QString, value);
    QFETCH(bool, usable);
    qputenv("BRISKO_APPCAST_URL", value.toUtf8());
    const std::expected<QUrl, QString> address = UpdateService::appcastURL();
    QCOMPARE(address.has_value(), usable);
    if (address) {
        QCOMPARE(*address, QUrl(value));
    } else {
        QVERIFY(address.error().contains(u"BRISKO_APPCAST_URL"_s));
        QVERIFY(!address.error().contains(u'\n'));
    }
    // Without it, or with an empty one, the build's own address holds.
    qputenv("BRISKO_APPCAST_URL", "");
    const std::expected<QUrl, QString> usual = UpdateService::appcastURL();
    QVERIFY(usual.has_value());
    QCOMPARE(usual->scheme(), u"https"_s);
    QCOMPARE(usual->path(), u"/download/brisko/appcast.json"_s);
    qunsetenv("BRISKO_APPCAST_URL");
    QCOMPARE(UpdateService::appcastURL(), usual);
}

void tst_UpdateService::hasTheVersionOfTheBuild()
{
    QCOMPARE(UpdateService::currentVersion(), QStringLiteral(EXPECTED_VERSION));
}

void tst_UpdateService::fetchesTheFeedPastEveryCache()
{
    const FeedServer server(
        [](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "200 OK", feed()); });
    const auto info = fetch(server.url());
    QVERIFY(info.has_value());
    QCOMPARE(info->latestVersion, u"2.1.0"_s);
    QCOMPARE(server.requests().size(), 1);
    const QByteArray request = server.requests().first().toLower();
    QVERIFY(request.startsWith("get /feed http/1.1\r\n"));
    QVERIFY(request.contains("cache-control: no-cache"));
    QVERIFY(request.contains("accept-encoding: identity"));
    QVERIFY(!request.contains("if-none-match") && !request.contains("if-modified-since"));
    QVERIFY(!request.contains("cookie"));
}

void tst_UpdateService::asksForNothingWhereItMayNot()
{
    QCOMPARE(fetch(QUrl(u"http://192.0.2.1/feed"_s)).error(), Failure::badAddress);
    QCOMPARE(fetch(QUrl(u"file:///etc/hostname"_s)).error(), Failure::badAddress);
    QCOMPARE(fetch(QUrl()).error(), Failure::badAddress);
}

void tst_UpdateService::takesNothingButStatus200_data()
{
    QTest::addColumn<QByteArray>("status");
    for (const char *status : {"201 Created", "203 Non-Authoritative Information", "204 No Content",
                               "206 Partial Content", "300 Multiple Choices", "304 Not Modified", "400 Bad Request",
                               "401 Unauthorized", "404 Not Found", "500 Internal Server Error", "503 Busy"})
        QTest::newRow(status) << QByteArray(status);
}

void tst_UpdateService::takesNothingButStatus200()
{
    QFETCH(QByteArray, status);
    const FeedServer server([&](QTcpSocket &socket, const QByteArray &) {
        FeedServer::answer(socket, status, status.startsWith("204") || status.startsWith("304") ? "" : feed());
    });
    QCOMPARE(fetch(server.url()).error(), Failure::badStatus);
}

void tst_UpdateService::takesNoBodyThatIsNoFeed_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("headers");
    QTest::newRow("nothing") << QByteArray() << QByteArray();
    QTest::newRow("a page") << QByteArray("<html>Please sign in</html>") << QByteArray("Content-Type: text/html\r\n");
    QTest::newRow("wrong types") << feed("latestVersion", "2") << QByteArray();
    QTest::newRow("cut off") << feed().chopped(5) << QByteArray();
    QTest::newRow("said to be compressed")
        << QByteArray("\x1f\x8b\x08 no feed") << QByteArray("Content-Encoding: gzip\r\n");
    QTest::newRow("download in the clear") << feed("downloadURL", "\"http://example.org/a\"") << QByteArray();
}

void tst_UpdateService::takesNoBodyThatIsNoFeed()
{
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, headers);
    const FeedServer server(
        [&](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "200 OK", body, headers); });
    QCOMPARE(fetch(server.url()).error(), Failure::malformed);
}

void tst_UpdateService::failsWhenNobodyListens()
{
    QUrl address;
    {
        const FeedServer gone([](QTcpSocket &, const QByteArray &) {});
        address = gone.url();
    }
    QCOMPARE(fetch(address).error(), Failure::unreachable);
}

void tst_UpdateService::failsAtTheDeadline_data()
{
    using Handler = FeedServer::Handler;
    QTest::addColumn<Handler>("handler");
    QTest::newRow("silent") << Handler([](QTcpSocket &, const QByteArray &) {});
    QTest::newRow("drop by drop") << Handler([](QTcpSocket &socket, const QByteArray &) {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
        auto *drops = new QTimer(&socket);
        QObject::connect(drops, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
        drops->start(10ms);
    });
    QTest::newRow("half a head") << Handler(
        [](QTcpSocket &socket, const QByteArray &) { socket.write("HTTP/1.1 200 OK\r\nContent-Le"); });
    QTest::newRow("never closed") << Handler(
        [](QTcpSocket &socket, const QByteArray &) { socket.write("HTTP/1.1 200 OK\r\n\r\n" + feed()); });
    QTest::newRow("endless head") << Handler([](QTcpSocket &socket, const QByteArray &) {
        socket.write("HTTP/1.1 200 OK\r\n");
        auto *lines = new QTimer(&socket);
        QObject::connect(lines, &QTimer::timeout, &socket, [&socket] { socket.write("X-More: and more\r\n"); });
        lines->start(1ms);
    });
}

void tst_UpdateService::failsAtTheDeadline()
{
    QFETCH(FeedServer::Handler, handler);
    const FeedServer server(handler);
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(fetch(server.url(), 200ms).error(), Failure::unreachable);
    // Far above the limit for slow machines, far below what would be no limit.
    QVERIFY(elapsed.elapsed() >= 100 && elapsed.elapsed() < 5000);
    QCOMPARE(server.requests().size(), 1);
}

void tst_UpdateService::countsTheDeadlineOverAllRedirects()
{
    const FeedServer server([](QTcpSocket &socket, const QByteArray &path) {
        QTimer::singleShot(150ms, &socket, [&socket, path] { FeedServer::redirect(socket, path + 'x'); });
    });
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(fetch(server.url(), 250ms).error(), Failure::unreachable);
    QVERIFY(elapsed.elapsed() < 5000);
    QVERIFY(server.requests().size() < 4);
}

void tst_UpdateService::takesAFeedOfExactlyTheLargestSize()
{
    const QByteArray body = feed().leftJustified(UpdateService::kMaxBytes, ' ');
    const FeedServer server(
        [&](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "200 OK", body); });
    QVERIFY(fetch(server.url()).has_value());
}

void tst_UpdateService::stopsReadingAtTheLargestSize_data()
{
    using Handler = FeedServer::Handler;
    QTest::addColumn<Handler>("handler");
    QTest::newRow("one byte more") << Handler([](QTcpSocket &socket, const QByteArray &) {
        FeedServer::answer(socket, "200 OK", feed().leftJustified(UpdateService::kMaxBytes + 1, ' '));
    });
    QTest::newRow("one byte more, of unknown length") << Handler([](QTcpSocket &socket, const QByteArray &) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n" + feed().leftJustified(UpdateService::kMaxBytes + 1, ' '));
        socket.disconnectFromHost();
    });
    QTest::newRow("without end") << Handler([](QTcpSocket &socket, const QByteArray &) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n" + feed());
        QObject::connect(&socket, &QIODevice::bytesWritten, &socket, [&socket] {
            if (socket.bytesToWrite() == 0)
                socket.write(QByteArray(65'536, ' '));
        });
    });
    QTest::newRow("without end, in chunks") << Handler([](QTcpSocket &socket, const QByteArray &) {
        socket.write("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
        QObject::connect(&socket, &QIODevice::bytesWritten, &socket, [&socket] {
            if (socket.bytesToWrite() == 0)
                socket.write("10000\r\n" + QByteArray(65'536, ' ') + "\r\n");
        });
    });
    QTest::newRow("without end, after a redirect") << Handler([](QTcpSocket &socket, const QByteArray &) {
        socket.write("HTTP/1.1 302 Found\r\nLocation: /other\r\n\r\n");
        QObject::connect(&socket, &QIODevice::bytesWritten, &socket, [&socket] {
            if (socket.bytesToWrite() == 0)
                socket.write(QByteArray(65'536, ' '));
        });
    });
}

void tst_UpdateService::stopsReadingAtTheLargestSize()
{
    QFETCH(FeedServer::Handler, handler);
    const FeedServer server(handler);
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(!fetch(server.url(), 60s).has_value());
    QVERIFY2(elapsed.elapsed() < 30'000, "the size did not end it, the time did");
}

void tst_UpdateService::failsWhenTheBodyIsCutOff_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<Failure>("failure");
    QTest::newRow("before its length") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + feed())
                                       << Failure::unreachable;
    QTest::newRow("of unknown length") << QByteArray("HTTP/1.1 200 OK\r\n\r\n" + feed().chopped(10))
                                       << Failure::malformed;
    QTest::newRow("nothing at all") << QByteArray() << Failure::unreachable;
    QTest::newRow("no HTTP") << QByteArray("220 mail.example.org ESMTP\r\n\r\n") << Failure::unreachable;
    QTest::newRow("in the head") << QByteArray("HTTP/1.1 200 O") << Failure::unreachable;
}

void tst_UpdateService::failsWhenTheBodyIsCutOff()
{
    QFETCH(QByteArray, raw);
    const FeedServer server([&](QTcpSocket &socket, const QByteArray &) {
        socket.write(raw);
        socket.disconnectFromHost();
    });
    QTEST(fetch(server.url(), 5s).error(), "failure");
}

void tst_UpdateService::followsThreeRedirects_data()
{
    QTest::addColumn<QByteArray>("status");
    for (const char *status :
         {"301 Moved Permanently", "302 Found", "303 See Other", "307 Temporary Redirect", "308 Permanent Redirect"})
        QTest::newRow(status) << QByteArray(status);
}

void tst_UpdateService::followsThreeRedirects()
{
    QFETCH(QByteArray, status);
    const FeedServer *self = nullptr;
    const FeedServer server([&](QTcpSocket &socket, const QByteArray &path) {
        if (path == "/feed")
            FeedServer::redirect(socket, "/one", status);
        else if (path == "/one")
            FeedServer::redirect(socket, "sub/two?x=1", status);
        else if (path == "/sub/two?x=1")
            FeedServer::redirect(socket, self->url(u"/three"_s).toEncoded(), status);
        else
            FeedServer::answer(socket, path == "/three" ? "200 OK" : "404 Not Found", feed());
    });
    self = &server;
    QVERIFY(fetch(server.url()).has_value());
    QCOMPARE(server.requests().size(), 4);
}

void tst_UpdateService::refusesAFourthRedirectAndLoops()
{
    const FeedServer chain([](QTcpSocket &socket, const QByteArray &path) {
        if (path == "/feedxxxx")
            FeedServer::answer(socket, "200 OK", feed());
        else
            FeedServer::redirect(socket, path + 'x');
    });
    QVERIFY(!fetch(chain.url()).has_value());
    QCOMPARE(chain.requests().size(), 4);

    const FeedServer loop([](QTcpSocket &socket, const QByteArray &path) { FeedServer::redirect(socket, path); });
    QVERIFY(!fetch(loop.url()).has_value());
    QCOMPARE(loop.requests().size(), 4);

    const FeedServer nowhere(
        [](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "302 Found", {}); });
    QCOMPARE(fetch(nowhere.url()).error(), Failure::badStatus);
}

void tst_UpdateService::followsNoRedirectThatLeavesThisMachineInTheClear_data()
{
    QTest::addColumn<QByteArray>("target");
    // Addresses for documentation: nobody is there.
    for (const char *target : {"http://192.0.2.1/feed", "http://example.invalid/feed", "//192.0.2.1/feed",
                               "ftp://127.0.0.1/feed", "file:///etc/hostname", "data:application/json,{}"})
        QTest::newRow(target) << QByteArray(target);
}

void tst_UpdateService::followsNoRedirectThatLeavesThisMachineInTheClear()
{
    QFETCH(QByteArray, target);
    const FeedServer server([&](QTcpSocket &socket, const QByteArray &) { FeedServer::redirect(socket, target); });
    QCOMPARE(fetch(server.url()).error(), Failure::badAddress);
    QCOMPARE(server.requests().size(), 1);
}

void tst_UpdateService::fetchesOverTlsAndFollowsNoRedirectDownwards()
{
    const TestCertificate certificate;
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.setCaCertificates({certificate.certificate()});
    QSslConfiguration::setDefaultConfiguration(trusting);
    const FeedServer clear(
        [](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "200 OK", feed()); });
    const FeedServer secure(certificate.serverConfiguration(), [&](QTcpSocket &socket, const QByteArray &path) {
        if (path == "/down")
            FeedServer::redirect(socket, clear.url().toEncoded());
        else
            FeedServer::answer(socket, "200 OK", feed());
    });
    const FeedServer up(
        [&](QTcpSocket &socket, const QByteArray &) { FeedServer::redirect(socket, secure.url().toEncoded()); });
    QVERIFY(fetch(secure.url()).has_value());
    QVERIFY(fetch(up.url()).has_value());
    QCOMPARE(fetch(secure.url(u"/down"_s)).error(), Failure::badAddress);
    QVERIFY(clear.requests().isEmpty());
}

void tst_UpdateService::trustsNoUnknownCertificate()
{
    const TestCertificate certificate;
    const FeedServer secure(certificate.serverConfiguration(), [](QTcpSocket &socket, const QByteArray &) {
        FeedServer::answer(socket, "200 OK", feed());
    });
    QCOMPARE(fetch(secure.url()).error(), Failure::unreachable);
    QVERIFY(secure.requests().isEmpty());
}

void tst_UpdateService::sendsNothingForThisMachineThroughAProxy()
{
    const FeedServer proxy(
        [](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "200 OK", feed()); });
    const FeedServer server([](QTcpSocket &socket, const QByteArray &) { FeedServer::answer(socket, "404 No", {}); });
    const QUrl address = proxy.url();
    const QNetworkProxy usual = QNetworkProxy::applicationProxy();
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, address.host(), static_cast<quint16>(address.port())));
    const auto answer = fetch(server.url());
    QNetworkProxy::setApplicationProxy(usual);
    QCOMPARE(answer.error(), Failure::badStatus);
    QVERIFY(proxy.requests().isEmpty());
}

void tst_UpdateService::servesTwoFetchesAtOnce()
{
    const FeedServer server([](QTcpSocket &socket, const QByteArray &path) {
        FeedServer::answer(socket, "200 OK", feed("latestVersion", '"' + path + '"'));
    });
    auto first = UpdateService::fetchAppcast(server.url(u"/1"_s), UpdateService::kTimeout);
    auto second = UpdateService::fetchAppcast(server.url(u"/2"_s), UpdateService::kTimeout);
    QCOMPARE(QCoro::waitFor(second)->latestVersion, u"/2"_s);
    QCOMPARE(QCoro::waitFor(first)->latestVersion, u"/1"_s);
}

QTEST_GUILESS_MAIN(tst_UpdateService)
#include "tst_UpdateService.moc"
