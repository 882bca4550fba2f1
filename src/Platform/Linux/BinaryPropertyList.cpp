// SPDX-License-Identifier: MIT
#include "Platform/Linux/BinaryPropertyList.h"

#include "Platform/Linux/PropertyListLimits.h"

#include <QList>

#include <algorithm>
#include <optional>

namespace {

constexpr QByteArrayView kMagic = "bplist";
constexpr qint64 kHeader = 8; // the magic and two digits of a version
constexpr qint64 kTrailer = 32;

/// The high half of an object's first byte.
enum Type : qint64 {
    integer = 0x1,
    data = 0x4,
    text = 0x5,
    wideText = 0x6,
    narrowText = 0x7,
    array = 0xA,
    dictionary = 0xD
};

/// The objects of a list and what they refer to, with every bound checked.
class Reader
{
public:
    explicit Reader(QByteArrayView content)
        : m_content(content)
    {
        if (content.size() < kHeader + kTrailer)
            return;
        const qint64 trailer = content.size() - kTrailer;
        m_offsetSize = byteAt(trailer + 6);
        m_referenceSize = byteAt(trailer + 7);
        m_count = number(trailer + 8, 8).value_or(0);
        m_top = number(trailer + 16, 8).value_or(m_count);
        m_table = number(trailer + 24, 8).value_or(0);
        m_isSound = m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8 &&
                    m_top < m_count && m_table >= kHeader && m_table <= trailer &&
                    m_count <= (trailer - m_table) / m_offsetSize;
    }

    [[nodiscard]] bool isSound() const { return m_isSound; }
    [[nodiscard]] qint64 count() const { return m_count; }
    [[nodiscard]] qint64 top() const { return m_top; }

    struct Object {
        qint64 type = 0;
        qint64 length = 0; // elements, entries, characters or bytes
        qint64 at = 0;     // where its content begins
        qint64 bytes = 0;  // of content, for texts and data
    };

    /// Absent when the object does not lie inside the file.
    [[nodiscard]] std::optional<Object> object(qint64 index) const
    {
        if (index < 0 || index >= m_count)
            return std::nullopt;
        const std::optional<qint64> at = number(m_table + index * m_offsetSize, m_offsetSize);
        if (!at || *at < kHeader || *at >= m_table)
            return std::nullopt;
        Object result{.type = byteAt(*at) >> 4, .length = byteAt(*at) & 0xF, .at = *at + 1, .bytes = 0};
        if (result.type < data)
            return result;
        if (result.length == 0xF && !readLength(result))
            return std::nullopt;
        if (result.type <= narrowText)
            result.bytes = result.length * (result.type == wideText ? 2 : 1);
        const qint64 references = result.type == dictionary ? result.length * 2
                                  : result.type == array    ? result.length
                                                            : 0;
        if (result.at > m_table || result.bytes > m_table - result.at ||
            references > (m_table - result.at) / m_referenceSize)
            return std::nullopt;
        return result;
    }

    /// What an array or dictionary refers to: for the latter, all keys and then all values.
    [[nodiscard]] QList<qint64> references(const Object &object) const
    {
        QList<qint64> result;
        const qint64 count = object.type == dictionary ? object.length * 2 : object.type == array ? object.length : 0;
        result.reserve(count);
        for (qint64 i = 0; i < count; ++i)
            result.append(number(object.at + i * m_referenceSize, m_referenceSize).value_or(-1));
        return result;
    }

    /// Whether an object can be a key: a text without a NUL character.
    [[nodiscard]] bool isKey(qint64 index) const
    {
        const std::optional<Object> found = object(index);
        if (!found || found->type < text || found->type > narrowText)
            return false;
        const qint64 unit = found->type == wideText ? 2 : 1;
        for (qint64 i = 0; i < found->bytes; i += unit)
            if (byteAt(found->at + i) == 0 && (unit == 1 || byteAt(found->at + i + 1) == 0))
                return false;
        return true;
    }

private:
    [[nodiscard]] qint64 byteAt(qint64 at) const { return static_cast<quint8>(m_content.at(at)); }

    /// A big-endian number; absent when it lies outside or is larger than the file is long.
    [[nodiscard]] std::optional<qint64> number(qint64 at, qint64 bytes) const
    {
        if (at < 0 || at > m_content.size() - bytes)
            return std::nullopt;
        quint64 value = 0;
        for (qint64 i = 0; i < bytes; ++i)
            value = value << 8U | static_cast<quint64>(byteAt(at + i));
        return value <= static_cast<quint64>(m_content.size()) ? std::optional(static_cast<qint64>(value))
                                                               : std::nullopt;
    }

    /// A length beyond 14 follows as an integer of its own.
    [[nodiscard]] bool readLength(Object &object) const
    {
        const qint64 marker = byteAt(object.at); // inside: a trailer follows whatever lies before the table
        const qint64 bytes = 1LL << (marker & 0xF);
        if (marker >> 4 != integer || bytes > 8)
            return false;
        const std::optional<qint64> length = number(object.at + 1, bytes);
        object.length = length.value_or(0);
        object.at += 1 + bytes;
        return length.has_value();
    }

    QByteArrayView m_content;
    qint64 m_offsetSize = 0;
    qint64 m_referenceSize = 0;
    qint64 m_count = 0;
    qint64 m_top = 0;
    qint64 m_table = 0;
    bool m_isSound = false;
};

/// Finds out how large a list is when everything shared is written out, looking at each object once.
class Weighing
{
public:
    explicit Weighing(const Reader &reader)
        : m_reader(reader)
        , m_weights(reader.count())
    {
    }

    /// False for loops, for what leads outside and for what is too deep or too much. Recursion ends at the depth limit.
    [[nodiscard]] bool weigh(qint64 index, qsizetype level)
    {
        const std::optional<Reader::Object> object = m_reader.object(index);
        if (!object || level > PropertyListLimits::kMaxDepth || m_weights.at(index).state == State::open)
            return false;
        if (m_weights.at(index).state == State::done)
            return level + m_weights.at(index).depth - 1 <= PropertyListLimits::kMaxDepth;
        m_weights[index].state = State::open;
        Weight sum{.state = State::done, .depth = 1, .objects = 1, .bytes = object->bytes};
        const QList<qint64> below = m_reader.references(*object);
        for (qsizetype i = 0; i < below.size(); ++i) {
            const bool isKey = object->type == dictionary && i < object->length;
            if ((isKey && !m_reader.isKey(below.at(i))) || !weigh(below.at(i), level + 1) ||
                !add(sum, m_weights.at(below.at(i))))
                return false;
        }
        m_weights[index] = sum;
        return true;
    }

private:
    enum class State : quint8 { unseen, open, done };
    struct Weight {
        State state = State::unseen;
        qsizetype depth = 0; // levels from here down
        qint64 objects = 0;
        qint64 bytes = 0;
    };

    /// No sum here comes near an overflow, since none grows once it is above its limit.
    [[nodiscard]] static bool add(Weight &sum, const Weight &below)
    {
        sum.depth = std::max(sum.depth, below.depth + 1);
        sum.objects += below.objects;
        sum.bytes += below.bytes;
        return sum.objects <= PropertyListLimits::kMaxObjects && sum.bytes <= PropertyListLimits::kMaxUnfolded;
    }

    const Reader &m_reader;
    QList<Weight> m_weights;
};

} // namespace

bool BinaryPropertyList::isOne(QByteArrayView content)
{
    return content.startsWith(kMagic);
}

bool BinaryPropertyList::isHarmless(QByteArrayView content)
{
    const Reader reader(content);
    return reader.isSound() && Weighing(reader).weigh(reader.top(), 1);
}
