// SPDX-License-Identifier: MIT
#include "Platform/Linux/XmlPropertyList.h"

#include "Platform/Linux/PropertyListLimits.h"

#include <QList>

#include <algorithm>
#include <ranges>
#include <utility>

namespace {

enum class TagKind { open, close, empty };

struct Tag {
    TagKind kind = TagKind::open;
    QByteArrayView name;
    qsizetype begin = 0;
    qsizetype end = 0; // just behind its `>`
};

/// Goes from tag to tag; comments, declarations and CDATA are passed over.
class TagReader
{
public:
    explicit TagReader(QByteArrayView text)
        : m_text(text)
    {
    }

    /// Absent at the end of the text, and at what is not understood.
    std::optional<Tag> next()
    {
        while ((m_at = m_text.indexOf('<', m_at)) >= 0) {
            const QByteArrayView rest = m_text.sliced(m_at);
            if (rest.startsWith("<!--")) {
                pass("-->", 4);
            } else if (rest.startsWith("<![CDATA[")) {
                pass("]]>", 9);
            } else if (rest.startsWith("<?")) {
                pass("?>", 2);
            } else if (rest.startsWith("<!")) {
                const qsizetype from = m_at;
                pass(">", 2);
                // A declaration's own part may hold anything, and is read differently by different readers.
                if (!m_isBroken && m_text.sliced(from, m_at - from).contains('['))
                    m_isBroken = true;
            } else {
                return tag();
            }
            if (m_isBroken)
                return std::nullopt;
        }
        return std::nullopt;
    }
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

private:
    void pass(QByteArrayView terminator, qsizetype opening)
    {
        const qsizetype end = m_text.indexOf(terminator, m_at + opening);
        m_isBroken = end < 0;
        m_at = end + terminator.size();
    }

    std::optional<Tag> tag()
    {
        Tag result;
        result.begin = m_at;
        const qsizetype close = m_text.indexOf('>', m_at);
        if (close < 0) {
            m_isBroken = true;
            return std::nullopt;
        }
        m_at = result.end = close + 1;
        QByteArrayView inside = m_text.sliced(result.begin + 1, close - result.begin - 1);
        if (inside.startsWith('/')) {
            result.kind = TagKind::close;
            inside = inside.sliced(1);
        } else if (inside.endsWith('/')) {
            result.kind = TagKind::empty;
            inside = inside.chopped(1);
        }
        inside = inside.trimmed();
        const auto space = std::ranges::find_if(inside, [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
        result.name = inside.first(space - inside.begin());
        // No element but the outermost has attributes; in a quoted one a `>` would not end the tag.
        if (result.name.isEmpty() || (result.name.size() != inside.size() && result.name != "plist")) {
            m_isBroken = true;
            return std::nullopt;
        }
        return result;
    }

    QByteArrayView m_text;
    qsizetype m_at = 0;
    bool m_isBroken = false;
};

/// Whether a text holds a NUL byte, as it is or as a numbered character.
bool holdsNul(QByteArrayView text)
{
    for (qsizetype at = 0; (at = text.indexOf("&#", at)) >= 0;) {
        at += 2;
        if (at < text.size() && (text.at(at) == 'x' || text.at(at) == 'X'))
            ++at;
        while (at < text.size() && text.at(at) == '0')
            ++at;
        if (at < text.size() && text.at(at) == ';')
            return true;
    }
    return text.contains('\0');
}

/// Where the entries of the top dictionary stand.
struct Outline {
    struct Span {
        qsizetype begin = 0;
        qsizetype end = 0;
    };
    QList<Span> values;                // those under the key asked for
    std::optional<qsizetype> firstKey; // where the first entry begins
    qsizetype lastEnd = 0;             // where the last one ends
    bool isComplete = false;
};

Outline outline(QByteArrayView xml, QByteArrayView key)
{
    Outline result;
    TagReader reader(xml);
    qsizetype depth = 0;
    qsizetype top = 0; // the depth of what lies in the top dictionary; 0 before it
    Tag opened;        // the entry that is open in it
    bool isWanted = false;
    while (const std::optional<Tag> tag = reader.next()) {
        if (tag->kind == TagKind::open && ++depth == top)
            opened = *tag;
        if (top == 0 && tag->name == "dict") {
            if (tag->kind != TagKind::open)
                return result;
            top = depth + 1;
            continue;
        }
        const bool isEntry = top != 0 && ((tag->kind == TagKind::close && depth == top) ||
                                          (tag->kind == TagKind::empty && depth == top - 1));
        if (isEntry) {
            const Outline::Span span{.begin = tag->kind == TagKind::empty ? tag->begin : opened.begin, .end = tag->end};
            if (!result.firstKey)
                result.firstKey = span.begin;
            result.lastEnd = span.end;
            if (tag->name == "key") {
                isWanted = tag->kind == TagKind::close && xml.sliced(opened.end, tag->begin - opened.end) == key;
            } else if (std::exchange(isWanted, false)) {
                result.values.append(span);
            }
        }
        if (tag->kind == TagKind::close && --depth == top - 2 && top != 0) {
            result.isComplete = true;
            return result;
        }
    }
    return result;
}

/// The line break and the blanks before an entry; nothing when it does not begin its line.
QByteArray indentBefore(QByteArrayView xml, qsizetype at)
{
    qsizetype from = at;
    while (from > 0 && (xml.at(from - 1) == ' ' || xml.at(from - 1) == '\t'))
        --from;
    if (from == 0 || xml.at(from - 1) != '\n')
        return {};
    from -= from > 1 && xml.at(from - 2) == '\r' ? 2 : 1;
    return xml.sliced(from, at - from).toByteArray();
}

} // namespace

bool XmlPropertyList::isHarmless(QByteArrayView xml)
{
    if (holdsNul(xml))
        return false;
    TagReader reader(xml);
    qsizetype depth = 0;
    qint64 objects = 0;
    while (const std::optional<Tag> tag = reader.next()) {
        if (tag->kind == TagKind::open && ++depth > PropertyListLimits::kMaxDepth)
            return false;
        if (tag->kind == TagKind::close && --depth < 0)
            return false;
        if (tag->kind != TagKind::close && ++objects > PropertyListLimits::kMaxObjects)
            return false;
    }
    return !reader.isBroken();
}

std::optional<QByteArray> XmlPropertyList::withBoolean(QByteArrayView xml, QByteArrayView key, bool value)
{
    const Outline found = outline(xml, key);
    if (!found.isComplete || !found.firstKey)
        return std::nullopt;
    const QByteArray element = value ? "<true/>" : "<false/>";
    QByteArray result = xml.toByteArray();
    if (found.values.isEmpty()) {
        const QByteArray indent = indentBefore(xml, *found.firstKey);
        result.insert(found.lastEnd, indent + "<key>" + key.toByteArray() + "</key>" + indent + element);
    }
    // From the back, so that what lies before keeps its place.
    for (const Outline::Span &span : found.values | std::views::reverse)
        result.replace(span.begin, span.end - span.begin, element);
    return result;
}
