// SPDX-License-Identifier: MIT
#include "CommandLine/JsonWriter.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace CommandLine {
namespace {

constexpr qsizetype kFlushAt = 65'536; // bytes

bool isPlain(QChar unit)
{
    const char16_t code = unit.unicode();
    return code >= 0x20 && code < 0x7f && code != '"' && code != '\\';
}

void appendEscape(QByteArray &buffer, char16_t unit)
{
    buffer += "\\u" + QByteArray::number(static_cast<uint>(unit), 16).rightJustified(4, '0');
}

void appendPadded(QByteArray &buffer, int number, int digits)
{
    const qsizetype at = buffer.size();
    buffer.resize(at + digits);
    for (char *digit = buffer.data() + at + digits; digits > 0; --digits, number /= 10)
        *--digit = static_cast<char>('0' + number % 10);
}

} // namespace

JsonWriter::JsonWriter(Sink sink)
    : m_sink(std::move(sink))
{
    m_buffer.reserve(kFlushAt + 4'096);
}

JsonWriter::~JsonWriter()
{
    flush();
}

void JsonWriter::open(char bracket)
{
    separate();
    m_buffer += bracket;
    m_first = true;
}

void JsonWriter::close(char bracket)
{
    m_buffer += bracket;
    endValue();
}

void JsonWriter::separate()
{
    if (!m_first)
        m_buffer += ',';
}

void JsonWriter::endValue()
{
    m_first = false;
    if (m_buffer.size() >= kFlushAt)
        flush();
}

void JsonWriter::key(QByteArrayView name)
{
    separate();
    m_buffer += '"';
    m_buffer += name;
    m_buffer += "\":";
    m_first = true; // no comma between a key and its value
}

void JsonWriter::textKey(QStringView name)
{
    separate();
    appendText(name);
    m_buffer += ':';
    m_first = true;
}

void JsonWriter::text(QStringView value)
{
    separate();
    appendText(value);
    endValue();
}

void JsonWriter::appendText(QStringView value)
{
    m_buffer += '"';
    if (std::ranges::all_of(value, isPlain)) {
        const qsizetype at = m_buffer.size();
        m_buffer.resize(at + value.size());
        std::ranges::transform(value, m_buffer.data() + at, &QChar::toLatin1);
    } else {
        qsizetype from = 0;
        for (qsizetype i = 0; i < value.size(); ++i) {
            const char16_t unit = value.at(i).unicode();
            // Control characters above ASCII need no escape in JSON, but a terminal might obey them.
            const bool escape = unit < 0x20 || (unit >= 0x7f && unit < 0xa0);
            if (!escape && unit != '"' && unit != '\\')
                continue;
            m_buffer += value.sliced(from, i - from).toUtf8();
            from = i + 1;
            if (escape)
                appendEscape(m_buffer, unit);
            else
                (m_buffer += '\\') += static_cast<char>(unit);
        }
        m_buffer += value.sliced(from).toUtf8();
    }
    m_buffer += '"';
}

void JsonWriter::plainText(QByteArrayView ascii)
{
    separate();
    m_buffer += '"';
    m_buffer += ascii;
    m_buffer += '"';
    endValue();
}

void JsonWriter::number(qint64 value)
{
    separate();
    std::array<char, 24> digits; // room for any 64 bits
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    m_buffer.append(digits.data(), end - digits.data());
    endValue();
}

void JsonWriter::number(double value)
{
    if (!std::isfinite(value)) {
        null();
        return;
    }
    separate();
    m_buffer += QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    endValue();
}

void JsonWriter::boolean(bool value)
{
    separate();
    m_buffer += value ? "true" : "false";
    endValue();
}

void JsonWriter::null()
{
    separate();
    m_buffer += "null";
    endValue();
}

void JsonWriter::date(const QDateTime &value)
{
    const QDateTime utc = value.toUTC();
    // The form has room for four digits of the year, no more.
    if (!utc.isValid() || utc.date().year() < 0 || utc.date().year() > 9999) {
        null();
        return;
    }
    const QDate day = utc.date();
    const QTime time = utc.time();
    separate();
    m_buffer += '"';
    appendPadded(m_buffer, day.year(), 4);
    for (const auto &[mark, part] :
         {std::pair{'-', day.month()}, std::pair{'-', day.day()}, std::pair{'T', time.hour()},
          std::pair{':', time.minute()}, std::pair{':', time.second()}}) {
        m_buffer += mark;
        appendPadded(m_buffer, part, 2);
    }
    if (time.msec() != 0) {
        m_buffer += '.';
        appendPadded(m_buffer, time.msec(), 3);
        while (m_buffer.endsWith('0'))
            m_buffer.chop(1);
    }
    m_buffer += "Z\"";
    endValue();
}

void JsonWriter::flush()
{
    if (!m_buffer.isEmpty())
        m_sink(m_buffer);
    m_buffer.resize(0); // keeps the room
}

} // namespace CommandLine
