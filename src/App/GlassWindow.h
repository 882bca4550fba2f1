// SPDX-License-Identifier: MIT
#pragma once

#include "App/TitleBarLayout.h"
#include "Support/Scheduler.h"

#include <QHash>
#include <QPointF>
#include <QQuickView>
#include <QtQmlIntegration>

#include <functional>

/// The main window: a translucent panel with rounded corners that floats inside a frameless, transparent window. It
/// draws its own title bar, so it offers what a frame would do. Where nothing makes windows translucent the panel
/// fills the window, opaque, and its corners are cut off. Closing is asked for; who owns the window decides.
class GlassWindow final : public QQuickView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application makes its windows.")
    Q_PROPERTY(bool maximised READ maximised NOTIFY layoutChanged FINAL)
    /// Whether what lies behind the window shows through where nothing is drawn.
    Q_PROPERTY(bool translucent READ translucent NOTIFY layoutChanged FINAL)
    /// How far the panel's edge lies inside the window's, in points.
    Q_PROPERTY(int inset READ inset NOTIFY layoutChanged FINAL)
    /// The panel's corner radius, in points: none while the window is maximised.
    Q_PROPERTY(int radius READ radius NOTIFY layoutChanged FINAL)
    // Where the buttons of the title bar go: their upper left corners, in the window's coordinates.
    Q_PROPERTY(QPointF closePosition READ closePosition NOTIFY titleButtonsMoved FINAL)
    Q_PROPERTY(QPointF minimisePosition READ minimisePosition NOTIFY titleButtonsMoved FINAL)
    Q_PROPERTY(QPointF zoomPosition READ zoomPosition NOTIFY titleButtonsMoved FINAL)
    /// The buttons' diameter, in points.
    Q_PROPERTY(int titleButtonSize MEMBER kTitleButtonSize CONSTANT FINAL)

public:
    static constexpr QSize kMinimumSize{1'000, 680};
    static constexpr QSize kStartSize{1'100, 680};
    static constexpr int kTitleButtonSize = 12;

    /// `isComposited` answers whether windows can be translucent now.
    GlassWindow(QQmlEngine *engine, const Scheduler &schedule, std::function<bool()> isComposited);

    [[nodiscard]] bool maximised() const;
    [[nodiscard]] bool translucent() const { return m_translucent; }
    [[nodiscard]] int inset() const;
    [[nodiscard]] int radius() const;
    [[nodiscard]] QPointF closePosition() const { return m_titleButtons.value(TitleBarButton::close); }
    [[nodiscard]] QPointF minimisePosition() const { return m_titleButtons.value(TitleBarButton::miniaturize); }
    [[nodiscard]] QPointF zoomPosition() const { return m_titleButtons.value(TitleBarButton::zoom); }

    /// Decides whether the window really closes when that is asked for. Without it, it does.
    void setShouldClose(std::function<bool()> shouldClose) { m_shouldClose = std::move(shouldClose); }
    /// Puts the window into the middle of its screen's free area.
    void centre();
    /// Shows the window, also when it was minimised, in front of all others and with the keyboard.
    void makeKeyAndOrderFront();
    /// Asks the display anew whether windows can be translucent, and lays the panel out for the answer.
    void applyCompositing();

    // What a frame would do, for the panel's own title bar and edges.
    Q_INVOKABLE void startMove();
    /// `edges`: a combination of Qt::TopEdge, LeftEdge, RightEdge and BottomEdge.
    Q_INVOKABLE void startResize(int edges);
    Q_INVOKABLE void minimise();
    Q_INVOKABLE void toggleZoom();
    /// The close button was pressed.
    Q_INVOKABLE void closeRequested();

Q_SIGNALS:
    void layoutChanged();
    void titleButtonsMoved();
    /// The window is on screen for the first time.
    void appeared();

protected:
    bool event(QEvent *event) override;
    void exposeEvent(QExposeEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void cutCorners();

    std::function<bool()> m_isComposited;
    std::function<bool()> m_shouldClose;
    bool m_translucent = true;
    bool m_appeared = false;
    QHash<TitleBarButton, QPointF> m_titleButtons;
    TitleBarLayout m_titleBar;
};
