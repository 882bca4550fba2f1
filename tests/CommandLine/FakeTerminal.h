// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Terminal.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <utility>

/// A terminal of the test's own: keeps what is written, answers what it is told to.
class FakeTerminal final : public CommandLine::Terminal
{
public:
    [[nodiscard]] bool canAsk() const override { return answers; }
    [[nodiscard]] bool isTerminal(CommandLine::Stream stream) const override
    {
        return stream == CommandLine::Stream::error && errorIsTerminal;
    }
    [[nodiscard]] bool wantsColours(CommandLine::Stream) const override { return colours; }
    [[nodiscard]] int columns() const override { return width; }
    void write(CommandLine::Stream stream, QByteArrayView bytes) override
    {
        (stream == CommandLine::Stream::output ? output : errors).append(bytes);
        ++writes;
    }
    [[nodiscard]] std::optional<QByteArray> readLine() override
    {
        ++asked;
        if (beforeAnswer)
            beforeAnswer();
        return answer;
    }
    [[nodiscard]] std::error_code outputError() const override { return {}; }

    QByteArray takeOutput() { return std::exchange(output, {}); }

    bool answers = false;
    bool errorIsTerminal = false;
    bool colours = false;
    int width = 80;
    std::optional<QByteArray> answer;
    std::function<void()> beforeAnswer;
    QByteArray output;
    QByteArray errors;
    int asked = 0;
    int writes = 0;
};
