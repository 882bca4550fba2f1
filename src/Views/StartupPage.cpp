// SPDX-License-Identifier: MIT
#include "Views/StartupPage.h"

#include "State/AppState.h"
#include "State/Confirmations.h"
#include "Support/Text.h"
#include "Views/ItemActions.h"
#include "Views/ItemId.h"

#include <QPointer>

#include <algorithm>

namespace {

QString statusOf(const QList<StartupItem> &items, bool loading, bool scanned)
{
    if (loading)
        return Text::lookup(u"Scanning startup items…");
    if (items.isEmpty())
        return scanned ? Text::lookup(u"No startup items found") : Text::lookup(u"Press Scan to list startup items");
    const qint64 count = items.size();
    const qint64 enabled = std::ranges::count_if(items, &StartupItem::isEnabled);
    return count == 1 ? Text::filled(u"%lld item · %lld enabled", {count, enabled})
                      : Text::filled(u"%lld items · %lld enabled", {count, enabled});
}

} // namespace

StartupPage::StartupPage(AppState &state, const ItemActions &actions, QObject *parent)
    : PageModel(state, parent)
    , m_actions(&actions)
{
    connect(&state, &AppState::startupItemsChanged, this, &StartupPage::takeItems);
    connect(&state, &AppState::removingChanged, this, &StartupPage::takeItems);
    connect(&state, &AppState::startupLoadingChanged, this, &StartupPage::refresh);
    connect(&state, &AppState::scanDetailChanged, this, &StartupPage::refresh);
    connect(&state, &AppState::languageChanged, this, &StartupPage::retranslate);
    takeItems();
}

void StartupPage::takeItems()
{
    QList<StartupEntry> entries;
    entries.reserve(state().startupItems().size());
    for (const StartupItem &item : state().startupItems())
        entries.append({.item = item, .removing = state().removing()});
    m_items.setRecords(std::move(entries));
    refresh();
}

void StartupPage::refresh()
{
    const bool loading = state().startupLoading();
    show(m_view, View{.status = statusOf(state().startupItems(), loading, m_scanned),
                      .loading = loading,
                      .scanDetail = loading ? state().scanDetail() : QString(),
                      .isEmpty = state().startupItems().isEmpty(),
                      .removing = state().removing()});
}

void StartupPage::retranslate()
{
    m_items.touchAll();
    refresh();
}

void StartupPage::appeared()
{
    if (!m_scanned)
        refreshItems();
}

void StartupPage::refreshItems()
{
    m_scanned = true;
    state().rescanStartupItems();
    refresh();
}

void StartupPage::stopScan()
{
    state().stopScans();
}

const StartupItem *StartupPage::itemOf(const QString &itemId) const
{
    const std::optional<FileURL> path = ItemId::toURL(itemId);
    const int row = path ? m_items.rowOf(*path) : -1;
    return row < 0 ? nullptr : &m_items.records().at(row).item;
}

void StartupPage::toggle(const QString &itemId)
{
    const StartupItem *item = itemOf(itemId);
    if (item && item->isUserLevel)
        detach(state().toggleStartupItem(*item));
}

void StartupPage::remove(const QString &itemId)
{
    const StartupItem *item = itemOf(itemId);
    if (!item || !item->isUserLevel || state().removing())
        return;
    ConfirmData question = Confirmations::removeStartupItem(*item);
    question.onConfirm = [state = QPointer(&state()), chosen = *item] {
        if (state)
            detach(state->removeStartupItem(chosen));
    };
    state().askToConfirm(std::move(question));
}

void StartupPage::showInFileManager(const QString &itemId) const
{
    if (const StartupItem *item = itemOf(itemId))
        m_actions->showInFileManager(item->path);
}

void StartupPage::copyPath(const QString &itemId) const
{
    if (const StartupItem *item = itemOf(itemId))
        m_actions->copyPath(item->path);
}
