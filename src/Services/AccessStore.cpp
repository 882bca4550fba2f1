// SPDX-License-Identifier: MIT
#include "Services/AccessStore.h"

#include "Platform/FileSystem.h"
#include "Platform/FolderPanel.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"

namespace {

constexpr qint64 kProbeBytes = 16;

QString defaultsKey(const QString &key)
{
    return DefaultsKey::bookmarkPrefix + key;
}

QCoro::Task<std::optional<FileURL>> ask(AccessContext context, std::optional<FileURL> hint, QString message,
                                        QString buttonText)
{
    if (context.panel == nullptr)
        co_return std::nullopt;
    co_return co_await context.panel->choose(std::move(hint), std::move(message), std::move(buttonText));
}

/// Whether nothing is there, not even out of reach.
bool isMissing(const FileURL &folder)
{
    const auto found = FileSystem::attributes(folder, FileSystem::Root::follow);
    return !found &&
           (found.error() == std::errc::no_such_file_or_directory || found.error() == std::errc::not_a_directory);
}

bool existsAndLeadsSomewhere(const FileURL &item)
{
    return FileSystem::attributes(item, FileSystem::Root::follow).has_value();
}

} // namespace

QString AccessStore::folderKey(const FileURL &folder)
{
    return QStringLiteral("folder.") + folder.text().replace(QLatin1Char('/'), QLatin1Char('_'));
}

QCoro::Task<std::optional<FileURL>> AccessStore::pickFolder(AccessContext context, QString message)
{
    std::optional<FileURL> chosen =
        co_await ask(context, std::nullopt, std::move(message), Text::lookup(u"Add Folder"));
    if (chosen) {
        const QString key = folderKey(*chosen);
        saveBookmark(context, key, *chosen);
        // The folder is the user's choice whether or not it can be read just now.
        static_cast<void>(startAccessing(context, key));
    }
    co_return chosen;
}

void AccessStore::saveBookmark(const AccessContext &context, const QString &key, const FileURL &folder)
{
    if (const auto grant = context.platform->folderGrants->makeGrant(folder))
        context.defaults->setData(defaultsKey(key), *grant);
}

bool AccessStore::startAccessing(const AccessContext &context, const QString &key)
{
    const std::optional<QByteArray> grant = context.defaults->data(defaultsKey(key));
    const auto resolved = grant ? context.platform->folderGrants->resolve(*grant) : std::nullopt;
    if (!resolved)
        return false;
    if (resolved->isStale)
        saveBookmark(context, key, resolved->folder);
    return context.platform->folderGrants->startAccessing(resolved->folder);
}

QCoro::Task<bool> AccessStore::ensureAccess(AccessContext context, QString key, FileURL hint, QString message)
{
    if (startAccessing(context, key))
        co_return true;
    if (!context.platform->folderGrants->needsConsent()) {
        if (isMissing(hint))
            co_return true;
        if (context.platform->folderGrants->startAccessing(hint)) {
            saveBookmark(context, key, hint);
            co_return true;
        }
    }
    const std::optional<FileURL> chosen =
        co_await ask(context, hint, std::move(message), Text::lookup(u"Grant Access"));
    if (!chosen)
        co_return false;
    saveBookmark(context, key, *chosen);
    co_return startAccessing(context, key);
}

bool AccessStore::hasFullDiskAccess(const Places &places)
{
    const std::optional<FileURL> library = places.library();
    if (!library)
        return true;
    const FileURL database = library->appending("Application Support/com.apple.TCC/TCC.db");
    if (existsAndLeadsSomewhere(database))
        return FileSystem::read(FileSystem::resolved(database), kProbeBytes).has_value();
    const FileURL safari = library->child("Safari");
    if (!existsAndLeadsSomewhere(safari))
        return true;
    return FileSystem::list(safari, FileSystem::Hidden::include, FileSystem::Want::kinds).has_value();
}
