// SPDX-License-Identifier: MIT
#include "App/GlassWindow.h"
#include "Fakes/FakeScheduler.h"
#include "Fakes/Warnings.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace std::chrono_literals;

class tst_GlassWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_composited = true;
        m_window = std::make_unique<GlassWindow>(&m_engine, m_clock.scheduler(), [this] { return m_composited; });
        m_window->applyCompositing();
    }
    void cleanup() { m_window.reset(); }

    void isFramelessTransparentAndOfTheStartSize()
    {
        QVERIFY(m_window->flags() & Qt::FramelessWindowHint);
        QCOMPARE(m_window->flags() & Qt::WindowType_Mask, Qt::Window);
        QCOMPARE(m_window->color().alpha(), 0);
        QCOMPARE(m_window->size(), QSize(1'100, 680));
        QCOMPARE(GlassWindow::kMinimumSize, QSize(1'000, 680));
    }

    void floatsInsideATransparentMargin()
    {
        QVERIFY(m_window->translucent());
        QCOMPARE(m_window->inset(), 8);
        QCOMPARE(m_window->radius(), 20);
        QVERIFY(m_window->mask().isEmpty());
    }

    void fillsTheWindowWithoutACompositor()
    {
        QSignalSpy changed(m_window.get(), &GlassWindow::layoutChanged);
        m_composited = false;
        m_window->applyCompositing();
        QVERIFY(!m_window->translucent());
        QCOMPARE(m_window->inset(), 0);
        QCOMPARE(changed.count(), 1);
        // The corners are cut off, the edges' middles are not.
        const QRegion mask = m_window->mask();
        QVERIFY(!mask.contains(QPoint(1, 1)));
        QVERIFY(!mask.contains(QPoint(1'098, 678)));
        QVERIFY(mask.contains(QPoint(550, 1)));
        QVERIFY(mask.contains(QPoint(1, 340)));
    }

    void theCornersFollowTheSize()
    {
        m_composited = false;
        m_window->applyCompositing();
        m_window->makeKeyAndOrderFront();
        m_window->resize(1'300, 800);
        QTRY_VERIFY(m_window->mask().contains(QPoint(1'200, 700)));
        QVERIFY(!m_window->mask().contains(QPoint(1'298, 798)));
    }

    void aMaximisedWindowHasNoMarginAndNoCorners()
    {
        m_composited = false;
        m_window->applyCompositing();
        QSignalSpy changed(m_window.get(), &GlassWindow::layoutChanged);
        m_window->makeKeyAndOrderFront();
        m_window->toggleZoom();
        QTRY_VERIFY(m_window->maximised());
        QTRY_VERIFY(changed.count() > 0);
        QCOMPARE(m_window->inset(), 0);
        QCOMPARE(m_window->radius(), 0);
        QVERIFY(m_window->mask().isEmpty());
        m_window->toggleZoom();
        QTRY_VERIFY(!m_window->maximised());
        QCOMPARE(m_window->radius(), 20);
    }

    void stayingMaximisedSurvivesHidingAndShowing()
    {
        m_window->makeKeyAndOrderFront();
        m_window->toggleZoom();
        QTRY_VERIFY(m_window->maximised());
        m_window->hide();
        m_window->makeKeyAndOrderFront();
        QVERIFY(m_window->isVisible());
        QVERIFY(m_window->maximised());
    }

    void theCompositorIsAskedAgainWhenTheWindowBecomesActive()
    {
        m_composited = false;
        m_window->makeKeyAndOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(!m_window->translucent());
    }

    void theTitleBarsButtonsLieInThePanelsCorner()
    {
        QCOMPARE(m_window->closePosition(), QPointF(21, 26));
        QCOMPARE(m_window->minimisePosition(), QPointF(41, 26));
        QCOMPARE(m_window->zoomPosition(), QPointF(61, 26));
        m_window->applyCompositing();
        m_window->makeKeyAndOrderFront();
        m_clock.advance(1s);
        QCOMPARE(m_window->closePosition(), QPointF(21, 26));
    }

    void theTitleBarsButtonsFollowThePanelsEdge()
    {
        QSignalSpy moved(m_window.get(), &GlassWindow::titleButtonsMoved);
        m_composited = false;
        m_window->applyCompositing();
        QCOMPARE(m_window->closePosition(), QPointF(13, 18));
        QCOMPARE(moved.count(), 3);
        m_composited = true;
        m_window->applyCompositing();
        QCOMPARE(m_window->closePosition(), QPointF(21, 26));
    }

    void closingIsDecidedByWhoOwnsTheWindow()
    {
        int asked = 0;
        m_window->setShouldClose([&asked] {
            ++asked;
            return false;
        });
        m_window->makeKeyAndOrderFront();
        m_window->closeRequested();
        QCOMPARE(asked, 1);
        QVERIFY(m_window->isVisible());
        QVERIFY(!m_window->close());
        QCOMPARE(asked, 2);
        m_window->setShouldClose([] { return true; });
        QVERIFY(m_window->close());
        QVERIFY(!m_window->isVisible());
    }

    void aMinimisedWindowComesBack()
    {
        m_window->makeKeyAndOrderFront();
        m_window->minimise();
        QTRY_VERIFY(m_window->windowStates() & Qt::WindowMinimized);
        m_window->makeKeyAndOrderFront();
        QTRY_VERIFY(!(m_window->windowStates() & Qt::WindowMinimized));
        QVERIFY(m_window->isVisible());
    }

    void appearsOnce()
    {
        QSignalSpy appeared(m_window.get(), &GlassWindow::appeared);
        m_window->makeKeyAndOrderFront();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTRY_COMPARE(appeared.count(), 1);
        m_window->hide();
        m_window->makeKeyAndOrderFront();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(appeared.count(), 1);
    }

    void isCentredInTheFreeArea()
    {
        m_window->setScreen(QGuiApplication::primaryScreen());
        m_window->centre();
        const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
        const QPoint off = m_window->geometry().center() - middle;
        QVERIFY(qAbs(off.x()) <= 1 && qAbs(off.y()) <= 1);
    }

private:
    QQmlEngine m_engine;
    FakeScheduler m_clock;
    bool m_composited = true;
    std::unique_ptr<GlassWindow> m_window;
};

QTEST_MAIN(tst_GlassWindow)
#include "tst_GlassWindow.moc"
