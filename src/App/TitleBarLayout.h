// SPDX-License-Identifier: MIT
#pragma once

#include "Support/Scheduler.h"
#include "Theme/Theme.h"

#include <QHash>
#include <QPointF>
#include <QRectF>

#include <functional>
#include <memory>

enum class TitleBarButton { close, miniaturize, zoom };

/// Moves the three buttons of the title bar into the corner of the glass panel, which is smaller than the window.
/// Where they belong is reckoned from where the system first had them, so that doing it again moves nothing. The system
/// lays them out anew after showing and resizing: later passes win. Coordinates are the title bar's own, with y
/// running upwards. Main thread.
class TitleBarLayout
{
public:
    /// How far the panel's edge lies inside the window's, in points.
    static constexpr double kPanelInset = Theme::kPanelInset;
    /// How much further down the buttons go than the panel's edge does.
    static constexpr double kDrop = 4;

    /// `frameOf` answers where a button is, an empty rectangle while it is not laid out; `place` moves it there.
    TitleBarLayout(Scheduler schedule, std::function<QRectF(TitleBarButton)> frameOf,
                   std::function<void(TitleBarButton, QPointF)> place);

    /// Repositions now and after 50, 200 and 500 ms.
    void scheduleReposition();
    void reposition();
    /// How far inside the window the panel's edge lies now; a maximised window has no margin.
    void setInset(double inset) { m_passes->inset = inset; }

private:
    /// What the passes to come share; they do nothing once the layout is gone.
    struct Passes {
        std::function<QRectF(TitleBarButton)> frameOf;
        std::function<void(TitleBarButton, QPointF)> place;
        double inset = kPanelInset;
        QHash<TitleBarButton, QPointF> defaultOrigin; // as the system had it
        void run();
    };

    Scheduler m_schedule;
    std::shared_ptr<Passes> m_passes;
};
