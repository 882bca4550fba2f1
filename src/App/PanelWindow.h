// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickView>

#include <chrono>
#include <functional>
#include <optional>

/// The panel that the status item opens. It closes when the user turns elsewhere, on Escape, and on the next click on
/// the item. Its size is its content's.
class PanelWindow final : public QQuickView
{
    Q_OBJECT

public:
    using Clock = std::chrono::steady_clock;

    /// `isComposited` answers whether windows can be translucent now.
    PanelWindow(QQmlEngine *engine, std::function<bool()> isComposited,
                std::function<Clock::time_point()> now = Clock::now);

    /// Closes the panel, or opens it at the status item (an empty rectangle where its place is unknown). A click on the
    /// item takes the keyboard from the open panel first: that click closes it and opens nothing.
    void toggle(const QRect &statusItem);
    void performClose();

    /// Where a panel goes: below the status item or, in the lower half, above it, inside the screen's free area; into
    /// the area's upper right corner where the item's place is unknown.
    [[nodiscard]] static QPoint place(QSize panel, const QRect &statusItem, const QRect &area);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void open(const QRect &statusItem);
    void turnedAway();
    void applyCompositing();

    std::function<bool()> m_isComposited;
    std::function<Clock::time_point()> m_now;
    std::optional<Clock::time_point> m_turnedAwayAt; // when losing the keyboard closed it
};
