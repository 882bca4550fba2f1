// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Terminal.h"

#include <QString>
#include <QTimer>

namespace CommandLine {

/// Shows what a scan is doing on standard error: on a terminal one line that overwrites itself, when every text is
/// wanted a line for each, else nothing. Main thread.
class ProgressLine
{
public:
    ProgressLine(Terminal *terminal, bool everyText);
    ~ProgressLine();
    Q_DISABLE_COPY_MOVE(ProgressLine)

    /// Shows a text; an empty one wipes the line.
    void show(const QString &text);
    /// Leaves the line empty, the cursor at its beginning.
    void wipe();

private:
    void draw(const QString &line);

    Terminal *m_terminal;
    bool m_everyText;
    bool m_overwrites;
    int m_shown = 0; // columns that are covered now
    QString m_next;  // what waits for the pause between two texts to end
    QTimer m_pause;
};

} // namespace CommandLine
