// SPDX-License-Identifier: MIT
#include "CommandLine/Parser.h"

#include "CommandLine/CommandTable.h"
#include "CommandLine/Printer.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

std::unexpected<UsageError> wrong(const QString &message)
{
    return std::unexpected(UsageError{message});
}

QString quoted(QByteArrayView argument)
{
    return u'"' + escaped(argument) + u'"';
}

QString latin(QByteArrayView text)
{
    return QString::fromLatin1(text);
}

/// The words that may follow `words`, in the order of the table.
QString continuations(QByteArrayView words)
{
    QStringList next;
    for (const CommandSpec &command : allCommands()) {
        if (!command.words.startsWith(words) || command.words.size() <= words.size())
            continue;
        const QByteArrayView rest = command.words.sliced(words.isEmpty() ? 0 : words.size() + 1);
        const QString word = latin(rest.first(rest.contains(' ') ? rest.indexOf(' ') : rest.size()));
        if (!next.contains(word))
            next.append(word);
    }
    return next.join(u", "_s);
}

/// Takes the arguments one after another; `finish` then judges the whole.
class Reading
{
public:
    std::expected<void, UsageError> take(const QList<QByteArray> &arguments);
    std::expected<Request, UsageError> finish();

private:
    std::expected<void, UsageError> takeWord(const QByteArray &word);
    std::expected<void, UsageError> takeValue(const OptionSpec &option, const QByteArray &value);
    void takeFlag(Option option);
    std::expected<void, UsageError> checkNeeds(const CommandSpec &command) const;

    QByteArray m_words; // of the command, as far as they were read
    bool m_optionsEnded = false;
    Options m_seen = 0;
    Invocation m_invocation;
};

std::expected<void, UsageError> Reading::take(const QList<QByteArray> &arguments)
{
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QByteArray &argument = arguments.at(i);
        if (m_optionsEnded || argument.size() < 2 || !argument.startsWith('-')) {
            if (const auto taken = takeWord(argument); !taken)
                return taken;
            continue;
        }
        if (argument == "--") {
            m_optionsEnded = true;
            continue;
        }
        const qsizetype equals = argument.startsWith("--") ? argument.indexOf('=') : -1;
        const QByteArray name = argument == "-h" ? "--help" : argument.first(equals < 0 ? argument.size() : equals);
        const OptionSpec *option = findOption(name);
        if (option == nullptr)
            return wrong(u"unknown option "_s + quoted(argument));
        m_seen = m_seen | option->option;
        if (option->value.isEmpty()) {
            if (equals >= 0)
                return wrong(latin(option->name) + u" takes no value"_s);
            takeFlag(option->option);
            continue;
        }
        if (equals < 0 && i + 1 == arguments.size())
            return wrong(latin(option->name) + u" needs a value: "_s + latin(option->value));
        const QByteArray value = equals < 0 ? arguments.at(++i) : argument.sliced(equals + 1);
        if (const auto taken = takeValue(*option, value); !taken)
            return taken;
    }
    return {};
}

std::expected<void, UsageError> Reading::takeWord(const QByteArray &word)
{
    const QByteArray longer = m_words.isEmpty() ? word : m_words + ' ' + word;
    // A word that carries the command on is one of its words; after the first that does not, all are operands.
    const bool carriesOn = m_invocation.operands.isEmpty() && !word.contains(' ') && !word.isEmpty() &&
                           (findCommand(longer) != nullptr || isCommandGroup(longer));
    if (carriesOn) {
        m_words = longer;
        return {};
    }
    if (findCommand(m_words) == nullptr) {
        return wrong(m_words.isEmpty()
                         ? u"unknown command "_s + quoted(word)
                         : quoted(m_words) + u" knows no "_s + quoted(word) + u", only "_s + continuations(m_words));
    }
    if (word.isEmpty())
        return wrong(u"an argument is empty"_s);
    m_invocation.operands.append(word);
    return {};
}

void Reading::takeFlag(Option option)
{
    switch (option) {
    case Option::json:
        m_invocation.json = true;
        break;
    case Option::progress:
        m_invocation.progress = true;
        break;
    case Option::dryRun:
        m_invocation.dryRun = true;
        break;
    case Option::yes:
        m_invocation.yes = true;
        break;
    case Option::all:
        m_invocation.all = true;
        break;
    case Option::keepFirst:
        m_invocation.keepFirst = true;
        break;
    case Option::help:
    case Option::version:
    case Option::folder:
    case Option::minSize:
    case Option::category:
        break;
    }
}

std::expected<void, UsageError> Reading::takeValue(const OptionSpec &option, const QByteArray &value)
{
    if (option.option == Option::folder) {
        if (value.isEmpty())
            return wrong(u"--folder needs a folder"_s);
        m_invocation.folders.append(value);
    } else if (option.option == Option::minSize) {
        const auto size = parseSize(value);
        if (!size)
            return wrong(u"no size: "_s + quoted(value) + u" (bytes, or a number with K, M, G or T)"_s);
        m_invocation.minSize = *size;
    } else {
        if (std::ranges::find(junkCategoryNames(), QByteArrayView(value)) == junkCategoryNames().end())
            return wrong(u"unknown category "_s + quoted(value));
        m_invocation.categories.append(value);
    }
    return {};
}

std::expected<void, UsageError> Reading::checkNeeds(const CommandSpec &command) const
{
    const bool none = m_invocation.operands.isEmpty();
    const QString operand = latin(command.operand);
    switch (command.needs) {
    case Needs::nothing:
    case Needs::categoriesOrAll:
        if (!none)
            return wrong(u"unexpected argument "_s + quoted(m_invocation.operands.first()));
        if (command.needs == Needs::categoriesOrAll && m_invocation.categories.isEmpty() != m_invocation.all)
            return wrong(m_invocation.all ? u"give --category or --all, not both"_s
                                          : u"which categories? Give --category NAME or --all"_s);
        return {};
    case Needs::oneOperand:
        if (m_invocation.operands.size() > 1)
            return wrong(u"unexpected argument "_s + quoted(m_invocation.operands.at(1)));
        [[fallthrough]];
    case Needs::operands:
        if (none)
            return wrong(quoted(command.words) + u" needs "_s + operand);
        return {};
    case Needs::operandsOrAll:
    case Needs::operandsOrFirst: {
        const bool every = command.needs == Needs::operandsOrAll ? m_invocation.all : m_invocation.keepFirst;
        const QString option = command.needs == Needs::operandsOrAll ? u"--all"_s : u"--keep-first"_s;
        if (none != every)
            return wrong(every ? u"give files or "_s + option + u", not both"_s
                               : u"which files? Give "_s + operand + u"... or "_s + option);
        return {};
    }
    }
    Q_UNREACHABLE();
}

std::expected<Request, UsageError> Reading::finish()
{
    if (holds(m_seen, Option::help))
        return HelpRequest{m_words};
    if (holds(m_seen, Option::version))
        return VersionRequest{};
    const CommandSpec *command = findCommand(m_words);
    if (command == nullptr) {
        return wrong(m_words.isEmpty() ? u"no command"_s
                                       : quoted(m_words) + u" needs one of "_s + continuations(m_words));
    }
    for (const OptionSpec &option : allOptions()) {
        if (holds(m_seen, option.option) && !holds(optionsOf(*command), option.option))
            return wrong(quoted(m_words) + u" takes no "_s + latin(option.name));
    }
    if (const auto checked = checkNeeds(*command); !checked)
        return std::unexpected(checked.error());
    m_invocation.command = command->command;
    m_invocation.list = command->list;
    return m_invocation;
}

} // namespace

std::expected<Request, UsageError> parse(const QList<QByteArray> &arguments)
{
    Reading reading;
    if (const auto taken = reading.take(arguments); !taken)
        return std::unexpected(taken.error());
    return reading.finish();
}

std::optional<qint64> parseSize(QByteArrayView text)
{
    constexpr QByteArrayView suffixes = "kmgt";
    if (text.isEmpty())
        return std::nullopt;
    qint64 unit = 1;
    const char last =
        text.back() >= 'A' && text.back() <= 'Z' ? static_cast<char>(text.back() - 'A' + 'a') : text.back();
    if (const qsizetype power = suffixes.indexOf(last); power >= 0) {
        unit = qint64{1} << (10 * (power + 1));
        text.chop(1);
    }
    if (text.isEmpty() || !std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    bool fits = false;
    const qint64 number = text.toByteArray().toLongLong(&fits);
    if (!fits || number > std::numeric_limits<qint64>::max() / unit)
        return std::nullopt;
    return number * unit;
}

} // namespace CommandLine
