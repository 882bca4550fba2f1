// SPDX-License-Identifier: MIT
#include "Views/LargeFilesPage.h"

#include "Services/AccessStore.h"
#include "State/AppState.h"
#include "State/Confirmations.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/ItemActions.h"
#include "Views/ItemId.h"

#include <algorithm>

LargeFilesPage::LargeFilesPage(AppState &state, const ItemActions &actions, QObject *parent)
    : PageModel(state, parent)
    , m_actions(actions)
{
    connect(&state, &AppState::largeFilesChanged, this, &LargeFilesPage::takeFiles);
    connect(&state, &AppState::largeFileFoldersChanged, this, &LargeFilesPage::takeFolders);
    connect(&state, &AppState::largeFilesLoadingChanged, this, &LargeFilesPage::refresh);
    connect(&state, &AppState::scanDetailChanged, this, &LargeFilesPage::refresh);
    connect(&state, &AppState::removingChanged, this, &LargeFilesPage::refresh);
    connect(&state, &AppState::languageChanged, this, &LargeFilesPage::takeLanguage);
    takeThresholds();
    takeFolders();
    takeFiles();
}

void LargeFilesPage::appeared()
{
    if (m_scanned || !state().largeFiles().isEmpty())
        return;
    m_scanned = true;
    state().scanLargeFiles(std::nullopt, minSizeBytes());
    refresh();
}

void LargeFilesPage::scan()
{
    m_scanned = true;
    state().scanLargeFiles(state().largeFileFolders(), minSizeBytes());
    refresh();
}

void LargeFilesPage::stopScan()
{
    state().stopScans();
}

void LargeFilesPage::applyThreshold(int megabytes)
{
    if (!std::ranges::count(kPresets, megabytes))
        return;
    m_minSizeMB = megabytes;
    takeThresholds();
    refresh();
    // After one that runs: that one looks for the old size.
    if (m_scanned)
        detach(state().scanLargeFilesAsync(state().largeFileFolders(), minSizeBytes()));
}

void LargeFilesPage::addFolder()
{
    detach(pickFolder(&state()));
}

QCoro::Task<> LargeFilesPage::pickFolder(QPointer<AppState> state)
{
    auto picking =
        AccessStore::pickFolder(state->accessContext(), Text::lookup(u"Choose a folder to scan for large files."));
    const std::optional<FileURL> folder = co_await picking;
    if (state && folder)
        state->addLargeFileFolder(*folder);
}

void LargeFilesPage::removeFolder(const QString &itemId)
{
    if (const auto folder = ItemId::toURL(itemId))
        state().removeLargeFileFolder(*folder);
}

void LargeFilesPage::toggle(const QString &itemId)
{
    const auto file = listedFile(itemId);
    if (!file)
        return;
    m_selection.toggle(*file);
    m_files.touch(*file, {LargeFilesModel::SelectedRole});
    refresh();
}

void LargeFilesPage::remove()
{
    const QList<LargeFile> selected = selectedFiles();
    if (!canRemove() || selected.isEmpty())
        return;
    QSet<FileURL> urls;
    for (const LargeFile &file : selected)
        urls.insert(file.url);
    ConfirmData question = Confirmations::removeLargeFiles(selected);
    question.onConfirm = [page = QPointer(this), urls] {
        if (!page)
            return;
        detach(page->state().removeLargeFiles(urls));
        page->m_selection.clear();
        page->m_files.touchAll({LargeFilesModel::SelectedRole});
        page->refresh();
    };
    state().askToConfirm(std::move(question));
}

void LargeFilesPage::showInFileManager(const QString &itemId)
{
    if (const auto file = listedFile(itemId))
        m_actions.showInFileManager(*file);
}

void LargeFilesPage::copyPath(const QString &itemId)
{
    if (const auto file = listedFile(itemId))
        m_actions.copyPath(*file);
}

void LargeFilesPage::takeFiles()
{
    m_files.setRecords(state().largeFiles());
    // What is gone must not come back ticked.
    m_selection.keep([this](const FileURL &file) { return m_files.rowOf(file) >= 0; });
    refresh();
}

void LargeFilesPage::takeFolders()
{
    m_folders.setRecords(state().largeFileFolders());
    refresh();
}

void LargeFilesPage::takeThresholds()
{
    QList<Threshold> thresholds;
    for (const int preset : kPresets)
        thresholds.append({.megabytes = preset, .chosen = preset == m_minSizeMB});
    m_thresholds.setRecords(std::move(thresholds));
}

void LargeFilesPage::takeLanguage()
{
    m_files.touchAll();
    m_thresholds.touchAll();
    refresh();
}

void LargeFilesPage::refresh()
{
    const QList<LargeFile> selected = selectedFiles();
    const bool loading = state().largeFilesLoading();
    const bool removing = state().removing();
    show(m_view,
         View{
             .subtitle = subtitleText(),
             .emptyTitle = loading ? Text::lookup(u"Scanning for large files…") : Text::lookup(u"No large files yet"),
             .emptyHint = loading ? QString() : Text::lookup(u"Press Scan to search your folders for large files"),
             .status = statusText(selected),
             .threshold = Text::filled(u"≥ %@", {ThresholdsModel::labelOf(m_minSizeMB)}),
             .empty = state().largeFiles().isEmpty(),
             .hasFolders = !state().largeFileFolders().isEmpty(),
             .loading = loading,
             .removing = removing,
             .canRemove = !selected.isEmpty() && !removing,
         });
}

QString LargeFilesPage::subtitleText() const
{
    if (state().largeFilesLoading())
        return state().scanDetail().isEmpty() ? Text::lookup(u"Scanning…") : state().scanDetail();
    if (!m_scanned)
        return Text::lookup(u"Set threshold and press Scan");
    const qint64 count = state().largeFiles().size();
    if (count == 0)
        return Text::lookup(u"No large files found above threshold");
    const QString size = Format::bytes(state().largeFilesTotalSize());
    return count == 1 ? Text::filled(u"%lld file · %@ total", {count, size})
                      : Text::filled(u"%lld files · %@ total", {count, size});
}

QString LargeFilesPage::statusText(const QList<LargeFile> &selected)
{
    if (selected.isEmpty())
        return Text::lookup(u"Select files to remove");
    const qint64 count = selected.size();
    const QString size = Format::bytes(Totals::sizeOf(selected));
    return count == 1 ? Text::filled(u"%lld file selected · %@", {count, size})
                      : Text::filled(u"%lld files selected · %@", {count, size});
}

QList<LargeFile> LargeFilesPage::selectedFiles() const
{
    // From the selection rather than from the list, which may be long.
    QList<int> rows;
    for (const FileURL &file : m_selection.keys())
        rows.append(m_files.rowOf(file));
    std::ranges::sort(rows);
    QList<LargeFile> selected;
    for (const int row : std::as_const(rows)) {
        if (row >= 0)
            selected.append(m_files.records().at(row));
    }
    return selected;
}

std::optional<FileURL> LargeFilesPage::listedFile(const QString &itemId) const
{
    const std::optional<FileURL> url = ItemId::toURL(itemId);
    return url && m_files.rowOf(*url) >= 0 ? url : std::nullopt;
}
