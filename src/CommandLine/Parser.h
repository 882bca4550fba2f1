// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Invocation.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <expected>
#include <optional>

namespace CommandLine {

/// What is wrong with a command line, in one line of English without control characters.
struct UsageError {
    QString message;
    friend bool operator==(const UsageError &, const UsageError &) = default;
};

/// Understands the arguments after the program's name, as bytes. Looks at nothing but them.
[[nodiscard]] std::expected<Request, UsageError> parse(const QList<QByteArray> &arguments);

/// A whole number of bytes, or one with K, M, G or T in either case (powers of 1024); absent for anything else and for
/// what 64 bits do not hold.
[[nodiscard]] std::optional<qint64> parseSize(QByteArrayView text);

} // namespace CommandLine
