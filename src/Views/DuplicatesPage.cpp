// SPDX-License-Identifier: MIT
#include "Views/DuplicatesPage.h"

#include "Services/AccessStore.h"
#include "State/AppState.h"
#include "State/Confirmations.h"
#include "State/Selections.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/ItemActions.h"
#include "Views/ItemId.h"

DuplicatesPage::DuplicatesPage(AppState &state, const ItemActions &actions, QObject *parent)
    : PageModel(state, parent)
    , m_actions(actions)
{
    connect(&state, &AppState::duplicateGroupsChanged, this, &DuplicatesPage::takeGroups);
    connect(&state, &AppState::duplicateFoldersChanged, this, &DuplicatesPage::takeFolders);
    connect(&state, &AppState::duplicatesLoadingChanged, this, &DuplicatesPage::refresh);
    connect(&state, &AppState::scanDetailChanged, this, &DuplicatesPage::refresh);
    connect(&state, &AppState::removingChanged, this, &DuplicatesPage::refresh);
    connect(&state, &AppState::languageChanged, this, [this] {
        m_groups.touchAll();
        refresh();
    });
    takeFolders();
    takeGroups();
}

void DuplicatesPage::scan()
{
    state().rescanDuplicates();
}

void DuplicatesPage::stopScan()
{
    state().stopScans();
}

void DuplicatesPage::addFolder()
{
    detach(pickFolder(&state()));
}

QCoro::Task<> DuplicatesPage::pickFolder(QPointer<AppState> state)
{
    auto picking =
        AccessStore::pickFolder(state->accessContext(), Text::lookup(u"Choose a folder to scan for duplicate files."));
    const std::optional<FileURL> folder = co_await picking;
    if (state && folder)
        state->addDuplicateFolder(*folder);
}

void DuplicatesPage::removeFolder(const QString &itemId)
{
    if (const auto folder = ItemId::toURL(itemId))
        state().removeDuplicateFolder(*folder);
}

void DuplicatesPage::toggle(const QString &itemId)
{
    const std::optional<FileURL> url = ItemId::toURL(itemId);
    const DuplicateRow *row = url ? m_groups.rowOfFile(*url) : nullptr;
    if (!row)
        return;
    const QString groupId = row->groupId;
    if (!m_selection.contains(*url) && !Selections::maySelect(m_groups.group(groupId), m_selection.keys(), *url))
        return;
    m_selection.toggle(*url);
    m_groups.touchGroup(groupId);
    takeSelection();
}

void DuplicatesPage::toggleCollapsed(const QString &groupId)
{
    if (m_groups.hasGroup(groupId))
        m_groups.toggleCollapsed(groupId);
}

void DuplicatesPage::keepFirst(const QString &groupId)
{
    if (!m_groups.hasGroup(groupId))
        return;
    const DuplicateGroup &group = m_groups.group(groupId);
    const QSet<FileURL> rest = Selections::allButFirst({group});
    for (const DuplicateFile &file : group.files)
        m_selection.set(file.url, rest.contains(file.url));
    m_groups.touchGroup(groupId);
    takeSelection();
}

void DuplicatesPage::remove()
{
    if (!canRemove())
        return;
    QSet<FileURL> urls;
    for (const DuplicateFile &file : std::as_const(m_selectedFiles))
        urls.insert(file.url);
    ConfirmData question = Confirmations::removeDuplicates(m_selectedFiles);
    question.onConfirm = [page = QPointer(this), urls] {
        if (page)
            page->removeConfirmed(urls);
    };
    state().askToConfirm(std::move(question));
}

void DuplicatesPage::removeConfirmed(const QSet<FileURL> &selected)
{
    // A scan may have ended while the question stood: a copy that was to be kept may be gone from its group.
    const QList<DuplicateGroup> &groups = state().duplicateGroups();
    detach(state().removeDuplicates(Selections::keepingACopy(groups, selected), groups));
    m_selection.clear();
    m_groups.touchAll({DuplicatesModel::SelectedRole, DuplicatesModel::SelectableRole});
    takeSelection();
}

void DuplicatesPage::showInFileManager(const QString &itemId)
{
    if (const auto file = listedFile(itemId))
        m_actions.showInFileManager(*file);
}

void DuplicatesPage::copyPath(const QString &itemId)
{
    if (const auto file = listedFile(itemId))
        m_actions.copyPath(*file);
}

void DuplicatesPage::takeGroups()
{
    const QList<DuplicateGroup> &groups = state().duplicateGroups();
    // What is gone must not come back ticked, and a group whose unticked copies are gone keeps one all the same.
    QSet<FileURL> listed;
    for (const DuplicateFile &file : Selections::selectedFiles(groups, m_selection.keys()))
        listed.insert(file.url);
    const QSet<FileURL> kept = Selections::keepingACopy(groups, listed);
    m_selection.keep([&kept](const FileURL &file) { return kept.contains(file); });
    m_groups.setGroups(groups);
    m_groups.touchAll({DuplicatesModel::SelectedRole, DuplicatesModel::SelectableRole});
    takeSelection();
}

void DuplicatesPage::takeFolders()
{
    m_folders.setRecords(state().duplicateFolders());
    refresh();
}

void DuplicatesPage::takeSelection()
{
    m_selectedFiles = Selections::selectedFiles(state().duplicateGroups(), m_selection.keys());
    refresh();
}

void DuplicatesPage::refresh()
{
    const bool loading = state().duplicatesLoading();
    const bool removing = state().removing();
    show(m_view,
         View{
             .subtitle = subtitleText(),
             .emptyTitle = loading ? Text::lookup(u"Scanning folders…") : Text::lookup(u"No duplicate files found"),
             .emptyHint = loading ? Text::lookup(u"Hashing file contents, this may take a moment")
                                  : Text::lookup(u"Press Scan to search your folders for identical copies"),
             .status = statusText(),
             .empty = state().duplicateGroups().isEmpty(),
             .hasFolders = !state().duplicateFolders().isEmpty(),
             .loading = loading,
             .removing = removing,
             .canRemove = !m_selectedFiles.isEmpty() && !removing,
         });
}

QString DuplicatesPage::subtitleText() const
{
    if (state().duplicatesLoading())
        return state().scanDetail().isEmpty() ? Text::lookup(u"Scanning…") : state().scanDetail();
    const qint64 count = state().duplicateGroups().size();
    if (count == 0)
        return Text::lookup(u"No duplicate files yet — press Scan to search");
    const QString size = Format::bytes(state().duplicateReclaimable());
    return count == 1 ? Text::filled(u"%lld group · %@ reclaimable", {count, size})
                      : Text::filled(u"%lld groups · %@ reclaimable", {count, size});
}

QString DuplicatesPage::statusText() const
{
    const qint64 count = m_selectedFiles.size();
    if (count == 0)
        return Text::lookup(u"Select copies to remove — at least one copy of each file is kept");
    const QString size = Format::bytes(Totals::sizeOf(m_selectedFiles));
    return count == 1 ? Text::filled(u"%lld file selected · %@", {count, size})
                      : Text::filled(u"%lld files selected · %@", {count, size});
}

std::optional<FileURL> DuplicatesPage::listedFile(const QString &itemId) const
{
    const std::optional<FileURL> url = ItemId::toURL(itemId);
    return url && m_groups.rowOfFile(*url) ? url : std::nullopt;
}
