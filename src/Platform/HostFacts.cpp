// SPDX-License-Identifier: MIT
#include "Platform/HostFacts.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

namespace {

std::optional<QByteArray> accountFolderOf(quint32 user)
{
    passwd entry{};
    passwd *found = nullptr;
    std::vector<char> buffer(1024);
    int error = ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    // Entries from a directory service can be long; 1 MiB is beyond any of them.
    while (error == ERANGE && buffer.size() < 1024 * 1024) {
        buffer.resize(buffer.size() * 4);
        error = ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    }
    if (error != 0 || found == nullptr || entry.pw_dir == nullptr)
        return std::nullopt;
    return QByteArray(entry.pw_dir);
}

bool isSame(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace

HostFacts HostFacts::ofThisProcess()
{
    return {.variable = [](const char *name) -> std::optional<QByteArray> {
                const char *value = std::getenv(name);
                return value == nullptr ? std::nullopt : std::optional<QByteArray>(value);
            },
            .user = ::geteuid(),
            .accountFolder = accountFolderOf};
}

std::optional<FileURL> HostFacts::folder(const char *name) const
{
    const std::optional<QByteArray> value = variable(name);
    return value ? FileURL::fromPath(*value) : std::nullopt;
}

std::optional<FileURL> HomeRule::usable(const QByteArray &path, quint32 user)
{
    std::optional<FileURL> folder = FileURL::fromPath(path);
    if (!folder)
        return std::nullopt;
    struct stat status {
    };
    struct stat root {
    };
    if (::stat(folder->path().constData(), &status) != 0 || !S_ISDIR(status.st_mode) || status.st_uid != user)
        return std::nullopt;
    // By identity, so that a link to the root is no home either.
    if (::stat("/", &root) != 0 || isSame(status, root))
        return std::nullopt;
    return folder;
}

std::optional<FileURL> HomeRule::home(const HostFacts &facts)
{
    const std::optional<QByteArray> stated = facts.variable("HOME");
    return stated && !stated->isEmpty() ? usable(*stated, facts.user) : accountHome(facts);
}

std::optional<FileURL> HomeRule::accountHome(const HostFacts &facts)
{
    const std::optional<QByteArray> account = facts.accountFolder(facts.user);
    return account ? usable(*account, facts.user) : std::nullopt;
}
