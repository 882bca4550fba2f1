// SPDX-License-Identifier: MIT
#include "Views/PageModels.h"

#include "State/AppState.h"

PageModels::PageModels(AppState &state, NotificationCenter &notifications, const Surroundings &surroundings,
                       QObject *parent)
    : QObject(parent)
    , m_actions(state.accessContext().platform, surroundings.copyText)
    , m_navigation(state)
    , m_figures(state)
    , m_overview(state, m_figures)
    , m_uninstaller(state, m_actions)
    , m_duplicates(state, m_actions)
    , m_largeFiles(state, m_actions)
    , m_junk(state, m_actions)
    , m_startup(state, m_actions)
    , m_settings(state)
    , m_panel(state, m_figures, notifications, surroundings.terminate)
    , m_notices(state)
{
}
