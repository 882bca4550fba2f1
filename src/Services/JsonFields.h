// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <nlohmann/json.hpp>

#include <optional>

/// Reads JSON that came from outside, field by field and strictly. Unlike Qt's own reader, this one keeps the order of
/// an object's keys. Any thread.
namespace JsonFields {

using Json = nlohmann::ordered_json;

/// The document; absent when it is no JSON, or not UTF-8.
[[nodiscard]] std::optional<Json> parse(const QByteArray &text);

/// Whether there is something under `key`; `null` is nothing.
[[nodiscard]] bool has(const Json &object, const char *key);

// The value under `key`; absent when there is none, when it is of another type, or when `object` is no object.
[[nodiscard]] std::optional<QString> text(const Json &object, const char *key);
[[nodiscard]] std::optional<double> number(const Json &object, const char *key);
[[nodiscard]] std::optional<bool> boolean(const Json &object, const char *key);
/// Exact to the last of 64 bits; absent for a number with a fraction, or beyond that range.
[[nodiscard]] std::optional<qint64> integer(const Json &object, const char *key);

} // namespace JsonFields
