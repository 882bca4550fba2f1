// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Invocation.h"

#include <QByteArrayView>

#include <span>

/// Every command and option as data: what the parser takes, and what the help says of it. English in every language.
namespace CommandLine {

enum class Option : quint16 {
    json = 1 << 0,
    progress = 1 << 1,
    dryRun = 1 << 2,
    yes = 1 << 3,
    folder = 1 << 4,
    minSize = 1 << 5,
    category = 1 << 6,
    all = 1 << 7,
    keepFirst = 1 << 8,
    help = 1 << 9,
    version = 1 << 10,
};

/// A set of options.
using Options = quint16;
[[nodiscard]] constexpr Options operator|(Option a, Option b)
{
    return static_cast<Options>(static_cast<Options>(a) | static_cast<Options>(b));
}
[[nodiscard]] constexpr Options operator|(Options set, Option option)
{
    return static_cast<Options>(set | static_cast<Options>(option));
}
[[nodiscard]] constexpr bool holds(Options set, Option option)
{
    return (set & static_cast<Options>(option)) != 0;
}

struct OptionSpec {
    Option option;
    QByteArrayView name;  // with its dashes
    QByteArrayView value; // the name of its value; empty for a flag
    QByteArrayView help;
};

/// What a command must be told besides its options.
enum class Needs : quint8 {
    nothing,
    oneOperand,
    operands,        // one or more
    operandsOrAll,   // or `--all` in their place
    operandsOrFirst, // or `--keep-first` in their place
    categoriesOrAll, // `--category`, or `--all` in its place
};

struct CommandSpec {
    Command command;
    FolderList list;
    QByteArrayView words;   // "scan junk"
    QByteArrayView operand; // the name of its operand, for the help
    Needs needs;
    Options options;        // those of this command; `--json`, `--progress` and `--help` come with each
    QByteArrayView summary; // one line
    QByteArrayView details; // what the help says beyond it; may be empty
};

[[nodiscard]] std::span<const CommandSpec> allCommands();
[[nodiscard]] std::span<const OptionSpec> allOptions();
/// The names of the junk categories in their published order.
[[nodiscard]] std::span<const QByteArrayView> junkCategoryNames();

/// The command of exactly these words; null when there is none.
[[nodiscard]] const CommandSpec *findCommand(QByteArrayView words);
/// Whether any command begins with these words and goes on after them.
[[nodiscard]] bool isCommandGroup(QByteArrayView words);
/// The option of exactly this name; null when there is none.
[[nodiscard]] const OptionSpec *findOption(QByteArrayView name);
/// Every option that a command takes.
[[nodiscard]] Options optionsOf(const CommandSpec &command);

} // namespace CommandLine
