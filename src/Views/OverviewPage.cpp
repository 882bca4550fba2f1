// SPDX-License-Identifier: MIT
#include "Views/OverviewPage.h"

#include "State/AppState.h"

OverviewPage::OverviewPage(AppState &state, Figures &figures, QObject *parent)
    : PageModel(state, parent)
    , m_figures(&figures)
{
    for (const auto signal :
         {&AppState::scanningChanged, &AppState::appsLoadingChanged, &AppState::duplicatesLoadingChanged,
          &AppState::largeFilesLoadingChanged, &AppState::junkLoadingChanged, &AppState::scanDetailChanged})
        connect(&state, signal, this, &OverviewPage::refresh);
    refresh();
}

void OverviewPage::refresh()
{
    const AppState &now = state();
    View view{.scanning = now.scanning(),
              .apps = now.appsLoading(),
              .duplicates = now.duplicatesLoading(),
              .largeFiles = now.largeFilesLoading(),
              .junk = now.junkLoading(),
              .detail = {}};
    if (view.apps || view.duplicates || view.largeFiles || view.junk)
        view.detail = now.scanDetail();
    show(m_view, view);
}

void OverviewPage::open(Navigation::Target page)
{
    state().setSelection(static_cast<Page>(page));
}

void OverviewPage::stopScan()
{
    state().stopScans();
}
