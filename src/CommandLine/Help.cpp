// SPDX-License-Identifier: MIT
#include "CommandLine/Help.h"

#include "CommandLine/CommandTable.h"

#include <algorithm>

namespace CommandLine {
namespace {

constexpr qsizetype kColumns = 80;

/// `text` in lines of at most 80 columns, each but the first indented.
QByteArray wrapped(QByteArrayView text, qsizetype indent)
{
    QByteArray lines;
    qsizetype column = indent;
    for (const QByteArray &word : text.toByteArray().split(' ')) {
        if (column > indent && column + 1 + word.size() > kColumns) {
            lines += '\n' + QByteArray(indent, ' ');
            column = indent;
        } else if (column > indent) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
    }
    return lines;
}

/// One entry of a list: its name, and what is said of it beside or, where the name is long, below.
QByteArray entry(const QByteArray &name, QByteArrayView text, qsizetype column)
{
    QByteArray line = "  " + name;
    line += line.size() + 2 > column ? '\n' + QByteArray(column, ' ') : QByteArray(column - line.size(), ' ');
    return line + wrapped(text, column) + '\n';
}

/// How a command is written, without the program's name.
QByteArray synopsis(const CommandSpec &command)
{
    QByteArray text = command.words.toByteArray();
    const QByteArray operand = command.operand.toByteArray();
    if (holds(command.options, Option::folder))
        text += " [--folder DIR]...";
    if (holds(command.options, Option::minSize))
        text += " [--min-size SIZE]";
    switch (command.needs) {
    case Needs::nothing:
        break;
    case Needs::oneOperand:
        text += ' ' + operand;
        break;
    case Needs::operands:
        text += ' ' + operand + "...";
        break;
    case Needs::operandsOrAll:
        text += " (" + operand + "... | --all)";
        break;
    case Needs::operandsOrFirst:
        text += " (" + operand + "... | --keep-first)";
        break;
    case Needs::categoriesOrAll:
        text += " ((--category NAME)... | --all)";
        break;
    }
    return text;
}

QByteArray optionsHelp(Options options)
{
    constexpr qsizetype column = 22;
    QByteArray text = "\nOptions:\n";
    for (const OptionSpec &option : allOptions()) {
        if (!holds(options, option.option))
            continue;
        QByteArray name = option.name.toByteArray();
        if (!option.value.isEmpty())
            name += ' ' + option.value.toByteArray();
        text += entry(name, option.help, column);
    }
    return text;
}

QByteArray commandHelp(const CommandSpec &command)
{
    QByteArray text = "Usage: " + wrapped("brisko " + synopsis(command) + " [OPTION]...", 7) + "\n\n";
    text += wrapped(command.summary, 0) + '\n';
    if (!command.details.isEmpty())
        text += wrapped(command.details, 0) + '\n';
    if (command.needs == Needs::categoriesOrAll) {
        text += "\nCategories:\n";
        for (const QByteArrayView name : junkCategoryNames())
            text += "  " + name.toByteArray() + '\n';
    }
    text += optionsHelp(optionsOf(command));
    if (command.needs != Needs::nothing)
        text += "  --                  What follows is no option, whatever it begins with.\n";
    return text;
}

QByteArray commandList(QByteArrayView words)
{
    constexpr qsizetype column = 30;
    QByteArray text = "\nCommands:\n";
    for (const CommandSpec &command : allCommands()) {
        const bool belongs =
            words.isEmpty() || command.words == words || command.words.startsWith(words.toByteArray() + ' ');
        if (belongs)
            text += entry(command.words.toByteArray(), command.summary, column);
    }
    return text;
}

constexpr QByteArrayView kExitStatus =
    "\nExit status:\n"
    "  0    done, nothing failed\n"
    "  1    refused, or some items stayed, or the update server could not be reached\n"
    "  2    the command line is wrong; nothing was changed\n"
    "  130  interrupted; what was already moved is in the Trash and recorded\n";

constexpr QByteArrayView kEnvironment =
    "\nEnvironment:\n"
    "  HOME, TMPDIR, XDG_CACHE_HOME, XDG_CONFIG_HOME, XDG_DATA_HOME, XDG_STATE_HOME\n"
    "                      as everywhere on the desktop\n"
    "  BRISKO_APPCAST_URL  another address for the update feed: https:, or http: to\n"
    "                      this machine itself\n"
    "  NO_COLOR            no colours on a terminal\n";

} // namespace

QByteArray helpText(QByteArrayView words)
{
    if (const CommandSpec *command = findCommand(words)) {
        QByteArray text = commandHelp(*command);
        if (isCommandGroup(words))
            text += commandList(words);
        return text;
    }
    QByteArray text = "Usage: brisko " + (words.isEmpty() ? QByteArray() : words.toByteArray() + ' ') +
                      "COMMAND [OPTION]... [ARGUMENT]...\n";
    if (words.isEmpty())
        text += "\nFinds what takes space for nothing, and removes what it is told to.\n";
    text += commandList(words);
    text += "\n`brisko COMMAND --help` tells more of a command.\n";
    if (words.isEmpty()) {
        text += optionsHelp(Option::json | Option::progress | Option::help | Option::version);
        text += kExitStatus;
        text += kEnvironment;
    }
    return text;
}

} // namespace CommandLine
