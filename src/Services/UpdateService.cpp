// SPDX-License-Identifier: MIT
#include "Services/UpdateService.h"

#include "Services/JsonFields.h"
#include "Support/LanguageManager.h"

#include <QCoro/QCoroNetworkReply>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QTimer>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;
using JsonFields::Json;

namespace {

constexpr auto kHttps = "https"_L1;
constexpr auto kHttp = "http"_L1;

bool isSecure(const QUrl &address)
{
    return address.isValid() && address.scheme() == kHttps && !address.host().isEmpty();
}

bool isLoopback(const QUrl &address)
{
    return address.host() == "localhost"_L1 || QHostAddress(address.host()).isLoopback();
}

/// One step of an exchange: the body of an answer of 200, or where to ask next.
struct Answer {
    QByteArray body;
    QUrl redirect;
};

QNetworkRequest requestFor(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setRawHeader("User-Agent", "Brisko/" + UpdateService::currentVersion().toUtf8());
    // A compressed body of a few kilobytes could unfold to any size.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

/// Gathers what comes, and ends the exchange as soon as it is more than a feed may hold.
std::shared_ptr<const QByteArray> bodyOf(QNetworkReply *reply)
{
    auto body = std::make_shared<QByteArray>();
    QObject::connect(reply, &QIODevice::readyRead, reply, [reply, body] {
        body->append(reply->readAll());
        if (body->size() > UpdateService::kMaxBytes)
            reply->abort();
    });
    return body;
}

std::expected<Answer, UpdateService::Failure> answerOf(const QNetworkReply &reply, const QByteArray &body)
{
    using enum UpdateService::Failure;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    constexpr std::array redirects{301, 302, 303, 307, 308};
    if (std::ranges::find(redirects, status) != redirects.end() && reply.error() == QNetworkReply::NoError) {
        const QUrl target = reply.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (!target.isValid() || target.isEmpty())
            return std::unexpected(badStatus);
        return Answer{.body = {}, .redirect = reply.url().resolved(target)};
    }
    if (status != 0 && status != 200)
        return std::unexpected(badStatus);
    if (reply.error() != QNetworkReply::NoError || status == 0)
        return std::unexpected(unreachable);
    return Answer{.body = body, .redirect = {}};
}

/// Whether `key` is absent, or `value` was read from it: an optional field of another type spoils the feed.
template <typename T>
bool isAbsentOrRead(const Json &json, const char *key, const std::optional<T> &value)
{
    return value.has_value() || !JsonFields::has(json, key);
}

std::optional<QDateTime> dateOf(const QString &text)
{
    static const QRegularExpression form(u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d(Z|[+-]\\d\\d:\\d\\d)$"_s);
    if (!form.match(text).hasMatch())
        return std::nullopt;
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    return date.isValid() ? std::optional(date.toUTC()) : std::nullopt;
}

std::optional<QUrl> downloadOf(const QString &text)
{
    const QUrl address(text, QUrl::StrictMode);
    return isSecure(address) ? std::optional(address) : std::nullopt;
}

std::optional<QList<std::pair<QString, QString>>> notesOf(const Json &json)
{
    const auto found = json.find("releaseNotes");
    if (found == json.end() || !found->is_object())
        return std::nullopt;
    QList<std::pair<QString, QString>> notes;
    for (const auto &[language, note] : found->items()) {
        if (!note.is_string())
            return std::nullopt;
        notes.append({QString::fromStdString(language), QString::fromStdString(note.get_ref<const std::string &>())});
    }
    return notes;
}

/// A piece of a version without its leading noughts; empty, which is 0, when it is not all digits.
QStringView significantDigits(QStringView piece)
{
    if (!std::ranges::all_of(piece, [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return {};
    while (piece.startsWith(u'0'))
        piece = piece.sliced(1);
    return piece;
}

/// Compares by length first, so that a number of any size keeps its worth.
int compareDigits(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

} // namespace

std::expected<QUrl, QString> UpdateService::appcastURL()
{
    const QString asked = qEnvironmentVariable("BRISKO_APPCAST_URL");
    QUrl address(asked.isEmpty() ? QStringLiteral(BRISKO_DEFAULT_APPCAST_URL) : asked, QUrl::StrictMode);
    if (isAllowed(address))
        return address;
    return std::unexpected(u"BRISKO_APPCAST_URL: only an https address, or an http address of this machine itself "
                           "(localhost), can be used"_s);
}

bool UpdateService::isAllowed(const QUrl &address)
{
    return isSecure(address) || (address.isValid() && address.scheme() == kHttp && isLoopback(address));
}

bool UpdateService::mayRedirect(const QUrl &from, const QUrl &to)
{
    return isAllowed(to) && (to.scheme() == kHttps || from.scheme() == kHttp);
}

QCoro::Task<std::expected<UpdateInfo, UpdateService::Failure>>
UpdateService::fetchAppcast(QUrl address, std::chrono::milliseconds timeout)
{
    if (!isAllowed(address))
        co_return std::unexpected(Failure::badAddress);
    // The end of a reply is told from inside it, where neither it nor what owns it may be deleted at once.
    const std::unique_ptr<QNetworkAccessManager, QScopedPointerDeleteLater> network(new QNetworkAccessManager);
    // One limit for the whole exchange: a server that sends a byte now and then is none.
    auto *deadline = new QTimer(network.get());
    deadline->setSingleShot(true);
    deadline->start(timeout);
    for (int redirects = 0; redirects <= kMaxRedirects; ++redirects) {
        QNetworkReply *reply = network->get(requestFor(address));
        const std::shared_ptr<const QByteArray> body = bodyOf(reply);
        QObject::connect(deadline, &QTimer::timeout, reply, &QNetworkReply::abort);
        co_await reply;
        const std::expected<Answer, Failure> answer = answerOf(*reply, *body);
        if (!answer)
            co_return std::unexpected(answer.error());
        if (answer->redirect.isEmpty()) {
            std::optional<UpdateInfo> info = decode(answer->body);
            if (!info)
                co_return std::unexpected(Failure::malformed);
            co_return *std::move(info);
        }
        if (!mayRedirect(address, answer->redirect))
            co_return std::unexpected(Failure::badAddress);
        address = answer->redirect;
    }
    co_return std::unexpected(Failure::unreachable);
}

std::optional<UpdateInfo> UpdateService::decode(const QByteArray &json)
{
    const std::optional<Json> feed = JsonFields::parse(json);
    if (!feed || !feed->is_object())
        return std::nullopt;
    const auto version = JsonFields::text(*feed, "latestVersion");
    const auto build = JsonFields::integer(*feed, "latestBuildNumber");
    const auto date = JsonFields::text(*feed, "releaseDate").and_then(dateOf);
    const auto system = JsonFields::text(*feed, "minimumSystemVersion");
    const auto download = JsonFields::text(*feed, "downloadURL").and_then(downloadOf);
    const auto size = JsonFields::integer(*feed, "fileSizeBytes");
    const auto sha256 = JsonFields::text(*feed, "sha256");
    const auto notes = notesOf(*feed);
    const auto critical = JsonFields::boolean(*feed, "criticalUpdate");
    const bool optionalsAreSound =
        isAbsentOrRead(*feed, "latestBuildNumber", build) && isAbsentOrRead(*feed, "releaseDate", date) &&
        isAbsentOrRead(*feed, "minimumSystemVersion", system) && isAbsentOrRead(*feed, "fileSizeBytes", size) &&
        isAbsentOrRead(*feed, "sha256", sha256);
    if (!version || !download || !notes || !critical || !optionalsAreSound)
        return std::nullopt;
    return UpdateInfo{.latestVersion = *version,
                      .latestBuildNumber = build,
                      .releaseDate = date,
                      .minimumSystemVersion = system,
                      .downloadURL = *download,
                      .fileSizeBytes = size,
                      .sha256 = sha256,
                      .releaseNotes = *notes,
                      .criticalUpdate = *critical};
}

QString UpdateService::currentVersion()
{
    return QStringLiteral(BRISKO_VERSION);
}

bool UpdateService::isVersion(const QString &a, const QString &b)
{
    const QList<QStringView> left = QStringView(a).split(u'.');
    const QList<QStringView> right = QStringView(b).split(u'.');
    for (qsizetype at = 0; at < std::max(left.size(), right.size()); ++at) {
        const int order = compareDigits(significantDigits(left.value(at)), significantDigits(right.value(at)));
        if (order != 0)
            return order > 0;
    }
    return false;
}

std::optional<QString> UpdateService::localizedReleaseNotes(const UpdateInfo &info)
{
    const QString identifier = LanguageManager::localeIdentifier().replace(u'_', u'-');
    const QStringList wanted{identifier, identifier.section(u'-', 0, 0), u"en"_s};
    for (const QString &language : wanted) {
        const auto found = std::ranges::find(info.releaseNotes, language, &std::pair<QString, QString>::first);
        if (found != info.releaseNotes.end())
            return found->second;
    }
    return info.releaseNotes.isEmpty() ? std::nullopt : std::optional(info.releaseNotes.first().second);
}
