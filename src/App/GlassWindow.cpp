// SPDX-License-Identifier: MIT
#include "App/GlassWindow.h"

#include "App/RoundedMask.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// The title bar as it would be laid out in the window's corner, before its buttons move into the panel's.
constexpr double kTitleBarHeight = 40;
constexpr double kFirstButton = 13;
constexpr double kButtonStep = 20;

QRectF defaultFrame(TitleBarButton button)
{
    constexpr double kSize = GlassWindow::kTitleButtonSize;
    return {kFirstButton + kButtonStep * static_cast<int>(button), (kTitleBarHeight - kSize) / 2, kSize, kSize};
}

/// From the title bar's coordinates, whose y runs upwards, to the window's.
QPointF inWindow(QPointF origin)
{
    return {origin.x(), kTitleBarHeight - GlassWindow::kTitleButtonSize - origin.y()};
}

} // namespace

GlassWindow::GlassWindow(QQmlEngine *engine, const Scheduler &schedule, std::function<bool()> isComposited)
    : QQuickView(engine, nullptr)
    , m_isComposited(std::move(isComposited))
    , m_titleBar(schedule, defaultFrame, [this](TitleBarButton button, QPointF origin) {
        const QPointF place = inWindow(origin);
        if (m_titleButtons.value(button) == place)
            return;
        m_titleButtons.insert(button, place);
        Q_EMIT titleButtonsMoved();
    })
{
    setResizeMode(SizeRootObjectToView);
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setColor(Qt::transparent);
    resize(kStartSize);
    m_titleBar.reposition();
    connect(this, &QWindow::windowStateChanged, this, &GlassWindow::layOut);
    connect(this, &QWindow::activeChanged, this, [this] {
        // A compositor may have come or gone while another program had the screen.
        if (isActive())
            applyCompositing();
    });
}

bool GlassWindow::maximised() const
{
    return (windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
}

int GlassWindow::inset() const
{
    return maximised() || !m_translucent ? 0 : Theme::kPanelInset;
}

int GlassWindow::radius() const
{
    return maximised() ? 0 : Theme::kWindowRadius;
}

void GlassWindow::centre()
{
    QRect place(QPoint(), size());
    place.moveCenter(screen()->availableGeometry().center());
    setPosition(place.topLeft());
}

void GlassWindow::makeKeyAndOrderFront()
{
    if (windowStates() & Qt::WindowMinimized)
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
    setVisible(true); // show() would end its being maximised
    raise();
    requestActivate();
    m_titleBar.scheduleReposition();
}

void GlassWindow::applyCompositing()
{
    m_translucent = m_isComposited();
    layOut();
    m_titleBar.scheduleReposition();
}

void GlassWindow::startMove()
{
    startSystemMove();
}

void GlassWindow::startResize(int edges)
{
    if (!maximised())
        startSystemResize(Qt::Edges::fromInt(edges));
}

void GlassWindow::minimise()
{
    // Maximised stays maximised when it comes back.
    setWindowStates(windowStates() | Qt::WindowMinimized);
}

void GlassWindow::toggleZoom()
{
    setWindowStates(maximised() ? Qt::WindowNoState : Qt::WindowMaximized);
}

void GlassWindow::closeRequested()
{
    close();
}

bool GlassWindow::event(QEvent *event)
{
    if (event->type() == QEvent::Close && m_shouldClose && !m_shouldClose()) {
        event->ignore();
        return true;
    }
    return QQuickView::event(event);
}

void GlassWindow::exposeEvent(QExposeEvent *event)
{
    QQuickView::exposeEvent(event);
    if (m_appeared || !isExposed())
        return;
    m_appeared = true;
    Q_EMIT appeared();
}

void GlassWindow::resizeEvent(QResizeEvent *event)
{
    QQuickView::resizeEvent(event);
    cutCorners();
}

void GlassWindow::layOut()
{
    cutCorners();
    m_titleBar.setInset(inset());
    m_titleBar.reposition();
    Q_EMIT layoutChanged();
}

void GlassWindow::cutCorners()
{
    const QRegion shape = m_translucent || maximised() ? QRegion() : roundedMask(size(), radius());
    if (shape != mask())
        setMask(shape);
}
