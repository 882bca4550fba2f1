// SPDX-License-Identifier: MIT
#include "Support/Text.h"

#include "Support/LanguageSnapshot.h"

#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/unistr.h>

#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace {

using Arguments = std::span<const Text::Argument>;

icu::number::LocalizedNumberFormatter makeNumberFormatter(const QString &localeIdentifier)
{
    return icu::number::NumberFormatter::withLocale(icu::Locale(localeIdentifier.toLatin1().constData()));
}

/// A whole number with the language's grouping. ICU knows what QLocale does not: where groups begin only at five
/// digits.
QString grouped(qint64 number, const LanguageSnapshot &snapshot)
{
    struct Kept {
        const LanguageSnapshot *snapshot = nullptr;
        icu::number::LocalizedNumberFormatter formatter;
    };
    // Making a formatter takes a thousand times longer than using one.
    thread_local Kept kept;
    if (kept.snapshot != &snapshot)
        kept = {.snapshot = &snapshot, .formatter = makeNumberFormatter(snapshot.localeIdentifier)};
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = kept.formatter.formatInt(number, status).toString(status);
    if (U_FAILURE(status))
        return QString::number(number);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

struct Placeholder {
    enum class Kind { text, number, percent };
    Kind kind = Kind::text;
    std::optional<qsizetype> position; // counted from 0; absent when the next argument is meant
    qsizetype length = 0;              // in the format, from the percent sign on
};

/// The placeholder that `rest`, which begins with a percent sign, begins with.
std::optional<Placeholder> placeholderAt(QStringView rest)
{
    qsizetype at = 1;
    if (rest.mid(at).startsWith(u'%'))
        return Placeholder{.kind = Placeholder::Kind::percent, .position = {}, .length = 2};
    // Three digits are more than any text has arguments, and cannot overflow.
    qsizetype digits = 0;
    while (digits < 3 && at + digits < rest.size() && rest[at + digits] >= u'0' && rest[at + digits] <= u'9')
        ++digits;
    std::optional<qsizetype> position;
    if (digits > 0) {
        if (at + digits >= rest.size() || rest[at + digits] != u'$')
            return std::nullopt;
        position = rest.mid(at, digits).toInt() - 1;
        at += digits + 1;
    }
    if (rest.mid(at).startsWith(u'@'))
        return Placeholder{.kind = Placeholder::Kind::text, .position = position, .length = at + 1};
    if (rest.mid(at).startsWith(u"lld"))
        return Placeholder{.kind = Placeholder::Kind::number, .position = position, .length = at + 3};
    return std::nullopt;
}

/// What stands for the placeholder; absent when there is no argument of its kind.
std::optional<QString> filling(const Placeholder &placeholder, qsizetype position, Arguments arguments,
                               const LanguageSnapshot &snapshot)
{
    if (position < 0 || position >= static_cast<qsizetype>(arguments.size()))
        return std::nullopt;
    const Text::Argument &argument = arguments[static_cast<size_t>(position)];
    if (placeholder.kind == Placeholder::Kind::text) {
        const auto *text = std::get_if<QString>(&argument);
        return text ? std::optional(*text) : std::nullopt;
    }
    const auto *number = std::get_if<qint64>(&argument);
    return number ? std::optional(grouped(*number, snapshot)) : std::nullopt;
}

QString fill(QStringView format, Arguments arguments, const LanguageSnapshot &snapshot)
{
    QString result;
    qsizetype next = 0;
    while (!format.isEmpty()) {
        const qsizetype percent = format.indexOf(u'%');
        if (percent < 0)
            break;
        result += format.first(percent);
        format = format.sliced(percent);
        const std::optional<Placeholder> placeholder = placeholderAt(format);
        const qsizetype length = placeholder ? placeholder->length : 1;
        if (placeholder && placeholder->kind != Placeholder::Kind::percent) {
            const qsizetype position = placeholder->position ? *placeholder->position : next++;
            result += filling(*placeholder, position, arguments, snapshot).value_or(format.first(length).toString());
        } else {
            result += u'%';
        }
        format = format.sliced(length);
    }
    return result += format;
}

} // namespace

QString Text::lookup(QStringView english)
{
    return languageSnapshot().text(english);
}

QString Text::filled(QStringView english, std::initializer_list<Argument> arguments)
{
    // One snapshot for both steps: a switch in between would put one language's numbers into another's text.
    const LanguageSnapshot &snapshot = languageSnapshot();
    return fill(snapshot.text(english), arguments, snapshot);
}

QString Text::format(const QString &localized, std::initializer_list<Argument> arguments)
{
    return fill(localized, arguments, languageSnapshot());
}
