// SPDX-License-Identifier: MIT
#include "Views/PanelModel.h"

#include "State/AppState.h"
#include "Support/NotificationCenter.h"

#include <utility>

PanelModel::PanelModel(AppState &state, Figures &figures, NotificationCenter &notifications,
                       std::function<void()> terminate, QObject *parent)
    : PageModel(state, parent)
    , m_figures(&figures)
    , m_notifications(&notifications)
    , m_terminate(std::move(terminate))
{
}

void PanelModel::openPage(Navigation::Target page)
{
    state().setSelection(static_cast<Page>(page));
    m_notifications->post(Notification::openMainWindow);
    m_notifications->post(Notification::closeMenuPopover);
}

void PanelModel::openWindow()
{
    openPage(static_cast<Navigation::Target>(state().selection()));
}

void PanelModel::quit()
{
    m_notifications->post(Notification::closeMenuPopover);
    m_terminate();
}
