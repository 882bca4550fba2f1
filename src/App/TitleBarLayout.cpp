// SPDX-License-Identifier: MIT
#include "App/TitleBarLayout.h"

using namespace std::chrono_literals;

TitleBarLayout::TitleBarLayout(Scheduler schedule, std::function<QRectF(TitleBarButton)> frameOf,
                               std::function<void(TitleBarButton, QPointF)> place)
    : m_schedule(std::move(schedule))
    , m_passes(std::make_shared<Passes>())
{
    m_passes->frameOf = std::move(frameOf);
    m_passes->place = std::move(place);
}

void TitleBarLayout::scheduleReposition()
{
    reposition();
    for (const auto delay : {50ms, 200ms, 500ms}) {
        m_schedule(delay, [weak = std::weak_ptr(m_passes)] {
            if (const auto passes = weak.lock())
                passes->run();
        });
    }
}

void TitleBarLayout::reposition()
{
    m_passes->run();
}

void TitleBarLayout::Passes::run()
{
    for (const auto button : {TitleBarButton::close, TitleBarButton::miniaturize, TitleBarButton::zoom}) {
        const QRectF frame = frameOf(button);
        if (frame.isEmpty())
            continue;
        if (!defaultOrigin.contains(button))
            defaultOrigin.insert(button, frame.topLeft());
        const QPointF origin = defaultOrigin.value(button);
        place(button, {origin.x() + inset, origin.y() - (inset + kDrop)});
    }
}
