// SPDX-License-Identifier: MIT
#include "Views/JunkPage.h"

#include "State/AppState.h"
#include "State/Confirmations.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/ItemActions.h"
#include "Views/ItemId.h"

#include <algorithm>

JunkPage::JunkPage(AppState &state, const ItemActions &actions, QObject *parent)
    : PageModel(state, parent)
    , m_actions(actions)
{
    connect(&state, &AppState::junkCategoriesChanged, this, &JunkPage::takeCategories);
    connect(&state, &AppState::junkLoadingChanged, this, &JunkPage::refresh);
    connect(&state, &AppState::scanDetailChanged, this, &JunkPage::refresh);
    connect(&state, &AppState::removingChanged, this, &JunkPage::refresh);
    connect(&state, &AppState::needsFullDiskAccessChanged, this, &JunkPage::refresh);
    connect(&state, &AppState::languageChanged, this, [this] {
        m_categories.touchAll();
        refresh();
    });
    takeCategories();
}

void JunkPage::appeared()
{
    if (!m_scanned && state().junkCategories().isEmpty())
        scan();
}

void JunkPage::scan()
{
    m_scanned = true;
    state().scanJunk();
    refresh();
}

void JunkPage::stopScan()
{
    state().stopScans();
}

void JunkPage::toggle(const QString &itemId)
{
    const JunkCategory *category = find(itemId);
    if (!category)
        return;
    m_selection.toggle(category->id);
    m_categories.touch(category->name, {JunkCategoriesModel::SelectedRole});
    refresh();
}

void JunkPage::toggleExpanded(const QString &itemId)
{
    if (const JunkCategory *category = find(itemId))
        m_categories.toggleExpanded(category->name);
}

void JunkPage::clean()
{
    const QList<JunkCategory> selected = selectedCategories();
    if (!canClean() || selected.isEmpty())
        return;
    QList<QUuid> ids;
    for (const JunkCategory &category : selected)
        ids.append(category.id);
    ConfirmData question = Confirmations::cleanJunk(selected);
    question.onConfirm = [page = QPointer(this), ids] {
        if (!page)
            return;
        for (const QUuid &id : ids)
            detach(page->state().removeJunkCategory(id));
        page->m_selection.clear();
        page->m_categories.touchAll({JunkCategoriesModel::SelectedRole});
        page->refresh();
    };
    state().askToConfirm(std::move(question));
}

void JunkPage::openAccessSettings()
{
    state().openFullDiskAccessSettings();
}

void JunkPage::showInFileManager(const QString &fileId)
{
    if (const auto file = listedFile(fileId))
        m_actions.showInFileManager(*file);
}

void JunkPage::copyPath(const QString &fileId)
{
    if (const auto file = listedFile(fileId))
        m_actions.copyPath(*file);
}

void JunkPage::takeCategories()
{
    m_categories.setRecords(state().junkCategories());
    refresh();
}

void JunkPage::refresh()
{
    const QList<JunkCategory> selected = selectedCategories();
    const bool loading = state().junkLoading();
    const bool removing = state().removing();
    show(m_view,
         View{
             .subtitle = subtitleText(),
             .emptyTitle = loading ? Text::lookup(u"Scanning system caches…") : Text::lookup(u"No junk found yet"),
             .emptyHint =
                 loading ? QString() : Text::lookup(u"Press Scan to search for caches, logs, and temporary files"),
             .status = statusText(selected),
             .empty = state().junkCategories().isEmpty(),
             .loading = loading,
             .removing = removing,
             .canClean = !selected.isEmpty() && !loading && !removing,
             .needsAccess = state().needsFullDiskAccess(),
         });
}

QString JunkPage::subtitleText() const
{
    if (state().junkLoading())
        return state().scanDetail().isEmpty() ? Text::lookup(u"Scanning…") : state().scanDetail();
    const qint64 count = state().junkCategories().size();
    if (count == 0) {
        return m_scanned ? Text::lookup(u"No junk found — your Mac is clean")
                         : Text::lookup(u"Press Scan to find junk files");
    }
    const QString size = Format::bytes(state().junkReclaimable());
    return count == 1 ? Text::filled(u"%lld category · %@ reclaimable", {count, size})
                      : Text::filled(u"%lld categories · %@ reclaimable", {count, size});
}

QString JunkPage::statusText(const QList<JunkCategory> &selected)
{
    if (selected.isEmpty())
        return Text::lookup(u"Select categories to clean");
    return Text::filled(u"%lld selected · %@", {qint64(selected.size()), Format::bytes(Totals::sizeOf(selected))});
}

QList<JunkCategory> JunkPage::selectedCategories() const
{
    QList<JunkCategory> selected;
    std::ranges::copy_if(state().junkCategories(), std::back_inserter(selected),
                         [this](const JunkCategory &category) { return m_selection.contains(category.id); });
    return selected;
}

const JunkCategory *JunkPage::find(const QString &itemId) const
{
    const QList<JunkCategory> &categories = state().junkCategories();
    const auto found = std::ranges::find(categories, QUuid::fromString(itemId), &JunkCategory::id);
    return found == categories.cend() ? nullptr : &*found;
}

std::optional<FileURL> JunkPage::listedFile(const QString &fileId) const
{
    const std::optional<FileURL> url = ItemId::toURL(fileId);
    const auto lists = [&url](const JunkCategory &category) {
        return std::ranges::find(category.files, *url, &JunkFile::url) != category.files.cend();
    };
    return url && std::ranges::any_of(state().junkCategories(), lists) ? url : std::nullopt;
}
