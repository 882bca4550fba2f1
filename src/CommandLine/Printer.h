// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Terminal.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace CommandLine {

/// Text as a terminal may show it: what would steer the terminal, or turn the text round, appears as its number.
[[nodiscard]] QString escaped(QStringView text);
/// The same for bytes as typed; those that are not UTF-8 appear by their number too.
[[nodiscard]] QString escaped(QByteArrayView bytes);
/// How many columns a terminal gives a text.
[[nodiscard]] int columnsOf(QStringView text);
/// The text, cut to at most so many columns with an ellipsis at its end.
[[nodiscard]] QString fitted(const QString &text, int columns);

/// Writes lines for people to one stream, in large pieces. Every text is escaped.
class Printer
{
public:
    enum class Look : quint8 { plain, strong, dim, good, bad };
    enum class Side : quint8 { left, right };

    Printer(Terminal *terminal, Stream stream);
    ~Printer();
    Q_DISABLE_COPY_MOVE(Printer)

    Printer &text(QStringView text, Look look = Look::plain);
    /// The text with blanks on one of its sides, so that it takes at least `columns`.
    Printer &padded(QStringView text, int columns, Side blanks, Look look = Look::plain);
    /// Ends the line.
    Printer &end();
    void flush();

private:
    Terminal *m_terminal;
    Stream m_stream;
    bool m_colours;
    QByteArray m_buffer;
};

} // namespace CommandLine
