// SPDX-License-Identifier: MIT
#include "CommandLine/ProgressLine.h"

#include "CommandLine/Printer.h"

#include <algorithm>
#include <chrono>

namespace CommandLine {
namespace {

// People do not read faster, and a terminal at the far end of a slow line does not draw faster.
constexpr std::chrono::milliseconds kBetweenTexts{50};

} // namespace

ProgressLine::ProgressLine(Terminal *terminal, bool everyText)
    : m_terminal(terminal)
    , m_everyText(everyText)
    , m_overwrites(!everyText && terminal->isTerminal(Stream::error))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kBetweenTexts);
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] {
        if (!m_next.isEmpty())
            draw(std::exchange(m_next, QString()));
    });
}

ProgressLine::~ProgressLine()
{
    wipe();
}

void ProgressLine::show(const QString &text)
{
    if (text.isEmpty()) {
        wipe();
        return;
    }
    const QString line = escaped(QStringView(text));
    if (m_everyText) {
        m_terminal->write(Stream::error, line.toUtf8() + '\n');
        return;
    }
    if (!m_overwrites)
        return;
    if (m_pause.isActive())
        m_next = line;
    else
        draw(line);
}

void ProgressLine::draw(const QString &line)
{
    m_pause.start();
    // One column short of the screen: some terminals go to the next line when the last column is written.
    const QString shown = fitted(line, std::max(1, m_terminal->columns() - 1));
    const int columns = columnsOf(shown);
    // Blanks wipe what the text before leaves over; no terminal is too simple for them.
    m_terminal->write(Stream::error, '\r' + shown.toUtf8() + QByteArray(std::max(0, m_shown - columns), ' '));
    m_shown = std::max(columns, m_shown);
}

void ProgressLine::wipe()
{
    m_next.clear();
    if (m_shown > 0)
        m_terminal->write(Stream::error, '\r' + QByteArray(m_shown, ' ') + '\r');
    m_shown = 0;
}

} // namespace CommandLine
