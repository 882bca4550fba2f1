// SPDX-License-Identifier: MIT
#include "App/TitleBarLayout.h"
#include "Fakes/FakeScheduler.h"

#include <QHash>
#include <QTest>

#include <optional>

using namespace std::chrono_literals;

namespace {

/// The title bar of a window, whose buttons the system lays out.
struct Bar {
    QHash<TitleBarButton, QRectF> frames;
    QHash<TitleBarButton, int> moves;

    std::function<QRectF(TitleBarButton)> frameOf()
    {
        return [this](TitleBarButton button) { return frames.value(button); };
    }
    std::function<void(TitleBarButton, QPointF)> place()
    {
        return [this](TitleBarButton button, QPointF origin) {
            frames[button].moveTopLeft(origin);
            ++moves[button];
        };
    }
    void layOut()
    {
        frames[TitleBarButton::close] = QRectF(7, 6, 14, 16);
        frames[TitleBarButton::miniaturize] = QRectF(27, 6, 14, 16);
        frames[TitleBarButton::zoom] = QRectF(47, 6, 14, 16);
    }
};

} // namespace

class tst_TitleBarLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movesEachButtonIntoThePanel()
    {
        Bar bar;
        bar.layOut();
        TitleBarLayout layout(m_clock.scheduler(), bar.frameOf(), bar.place());
        layout.reposition();
        // y runs upwards: 8 + 4 further down.
        QCOMPARE(bar.frames.value(TitleBarButton::close), QRectF(15, -6, 14, 16));
        QCOMPARE(bar.frames.value(TitleBarButton::miniaturize), QRectF(35, -6, 14, 16));
        QCOMPARE(bar.frames.value(TitleBarButton::zoom), QRectF(55, -6, 14, 16));
    }

    void doingItAgainMovesNothing()
    {
        Bar bar;
        bar.layOut();
        TitleBarLayout layout(m_clock.scheduler(), bar.frameOf(), bar.place());
        for (int i = 0; i < 5; ++i)
            layout.scheduleReposition();
        m_clock.advance(1s);
        QCOMPARE(bar.frames.value(TitleBarButton::close).topLeft(), QPointF(15, -6));
        QCOMPARE(bar.frames.value(TitleBarButton::zoom).topLeft(), QPointF(55, -6));
    }

    void passesRunAtOnceAndAfter50And200And500Milliseconds()
    {
        Bar bar;
        bar.layOut();
        TitleBarLayout layout(m_clock.scheduler(), bar.frameOf(), bar.place());
        layout.scheduleReposition();
        QCOMPARE(bar.moves.value(TitleBarButton::close), 1);
        const QList<std::pair<std::chrono::milliseconds, int>> expected{{49ms, 1},  {1ms, 2}, {149ms, 2}, {1ms, 3},
                                                                        {299ms, 3}, {1ms, 4}, {10s, 4}};
        for (const auto &[wait, moves] : expected) {
            m_clock.advance(wait);
            QCOMPARE(bar.moves.value(TitleBarButton::close), moves);
        }
    }

    void aLaterPassUndoesTheSystemsOwnLayout()
    {
        Bar bar;
        bar.layOut();
        TitleBarLayout layout(m_clock.scheduler(), bar.frameOf(), bar.place());
        layout.scheduleReposition();
        bar.layOut();
        m_clock.advance(50ms);
        QCOMPARE(bar.frames.value(TitleBarButton::miniaturize).topLeft(), QPointF(35, -6));
    }

    void aButtonThatIsNotLaidOutYetIsLeftToALaterPass()
    {
        Bar bar;
        TitleBarLayout layout(m_clock.scheduler(), bar.frameOf(), bar.place());
        layout.scheduleReposition();
        QVERIFY(bar.moves.isEmpty());
        m_clock.advance(60ms);
        bar.frames[TitleBarButton::close] = QRectF(7, 6, 14, 16);
        m_clock.advance(140ms);
        QCOMPARE(bar.moves, (QHash<TitleBarButton, int>{{TitleBarButton::close, 1}}));
        QCOMPARE(bar.frames.value(TitleBarButton::close).topLeft(), QPointF(15, -6));
    }

    void withoutAMarginOnlyTheDropIsLeft()
    {
        Bar bar;
        bar.layOut();
        TitleBarLayout layout(m_clock.scheduler(), bar.frameOf(), bar.place());
        layout.reposition();
        layout.setInset(0);
        layout.reposition();
        QCOMPARE(bar.frames.value(TitleBarButton::close).topLeft(), QPointF(7, 2));
        layout.setInset(TitleBarLayout::kPanelInset);
        layout.reposition();
        QCOMPARE(bar.frames.value(TitleBarButton::close).topLeft(), QPointF(15, -6));
    }

    void passesDoNothingOnceTheLayoutIsGone()
    {
        Bar bar;
        bar.layOut();
        std::optional<TitleBarLayout> layout(std::in_place, m_clock.scheduler(), bar.frameOf(), bar.place());
        layout->scheduleReposition();
        layout.reset();
        m_clock.advance(1s);
        QCOMPARE(bar.moves.value(TitleBarButton::close), 1);
    }

private:
    FakeScheduler m_clock;
};

QTEST_GUILESS_MAIN(tst_TitleBarLayout)
#include "tst_TitleBarLayout.moc"
