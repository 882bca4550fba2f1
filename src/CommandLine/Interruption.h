// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Descriptor.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace CommandLine {

/// Whether the user, or the system, asked the program to end. One such wish is like another: nothing is ever cut off in
/// the middle. Main thread.
class Interruption final : public QObject
{
    Q_OBJECT

public:
    explicit Interruption(QObject *parent = nullptr);
    ~Interruption() override;

    /// Takes over SIGINT, SIGTERM and SIGHUP, but for those that the process was started to ignore. For one object of
    /// the process, once; it needs an application object.
    void watchSignals();
    /// Readable from the first signal on; -1 while none is watched.
    [[nodiscard]] int wakeDescriptor() const { return m_readEnd.get(); }
    /// True from the first wish on.
    [[nodiscard]] bool happened() const;
    /// Does what a signal does.
    void interrupt();

Q_SIGNALS:
    /// Sent once.
    void interrupted();

private:
    bool m_sent = false;
    Descriptor m_readEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace CommandLine
