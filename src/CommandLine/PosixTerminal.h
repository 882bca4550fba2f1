// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Terminal.h"

namespace CommandLine {

/// The three standard streams of this process.
class PosixTerminal final : public Terminal
{
public:
    /// Makes sure that the three descriptors are taken: a file opened later must never become standard output.
    PosixTerminal();

    /// The descriptor that becomes readable when a question is to be given up.
    void setWakeDescriptor(int descriptor) { m_wake = descriptor; }

    [[nodiscard]] bool canAsk() const override;
    [[nodiscard]] bool isTerminal(Stream stream) const override;
    [[nodiscard]] bool wantsColours(Stream stream) const override;
    [[nodiscard]] int columns() const override;
    void write(Stream stream, QByteArrayView bytes) override;
    [[nodiscard]] std::optional<QByteArray> readLine() override;
    [[nodiscard]] std::error_code outputError() const override { return m_outputError; }

private:
    int m_wake = -1;
    std::error_code m_outputError;
    bool m_errorStreamFailed = false;
};

} // namespace CommandLine
