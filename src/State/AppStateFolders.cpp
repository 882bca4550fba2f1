// SPDX-License-Identifier: MIT
#include "State/AppState.h"
#include "Support/UserDefaults.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

using namespace Qt::StringLiterals;

QList<FileURL> AppState::loadDuplicateFolders() const
{
    const auto home = m_environment.platform->places->accountHome();
    if (!home)
        return loadFolders(DefaultsKey::duplicateFolders, {});
    return loadFolders(DefaultsKey::duplicateFolders, {home->child("Downloads"), home->child("Pictures"),
                                                       home->child("Movies"), home->child("Music")});
}

QList<FileURL> AppState::loadLargeFileFolders() const
{
    const auto home = m_environment.platform->places->accountHome();
    return loadFolders(DefaultsKey::largeFileFolders, home ? QList<FileURL>{*home} : QList<FileURL>{});
}

QList<FileURL> AppState::loadFolders(QLatin1StringView key, const QList<FileURL> &defaults) const
{
    QList<FileURL> folders;
    for (const QString &entry : m_environment.defaults->textList(key)) {
        const auto folder = entry.startsWith("file:///"_L1) ? FileURL::fromEncoded(entry.toLatin1())
                                                            : FileURL::fromPath(entry.toUtf8());
        if (folder)
            folders.append(*folder);
    }
    return folders.isEmpty() ? defaults : folders;
}

void AppState::saveFolders(QLatin1StringView key, const QList<FileURL> &folders)
{
    QStringList entries;
    for (const FileURL &folder : folders) {
        // A path that is not UTF-8 would not survive as text; its encoded form keeps every byte.
        const QString text = folder.text();
        entries.append(text.toUtf8() == folder.path() ? text : QString::fromLatin1(folder.encoded()));
    }
    m_environment.defaults->setTextList(key, entries);
}

void AppState::saveDuplicateFolders()
{
    saveFolders(DefaultsKey::duplicateFolders, m_duplicateFolders);
}

void AppState::saveLargeFileFolders()
{
    saveFolders(DefaultsKey::largeFileFolders, m_largeFileFolders);
}

void AppState::addDuplicateFolder(const FileURL &folder)
{
    if (m_duplicateFolders.contains(folder))
        return;
    publish(m_duplicateFolders, m_duplicateFolders + QList{folder}, &AppState::duplicateFoldersChanged);
    saveDuplicateFolders();
    // Without a grant the folder may still be readable: the scan finds out.
    (void)AccessStore::startAccessing(accessContext(), AccessStore::folderKey(folder));
}

void AppState::addLargeFileFolder(const FileURL &folder)
{
    if (m_largeFileFolders.contains(folder))
        return;
    publish(m_largeFileFolders, m_largeFileFolders + QList{folder}, &AppState::largeFileFoldersChanged);
    saveLargeFileFolders();
}

void AppState::removeDuplicateFolder(const FileURL &folder)
{
    QList<FileURL> rest = m_duplicateFolders;
    rest.removeAll(folder);
    publish(m_duplicateFolders, std::move(rest), &AppState::duplicateFoldersChanged);
    saveDuplicateFolders();
}

void AppState::removeLargeFileFolder(const FileURL &folder)
{
    QList<FileURL> rest = m_largeFileFolders;
    rest.removeAll(folder);
    publish(m_largeFileFolders, std::move(rest), &AppState::largeFileFoldersChanged);
    saveLargeFileFolders();
}

bool AppState::detectFullDiskAccess(const Platform &platform)
{
    return AccessStore::hasFullDiskAccess(*platform.places);
}

QCoro::Task<> AppState::probeFullDiskAccess(QPointer<AppState> self)
{
    const auto work = QtConcurrent::run(&self->m_environment.pools->utility, [platform = self->m_environment.platform] {
        return detectFullDiskAccess(*platform);
    });
    const bool hasAccess = co_await work;
    if (self)
        self->publish(self->m_needsFullDiskAccess, !hasAccess, &AppState::needsFullDiskAccessChanged);
}

void AppState::openFullDiskAccessSettings()
{
    m_environment.platform->workspace->open(
        QUrl(u"x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_AllFiles"_s));
}
