// SPDX-License-Identifier: MIT
#include "App/PanelWindow.h"

#include "App/RoundedMask.h"
#include "Theme/Theme.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kMargin = 12; // to the area's edges
constexpr int kGap = 6;     // to the status item

/// How long after the keyboard went a click may still be the one that took it: it goes when the button is pressed, and
/// the item hears of the click when it is released.
constexpr auto kSameClick = 400ms;

} // namespace

PanelWindow::PanelWindow(QQmlEngine *engine, std::function<bool()> isComposited, std::function<Clock::time_point()> now)
    : QQuickView(engine, nullptr)
    , m_isComposited(std::move(isComposited))
    , m_now(std::move(now))
{
    setTitle(u"Brisko panel"_s);
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setColor(Qt::transparent);
    setResizeMode(SizeViewToRootObject);
    connect(this, &QWindow::activeChanged, this, [this] {
        if (!isActive() && isVisible())
            turnedAway();
    });
}

void PanelWindow::toggle(const QRect &statusItem)
{
    const bool closedByThisClick = m_turnedAwayAt && m_now() - *m_turnedAwayAt < kSameClick;
    m_turnedAwayAt.reset();
    if (isVisible())
        performClose();
    else if (!closedByThisClick)
        open(statusItem);
}

void PanelWindow::performClose()
{
    hide();
}

QPoint PanelWindow::place(QSize panel, const QRect &statusItem, const QRect &area)
{
    const int left = area.left() + kMargin;
    const int right = area.x() + area.width() - panel.width() - kMargin;
    const int top = area.top() + kMargin;
    if (statusItem.isEmpty())
        return {std::max(left, right), top};
    const int x = statusItem.center().x() - panel.width() / 2;
    const bool isBelow = statusItem.center().y() < area.center().y();
    const int y = isBelow ? statusItem.y() + statusItem.height() + kGap : statusItem.y() - panel.height() - kGap;
    return {std::clamp(x, left, std::max(left, right)),
            std::clamp(y, area.top(), std::max(area.top(), area.y() + area.height() - panel.height()))};
}

void PanelWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        performClose();
    else
        QQuickView::keyPressEvent(event);
}

void PanelWindow::open(const QRect &statusItem)
{
    QScreen *target = QGuiApplication::screenAt(statusItem.center());
    if (statusItem.isEmpty() || !target)
        target = screen();
    setScreen(target);
    applyCompositing();
    setPosition(place(size(), statusItem, target->availableGeometry()));
    show();
    raise();
    requestActivate();
}

void PanelWindow::turnedAway()
{
    m_turnedAwayAt = m_now();
    performClose();
}

void PanelWindow::applyCompositing()
{
    const bool isComposited = m_isComposited();
    rootObject()->setProperty("translucent", isComposited);
    const QRegion shape = isComposited ? QRegion() : roundedMask(size(), Theme::kWindowRadius);
    if (shape != mask())
        setMask(shape);
}
