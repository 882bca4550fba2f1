// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QtGlobal>

#include <variant>

namespace CommandLine {

enum class Command : quint8 {
    scanJunk,
    scanLargeFiles,
    scanDuplicates,
    scanApps,
    scanStartup,
    scanAll,
    cleanJunk,
    removeLargeFiles,
    removeDuplicates,
    uninstall,
    startupEnable,
    startupDisable,
    startupRemove,
    stats,
    history,
    listFolders,
    addFolder,
    removeFolder,
    update,
};

/// Which of the two saved folder lists a command speaks of.
enum class FolderList : quint8 { duplicates, largeFiles };

inline constexpr qint64 kDefaultMinSize = qint64{100} * 1024 * 1024; // bytes: the 100M of the help

/// One command line that was understood. Arguments are the bytes as typed: names on disk need not be UTF-8.
struct Invocation {
    Command command = Command::scanAll;
    FolderList list = FolderList::duplicates;
    bool json = false;
    bool progress = false;
    bool dryRun = false;
    bool yes = false;
    bool all = false;
    bool keepFirst = false;
    qint64 minSize = kDefaultMinSize; // bytes
    QList<QByteArray> folders;        // in place of the saved list, when there are any
    QList<QByteArray> categories;     // as named, each one known
    QList<QByteArray> operands;       // files, applications or a folder
    friend bool operator==(const Invocation &, const Invocation &) = default;
};

/// The help of a command, of a group ("scan"), or, with no words, of the whole program.
struct HelpRequest {
    QByteArray words;
    friend bool operator==(const HelpRequest &, const HelpRequest &) = default;
};

struct VersionRequest {
    friend bool operator==(const VersionRequest &, const VersionRequest &) = default;
};

using Request = std::variant<Invocation, HelpRequest, VersionRequest>;

} // namespace CommandLine
