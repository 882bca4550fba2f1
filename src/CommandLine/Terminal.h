// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <system_error>

namespace CommandLine {

enum class Stream : quint8 { output, error };

/// What the program reads from and writes to. Main thread.
class Terminal
{
public:
    virtual ~Terminal() = default;
    /// Whether somebody is there to answer a question.
    [[nodiscard]] virtual bool canAsk() const = 0;
    [[nodiscard]] virtual bool isTerminal(Stream stream) const = 0;
    [[nodiscard]] virtual bool wantsColours(Stream stream) const = 0;
    /// How many columns the screen behind standard error has.
    [[nodiscard]] virtual int columns() const = 0;
    /// Writes all of it. After the first failure on a stream nothing more is written to that one.
    virtual void write(Stream stream, QByteArrayView bytes) = 0;
    /// One line, without its end; absent when there is none, or when an interruption came first.
    [[nodiscard]] virtual std::optional<QByteArray> readLine() = 0;
    /// The first failure on standard output; 0 when there was none.
    [[nodiscard]] virtual std::error_code outputError() const = 0;
};

} // namespace CommandLine
