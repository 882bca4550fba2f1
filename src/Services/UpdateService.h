// SPDX-License-Identifier: MIT
#pragma once

#include "Models/UpdateInfo.h"

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QString>
#include <QUrl>

#include <chrono>
#include <expected>
#include <optional>

/// Fetches and reads the update feed. Main thread.
namespace UpdateService {

inline constexpr auto kTimeout = std::chrono::seconds{8};
inline constexpr qint64 kMaxBytes = 1'048'576;
inline constexpr int kMaxRedirects = 3;

enum class Failure { badAddress, unreachable, badStatus, malformed };

/// The feed's address: the build's own, or BRISKO_APPCAST_URL where it may be used.
[[nodiscard]] std::expected<QUrl, QString> appcastURL();
/// Whether a feed may be fetched from here: `https:`, or `http:` to a loopback address.
[[nodiscard]] bool isAllowed(const QUrl &address);
/// Whether a feed at `from` may send us on to `to`: never to a lower scheme, never off this machine without https.
[[nodiscard]] bool mayRedirect(const QUrl &from, const QUrl &to);

/// Fetches the feed past every cache. Whatever goes wrong is a failure: no answer within the time, a status other
/// than 200, more than 1 MiB, more than 3 redirects or one to a lower scheme, malformed JSON.
QCoro::Task<std::expected<UpdateInfo, Failure>> fetchAppcast(QUrl address, std::chrono::milliseconds timeout);

/// Reads the feed's body; absent when a required key is missing, a type is off or the download is not `https:`.
[[nodiscard]] std::optional<UpdateInfo> decode(const QByteArray &json);

/// The running version.
[[nodiscard]] QString currentVersion();

/// Whether version `a` is newer than `b`: dotted numbers of any size, missing and odd pieces counting as 0.
[[nodiscard]] bool isVersion(const QString &a, const QString &b);

/// The release notes for the interface language: its full identifier, its language, "en", else the first.
[[nodiscard]] std::optional<QString> localizedReleaseNotes(const UpdateInfo &info);

} // namespace UpdateService
