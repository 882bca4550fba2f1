// SPDX-License-Identifier: MIT
#include "CommandLine/Printer.h"

#include <unicode/uchar.h>

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

constexpr qsizetype kFlushAt = 65'536; // bytes

/// What a terminal would obey instead of showing, and what would make a name read as another one.
bool mustEscape(char16_t unit)
{
    return unit < 0x20 || (unit >= 0x7f && unit < 0xa0) // control characters
           || (unit >= 0x200e && unit <= 0x200f)        // direction marks
           || (unit >= 0x2028 && unit <= 0x202e)        // line separators, direction overrides
           || (unit >= 0x2066 && unit <= 0x2069);       // direction isolates
}

QString numbered(char16_t unit)
{
    return unit < 0x100 ? u"\\x%1"_s.arg(static_cast<uint>(unit), 2, 16, QLatin1Char('0'))
                        : u"\\u%1"_s.arg(static_cast<uint>(unit), 4, 16, QLatin1Char('0'));
}

int columnsOf(char32_t character)
{
    switch (u_charType(static_cast<UChar32>(character))) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
        return 0;
    default:
        break;
    }
    const int width = u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

QByteArrayView startOf(Printer::Look look)
{
    switch (look) {
    case Printer::Look::strong:
        return "\x1b[1m";
    case Printer::Look::dim:
        return "\x1b[2m";
    case Printer::Look::good:
        return "\x1b[32m";
    case Printer::Look::bad:
        return "\x1b[31m";
    case Printer::Look::plain:
        break;
    }
    return {};
}

} // namespace

QString escaped(QStringView text)
{
    if (std::ranges::none_of(text, [](QChar unit) { return mustEscape(unit.unicode()); }))
        return text.toString();
    QString shown;
    for (const QChar unit : text) {
        if (mustEscape(unit.unicode()))
            shown += numbered(unit.unicode());
        else
            shown += unit;
    }
    return shown;
}

QString escaped(QByteArrayView bytes)
{
    QString shown;
    while (!bytes.isEmpty()) {
        // The longest piece that is UTF-8, then the byte after it by its number.
        qsizetype sound = bytes.size();
        if (!bytes.isValidUtf8()) {
            sound = 0;
            while (true) {
                qsizetype next = sound + 1;
                while (next < bytes.size() && next < sound + 4 && !bytes.sliced(sound, next - sound).isValidUtf8())
                    ++next;
                if (next > bytes.size() || !bytes.sliced(sound, next - sound).isValidUtf8())
                    break;
                sound = next;
            }
        }
        shown += escaped(QStringView(QString::fromUtf8(bytes.first(sound))));
        if (sound == bytes.size())
            break;
        shown += numbered(static_cast<uchar>(bytes.at(sound)));
        bytes = bytes.sliced(sound + 1);
    }
    return shown;
}

int columnsOf(QStringView text)
{
    if (std::ranges::all_of(text, [](QChar unit) { return unit.unicode() < 0x7f; }))
        return static_cast<int>(text.size());
    int columns = 0;
    for (const uint character : text.toUcs4())
        columns += columnsOf(static_cast<char32_t>(character));
    return columns;
}

QString fitted(const QString &text, int columns)
{
    if (columnsOf(text) <= columns)
        return text;
    QString kept;
    int taken = 1; // the ellipsis
    for (const uint character : text.toUcs4()) {
        taken += columnsOf(static_cast<char32_t>(character));
        if (taken > columns)
            break;
        const auto codePoint = static_cast<char32_t>(character);
        kept += QString::fromUcs4(&codePoint, 1);
    }
    return kept + u'…';
}

Printer::Printer(Terminal *terminal, Stream stream)
    : m_terminal(terminal)
    , m_stream(stream)
    , m_colours(terminal->wantsColours(stream))
{
}

Printer::~Printer()
{
    flush();
}

Printer &Printer::text(QStringView text, Look look)
{
    const bool painted = m_colours && look != Look::plain;
    if (painted)
        m_buffer += startOf(look);
    m_buffer += escaped(text).toUtf8();
    if (painted)
        m_buffer += "\x1b[0m";
    return *this;
}

Printer &Printer::padded(QStringView text, int columns, Side blanks, Look look)
{
    const QString shown = escaped(text);
    const QByteArray space(std::max(0, columns - columnsOf(shown)), ' ');
    if (blanks == Side::left)
        m_buffer += space;
    this->text(shown, look);
    if (blanks == Side::right)
        m_buffer += space;
    return *this;
}

Printer &Printer::end()
{
    m_buffer += '\n';
    if (m_buffer.size() >= kFlushAt)
        flush();
    return *this;
}

void Printer::flush()
{
    if (!m_buffer.isEmpty())
        m_terminal->write(m_stream, m_buffer);
    m_buffer.clear();
}

} // namespace CommandLine
