// SPDX-License-Identifier: MIT
#include "Theme/Format.h"

#include "Support/LanguageSnapshot.h"

#include <QCollator>
#include <QTimeZone>

#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// What one language calls the units of a byte count.
struct UnitNames {
    QStringView byte;
    QStringView bytes;
    std::array<QStringView, 6> units; // KB and each a thousand times the one before
    QStringView separator;            // between number and unit
    QStringView zero;                 // the number of a count of 0
};

constexpr std::array<QStringView, 6> kUnits{u"KB", u"MB", u"GB", u"TB", u"PB", u"EB"};
constexpr std::array<QStringView, 6> kFrenchUnits{u"Ko", u"Mo", u"Go", u"To", u"Po", u"Eo"};

constexpr UnitNames unitNames(AppLanguage language)
{
    switch (language) {
    case AppLanguage::fr:
        return {u"octet", u"octets", kFrenchUnits, u"\u00a0", u"Zéro"};
    case AppLanguage::it:
        return {u"byte", u"byte", kUnits, u" ", u"Zero"};
    case AppLanguage::th:
        return {u"ไบต์", u"ไบต์", kUnits, u" ", u"ศูนย์"};
    case AppLanguage::de:
        return {u"Byte", u"Byte", kUnits, u" ", u"0"};
    case AppLanguage::es:
        return {u"byte", u"bytes", kUnits, u" ", u"0"};
    case AppLanguage::tr:
        return {u"bayt", u"bayt", kUnits, u" ", u"0"};
    case AppLanguage::ja:
        return {u"バイト", u"バイト", kUnits, u" ", u"0"};
    case AppLanguage::ko:
        return {u"바이트", u"바이트", kUnits, u"", u"0"};
    case AppLanguage::zhHans:
        return {u"字节", u"字节", kUnits, u" ", u"0"};
    case AppLanguage::zhHant:
        return {u"位元組", u"位元組", kUnits, u" ", u"0"};
    case AppLanguage::system:
    case AppLanguage::en:
        break;
    }
    return {u"byte", u"bytes", kUnits, u" ", u"Zero"};
}

/// How a locale writes the digits of a number and parts the whole from the fraction.
struct Digits {
    std::array<QString, 10> digits;
    QString decimalMark;

    [[nodiscard]] QString write(qint64 number) const
    {
        QString text;
        const QByteArray ascii = QByteArray::number(number);
        for (const char digit : ascii)
            text += digits[static_cast<size_t>(digit - '0')];
        return text;
    }
};

QString fromIcu(const icu::UnicodeString &text)
{
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

Digits digitsOf(const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(locale, status);
    Digits found;
    for (int digit = 0; digit < 10; ++digit)
        found.digits[static_cast<size_t>(digit)] = fromIcu(symbols.getConstDigitSymbol(digit));
    found.decimalMark = fromIcu(symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol));
    return found;
}

/// Made once for each thread and language: making these takes a thousand times longer than using them, and not all
/// of them may be shared by threads.
struct Formatters {
    const LanguageSnapshot *snapshot = nullptr;
    Digits digits;
    std::unique_ptr<icu::DateFormat> dates;
    QCollator collator;

    explicit Formatters(const LanguageSnapshot &made)
        : snapshot(&made)
        , collator(made.locale)
    {
        const icu::Locale locale(made.localeIdentifier.toLatin1().constData());
        digits = digitsOf(locale);
        dates.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));
        if (dates)
            dates->setTimeZone(*icu::TimeZone::getGMT());
        collator.setCaseSensitivity(Qt::CaseInsensitive);
    }
};

Formatters &formatters()
{
    thread_local std::unique_ptr<Formatters> kept;
    const LanguageSnapshot &snapshot = languageSnapshot();
    if (!kept || kept->snapshot != &snapshot)
        kept = std::make_unique<Formatters>(snapshot);
    return *kept;
}

/// A count in one unit, as a whole number of the smallest steps that are shown.
struct Scaled {
    qint64 steps = 0;
    qint64 stepsPerUnit = 1; // 1, 10 or 100: no, one or two decimals
    size_t unit = 0;         // index into the unit names
};

/// Whole numbers throughout: no count is too large to be exact, and ties are seen as such.
Scaled scaled(qint64 count)
{
    Scaled result;
    qint64 unitSize = 1000;
    while (true) {
        result.stepsPerUnit = result.unit == 0 ? 1 : result.unit == 1 ? 10 : 100;
        const qint64 step = unitSize / result.stepsPerUnit;
        result.steps = count / step + (count % step >= step - count % step ? 1 : 0);
        if (result.steps < 1000 * result.stepsPerUnit || result.unit + 1 == kUnits.size())
            return result;
        unitSize *= 1000;
        ++result.unit;
    }
}

QString written(const Scaled &scaled, const Digits &digits)
{
    QString whole = digits.write(scaled.steps / scaled.stepsPerUnit);
    qint64 fraction = scaled.steps % scaled.stepsPerUnit;
    if (fraction == 0)
        return whole;
    // 1.05 keeps its nought, 1.50 does not.
    if (scaled.stepsPerUnit == 100 && fraction < 10)
        return whole + digits.decimalMark + digits.write(0) + digits.write(fraction);
    if (fraction % 10 == 0)
        fraction /= 10;
    return whole + digits.decimalMark + digits.write(fraction);
}

QString joined(QStringView number, QStringView separator, QStringView unit)
{
    QString text = number.toString();
    return text.append(separator).append(unit);
}

} // namespace

QString Format::bytes(qint64 count)
{
    Q_ASSERT(count >= 0);
    const Formatters &kept = formatters();
    const UnitNames names = unitNames(kept.snapshot->shown);
    if (count <= 0)
        return joined(names.zero, names.separator, names.units.front());
    if (count < 1000)
        return joined(kept.digits.write(count), names.separator, count == 1 ? names.byte : names.bytes);
    const Scaled amount = scaled(count);
    return joined(written(amount, kept.digits), names.separator, names.units[amount.unit]);
}

QString Format::date(const QDateTime &date)
{
    if (!date.isValid())
        return {};
    // Qt does the time zone, ICU the words: the day on the wall goes in as if it were Greenwich's.
    const QDateTime wall(date.toLocalTime().date(), QTime(12, 0), Qt::UTC);
    const Formatters &kept = formatters();
    if (!kept.dates)
        return kept.snapshot->locale.toString(wall.date(), QLocale::ShortFormat);
    icu::UnicodeString text;
    return fromIcu(kept.dates->format(static_cast<UDate>(wall.toMSecsSinceEpoch()), text));
}

int Format::compareNames(const QString &a, const QString &b)
{
    return formatters().collator.compare(a, b);
}
