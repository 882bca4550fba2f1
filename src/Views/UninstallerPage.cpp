// SPDX-License-Identifier: MIT
#include "Views/UninstallerPage.h"

#include "Models/CheckedSum.h"
#include "State/AppState.h"
#include "State/Confirmations.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/ItemActions.h"
#include "Views/ItemId.h"

#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr QByteArrayView kApplications = "/Applications";

qint64 total(const QList<InstalledApp> &apps)
{
    return checkedTotal(apps, [](const InstalledApp &app) { return Totals::sizeOf(app); });
}

QString countAndSize(const QList<InstalledApp> &apps)
{
    const qint64 count = apps.size();
    const QString size = Format::bytes(total(apps));
    return count == 1 ? Text::filled(u"%lld application · %@ installed", {count, size})
                      : Text::filled(u"%lld applications · %@ installed", {count, size});
}

QString selectionText(const QList<InstalledApp> &apps)
{
    const qint64 count = apps.size();
    if (count == 0)
        return Text::lookup(u"Select applications to uninstall");
    const QString size = Format::bytes(total(apps));
    return count == 1 ? Text::filled(u"%lld item selected · %@", {count, size})
                      : Text::filled(u"%lld items selected · %@", {count, size});
}

} // namespace

UninstallerPage::UninstallerPage(AppState &state, const ItemActions &actions, QObject *parent)
    : PageModel(state, parent)
    , m_actions(&actions)
{
    connect(&state, &AppState::appsChanged, this, &UninstallerPage::takeApps);
    connect(&state, &AppState::languageChanged, this, &UninstallerPage::retranslate);
    for (const auto signal : {&AppState::appsLoadingChanged, &AppState::scanDetailChanged, &AppState::scanningChanged,
                              &AppState::needsFullDiskAccessChanged, &AppState::removingChanged})
        connect(&state, signal, this, &UninstallerPage::refresh);
    takeApps();
}

void UninstallerPage::takeApps()
{
    // A choice ends with what was chosen: an application that comes back later was not chosen.
    QSet<FileURL> present;
    for (const InstalledApp &app : state().apps())
        present.insert(app.url);
    for (SelectionSet<FileURL> *set : {&m_selected, &m_expanded}) {
        const QSet<FileURL> keys = set->keys();
        for (const FileURL &key : keys - present)
            set->set(key, false);
    }
    follow();
    askAgainWhenChanged();
}

/// Has the rows show the state's applications and what the user did to them.
void UninstallerPage::follow()
{
    QList<AppEntry> entries;
    entries.reserve(state().apps().size());
    for (const InstalledApp &app : state().apps()) {
        entries.append({.app = app,
                        .unused = state().isUnused(app),
                        .selected = m_selected.contains(app.url),
                        .expanded = m_expanded.contains(app.url)});
    }
    m_apps.setRecords(std::move(entries));
    refresh();
}

void UninstallerPage::refresh()
{
    const AppState &now = state();
    const bool loading = now.appsLoading();
    const QString listed = countAndSize(now.apps());
    show(m_view, View{.subtitle = loading ? Text::lookup(u"Scanning applications…") : listed,
                      .listDescription = listed,
                      .loading = loading,
                      .scanDetail = loading ? now.scanDetail() : QString(),
                      .needsFullDiskAccess = now.needsFullDiskAccess(),
                      .isEmpty = now.apps().isEmpty(),
                      .canScan = !loading && !now.scanning(),
                      .footer = selectionText(selectedApps()),
                      .canRemove = !m_selected.isEmpty() && !now.removing() && !m_asking,
                      .removing = now.removing()});
}

void UninstallerPage::retranslate()
{
    m_apps.touchAll();
    refresh();
}

QList<InstalledApp> UninstallerPage::selectedApps() const
{
    QList<InstalledApp> chosen;
    std::ranges::copy_if(state().apps(), std::back_inserter(chosen),
                         [this](const InstalledApp &app) { return m_selected.contains(app.url); });
    return chosen;
}

std::optional<FileURL> UninstallerPage::appOf(const QString &itemId) const
{
    const std::optional<FileURL> url = ItemId::toURL(itemId);
    return url && m_apps.rowOf(*url) >= 0 ? url : std::nullopt;
}

std::optional<FileURL> UninstallerPage::itemOf(const QString &itemId) const
{
    const std::optional<FileURL> url = ItemId::toURL(itemId);
    if (!url)
        return std::nullopt;
    const auto holds = [&url](const InstalledApp &app) {
        return app.url == *url ||
               std::ranges::find(app.relatedFiles, *url, &RelatedFile::url) != app.relatedFiles.end();
    };
    return std::ranges::any_of(state().apps(), holds) ? url : std::nullopt;
}

void UninstallerPage::toggle(const QString &itemId)
{
    if (const auto app = appOf(itemId)) {
        m_selected.toggle(*app);
        follow();
    }
}

void UninstallerPage::toggleExpanded(const QString &itemId)
{
    if (const auto app = appOf(itemId)) {
        m_expanded.toggle(*app);
        follow();
    }
}

void UninstallerPage::clearSelection()
{
    m_selected.clear();
    follow();
}

void UninstallerPage::scan()
{
    state().rescanAll();
}

void UninstallerPage::stopScan()
{
    state().stopScans();
}

void UninstallerPage::openAccessSettings()
{
    state().openFullDiskAccessSettings();
}

void UninstallerPage::showInFileManager(const QString &itemId) const
{
    if (const auto item = itemOf(itemId))
        m_actions->showInFileManager(*item);
}

void UninstallerPage::copyPath(const QString &itemId) const
{
    if (const auto item = itemOf(itemId))
        m_actions->copyPath(*item);
}

void UninstallerPage::remove()
{
    if (m_view.canRemove)
        detach(runRemove(this));
}

QCoro::Task<> UninstallerPage::runRemove(QPointer<UninstallerPage> self)
{
    self->m_asking = true;
    self->refresh();
    const AccessContext context = self->state().accessContext();
    const bool granted = co_await AccessStore::ensureAccess(context, AccessStore::applications.key,
                                                            FileURL::fromCleanPath(kApplications.toByteArray()),
                                                            Text::lookup(AccessStore::applications.message));
    if (!self)
        co_return;
    self->m_asking = false;
    self->refresh();
    if (!granted) {
        self->state().raiseAlert(Text::lookup(u"Can't move to Trash"), Text::lookup(AccessStore::applications.message));
        co_return;
    }
    // As chosen by now: the panel may have stood for long.
    if (const QList<InstalledApp> apps = self->selectedApps(); !apps.isEmpty())
        self->ask(apps);
}

void UninstallerPage::ask(const QList<InstalledApp> &apps)
{
    QSet<FileURL> bundles;
    for (const InstalledApp &app : apps)
        bundles.insert(app.url);
    ConfirmData question = Confirmations::uninstall(apps);
    question.onConfirm = [page = QPointer(this), state = QPointer(&state()), bundles] {
        if (state)
            detach(state->uninstallApps(bundles));
        if (page)
            page->clearSelection();
    };
    m_question = question.id;
    m_questioned = apps;
    state().askToConfirm(std::move(question));
}

/// Related files may be found while the question stands: what it says must be what will go.
void UninstallerPage::askAgainWhenChanged()
{
    if (!m_question || !state().confirm() || state().confirm()->id != *m_question)
        return;
    QList<InstalledApp> now;
    for (const InstalledApp &asked : std::as_const(m_questioned)) {
        const auto app = std::ranges::find(state().apps(), asked.url, &InstalledApp::url);
        if (app != state().apps().end())
            now.append(*app);
    }
    if (now.isEmpty())
        state().cancelConfirm();
    else if (now != m_questioned)
        ask(now);
}
