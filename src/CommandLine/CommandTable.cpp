// SPDX-License-Identifier: MIT
#include "CommandLine/CommandTable.h"

#include <algorithm>
#include <array>

namespace CommandLine {
namespace {

constexpr Options kNone = 0;
constexpr Options kRemoves = Option::dryRun | Option::yes;

constexpr std::array kOptions{
    OptionSpec{Option::folder, "--folder", "DIR",
               "Look under DIR instead of the saved folders; may be given several times. Saves nothing."},
    OptionSpec{Option::minSize, "--min-size", "SIZE",
               "Only files of at least SIZE: bytes, or a number with K, M, G or T (powers of 1024). Default: 100M."},
    OptionSpec{Option::category, "--category", "NAME",
               "Clean the category NAME, as `scan junk` prints it; may be given several times."},
    OptionSpec{Option::all, "--all", "", "Take everything that the scan finds."},
    OptionSpec{Option::keepFirst, "--keep-first", "", "Take every copy but the first of each group."},
    OptionSpec{Option::dryRun, "--dry-run", "", "Scan and report what would go; change nothing, ask nothing."},
    OptionSpec{Option::yes, "--yes", "", "Do not ask before removing."},
    OptionSpec{Option::json, "--json", "", "Print one JSON object, and nothing else, on standard output."},
    OptionSpec{Option::progress, "--progress", "", "Print every progress text on a line of its own on standard error."},
    OptionSpec{Option::help, "--help", "", "Show this help."},
    OptionSpec{Option::version, "--version", "", "Show the version."},
};

using enum Command;
constexpr auto kEither = FolderList::duplicates; // of commands that have nothing to do with the lists

constexpr std::array kCommands{
    CommandSpec{scanJunk, kEither, "scan junk", "", Needs::nothing, kNone,
                "Find caches, logs, old downloads and other clutter.", ""},
    CommandSpec{scanLargeFiles, FolderList::largeFiles, "scan large-files", "", Needs::nothing,
                Option::folder | Option::minSize, "Find the largest files.", ""},
    CommandSpec{scanDuplicates, FolderList::duplicates, "scan duplicates", "", Needs::nothing, kNone | Option::folder,
                "Find groups of identical files.", ""},
    CommandSpec{scanApps, kEither, "scan apps", "", Needs::nothing, kNone,
                "List installed applications with their sizes and related files.", ""},
    CommandSpec{scanStartup, kEither, "scan startup", "", Needs::nothing, kNone, "List launch agents and daemons.", ""},
    CommandSpec{scanAll, kEither, "scan all", "", Needs::nothing, kNone,
                "Scan applications, duplicates, junk and large files, in this order.", ""},
    CommandSpec{
        cleanJunk, kEither, "clean junk", "", Needs::categoriesOrAll, kRemoves | Option::category | Option::all,
        "Scan for junk, then clean categories of it.",
        "Categories are cleaned in their published order, each once. Files move to the Trash; only the category "
        "Trash itself is deleted for good."},
    CommandSpec{removeLargeFiles, FolderList::largeFiles, "remove large-files", "FILE", Needs::operandsOrAll,
                kRemoves | Option::folder | Option::minSize | Option::all,
                "Scan for large files, then move some of them to the Trash.",
                "Each FILE must be among the files that the scan finds."},
    CommandSpec{removeDuplicates, FolderList::duplicates, "remove duplicates", "FILE", Needs::operandsOrFirst,
                kRemoves | Option::folder | Option::keepFirst,
                "Scan for duplicates, then move some of the copies to the Trash.",
                "Each FILE must be among the copies that the scan finds, and at least one copy of each group must be "
                "left out."},
    CommandSpec{uninstall, kEither, "uninstall", "APP", Needs::operands, kRemoves,
                "Move applications and their related files to the Trash.",
                "APP is the path of a bundle, else an identifier, else a name, each exactly. One that matches several "
                "bundles is refused."},
    CommandSpec{startupEnable, kEither, "startup enable", "FILE", Needs::oneOperand, kNone, "Switch a startup item on.",
                "FILE is the item's definition file."},
    CommandSpec{startupDisable, kEither, "startup disable", "FILE", Needs::oneOperand, kNone,
                "Switch a startup item off.", "FILE is the item's definition file."},
    CommandSpec{startupRemove, kEither, "startup remove", "FILE", Needs::oneOperand, kRemoves,
                "Move a startup item's definition file to the Trash.", "FILE is the item's definition file."},
    CommandSpec{stats, kEither, "stats", "", Needs::nothing, kNone,
                "Show processor load, memory, free disk and disk temperature, sampled over one second.", ""},
    CommandSpec{history, kEither, "history", "", Needs::nothing, kNone, "Show what was removed lately.", ""},
    CommandSpec{listFolders, FolderList::duplicates, "folders duplicates", "", Needs::nothing, kNone,
                "Show the folders in which duplicates are looked for.", ""},
    CommandSpec{addFolder, FolderList::duplicates, "folders duplicates add", "DIR", Needs::oneOperand, kNone,
                "Add a folder to those in which duplicates are looked for.", ""},
    CommandSpec{removeFolder, FolderList::duplicates, "folders duplicates remove", "DIR", Needs::oneOperand, kNone,
                "Take a folder off that list; the folder itself is not touched.", ""},
    CommandSpec{listFolders, FolderList::largeFiles, "folders large-files", "", Needs::nothing, kNone,
                "Show the folders in which large files are looked for.", ""},
    CommandSpec{addFolder, FolderList::largeFiles, "folders large-files add", "DIR", Needs::oneOperand, kNone,
                "Add a folder to those in which large files are looked for.", ""},
    CommandSpec{removeFolder, FolderList::largeFiles, "folders large-files remove", "DIR", Needs::oneOperand, kNone,
                "Take a folder off that list; the folder itself is not touched.", ""},
    CommandSpec{update, kEither, "update", "", Needs::nothing, kNone, "Check whether a newer version is there.", ""},
};

constexpr std::array<QByteArrayView, 9> kJunkCategories{"Old Downloads",  "App Caches",      "System Logs",
                                                        "Temp Files",     "Trash",           "Crash Reports",
                                                        "Browser Caches", "Chat App Caches", "Leftover Installers"};

} // namespace

std::span<const CommandSpec> allCommands()
{
    return kCommands;
}

std::span<const OptionSpec> allOptions()
{
    return kOptions;
}

std::span<const QByteArrayView> junkCategoryNames()
{
    return kJunkCategories;
}

const CommandSpec *findCommand(QByteArrayView words)
{
    const auto found = std::ranges::find(kCommands, words, &CommandSpec::words);
    return found == kCommands.cend() ? nullptr : &*found;
}

bool isCommandGroup(QByteArrayView words)
{
    return std::ranges::any_of(kCommands, [words](const CommandSpec &command) {
        return command.words.size() > words.size() && command.words.startsWith(words) &&
               command.words.at(words.size()) == ' ';
    });
}

const OptionSpec *findOption(QByteArrayView name)
{
    const auto found = std::ranges::find(kOptions, name, &OptionSpec::name);
    return found == kOptions.cend() ? nullptr : &*found;
}

Options optionsOf(const CommandSpec &command)
{
    return command.options | Option::json | Option::progress | Option::help | Option::version;
}

} // namespace CommandLine
