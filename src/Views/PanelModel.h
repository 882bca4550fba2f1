// SPDX-License-Identifier: MIT
#pragma once

#include "Views/Figures.h"
#include "Views/Navigation.h"
#include "Views/PageModel.h"

#include <QtQmlIntegration>

#include <functional>

class NotificationCenter;

/// The small panel of the status item: the overview's figures, and what leads to the window. It reaches the program's
/// delegate by notifications alone. Main thread.
class PanelModel final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel comes from the program.")
    Q_PROPERTY(Figures *figures READ figures CONSTANT FINAL)

public:
    /// `figures` and `notifications` outlive the model; `terminate` ends the program.
    PanelModel(AppState &state, Figures &figures, NotificationCenter &notifications, std::function<void()> terminate,
               QObject *parent = nullptr);

    [[nodiscard]] Figures *figures() const { return m_figures; }

    /// Opens the window on a page, and closes the panel.
    Q_INVOKABLE void openPage(Navigation::Target page);
    /// Opens the window on the page that it last showed, and closes the panel.
    Q_INVOKABLE void openWindow();
    Q_INVOKABLE void quit();

private:
    Figures *m_figures;
    NotificationCenter *m_notifications;
    std::function<void()> m_terminate;
};
