// SPDX-License-Identifier: MIT
#include "App/PanelWindow.h"
#include "Fakes/ScratchTree.h"
#include "Fakes/Warnings.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_PanelWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_composited = true;
        m_panel = std::make_unique<PanelWindow>(
            &m_engine, [this] { return m_composited; }, [this] { return m_now; });
        const FileURL content = m_tree.file(
            "Panel.qml", "import QtQuick\nItem { width: 320; height: 200; property bool translucent: true }\n");
        m_panel->setSource(QUrl::fromEncoded(content.encoded()));
    }
    void cleanup() { m_panel.reset(); }

    void isAToolThatStaysOnTop()
    {
        QCOMPARE(m_panel->flags() & Qt::WindowType_Mask, Qt::Tool);
        QVERIFY(m_panel->flags() & Qt::FramelessWindowHint);
        QVERIFY(m_panel->flags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(m_panel->title(), u"Brisko panel"_s);
        QCOMPARE(m_panel->size(), QSize(320, 200));
    }

    void aSecondClickClosesIt()
    {
        open();
        m_panel->toggle({});
        QVERIFY(!m_panel->isVisible());
        m_panel->toggle({});
        QVERIFY(m_panel->isVisible());
    }

    void escapeClosesIt()
    {
        open();
        QTest::keyClick(m_panel.get(), Qt::Key_Escape);
        QVERIFY(!m_panel->isVisible());
        m_panel->toggle({}); // a click after that is no part of the closing
        QVERIFY(m_panel->isVisible());
    }

    void turningElsewhereClosesIt()
    {
        open();
        turnElsewhere();
        QTRY_VERIFY(!m_panel->isVisible());
    }

    void theClickThatTookTheKeyboardDoesNotReopenIt()
    {
        open();
        turnElsewhere();
        QTRY_VERIFY(!m_panel->isVisible());
        m_now += 150ms;
        m_panel->toggle({});
        QVERIFY(!m_panel->isVisible());
        m_panel->toggle({}); // the next one does
        QVERIFY(m_panel->isVisible());
    }

    void aClickLongAfterTurningElsewhereOpensIt()
    {
        open();
        turnElsewhere();
        QTRY_VERIFY(!m_panel->isVisible());
        m_now += 2s;
        m_panel->toggle({});
        QVERIFY(m_panel->isVisible());
    }

    void withoutACompositorItIsOpaqueAndHasItsCornersCutOff()
    {
        m_composited = false;
        open();
        QVERIFY(!m_panel->rootObject()->property("translucent").toBool());
        QVERIFY(!m_panel->mask().contains(QPoint(1, 1)));
        QVERIFY(m_panel->mask().contains(QPoint(160, 1)));
        m_panel->performClose();
        m_composited = true; // one has started since
        m_panel->toggle({});
        QVERIFY(m_panel->rootObject()->property("translucent").toBool());
        QVERIFY(m_panel->mask().isEmpty());
    }

    void isPlacedAtTheStatusItem_data()
    {
        QTest::addColumn<QRect>("item");
        QTest::addColumn<QPoint>("place");
        // A free area of 1000 by 700 below a bar of 30, and a panel of 300 by 400.
        QTest::newRow("unknown") << QRect() << QPoint(1'000 - 300 - 12, 30 + 12);
        QTest::newRow("in the bar above") << QRect(600, 0, 24, 30) << QPoint(461, 36);
        QTest::newRow("at the right edge") << QRect(976, 0, 24, 30) << QPoint(688, 36);
        QTest::newRow("at the left edge") << QRect(0, 0, 24, 30) << QPoint(12, 36);
        QTest::newRow("in a bar below") << QRect(600, 730, 24, 30) << QPoint(461, 730 - 400 - 6);
    }
    void isPlacedAtTheStatusItem()
    {
        QFETCH(QRect, item);
        QFETCH(QPoint, place);
        QCOMPARE(PanelWindow::place({300, 400}, item, QRect(0, 30, 1'000, 700)), place);
    }

    void aPanelThatDoesNotFitKeepsItsUpperLeftCornerOnScreen()
    {
        const QRect area(100, 50, 200, 200);
        QCOMPARE(PanelWindow::place({300, 400}, {}, area), QPoint(112, 62));
        QCOMPARE(PanelWindow::place({300, 400}, QRect(250, 20, 20, 20), area), QPoint(112, 50));
    }

private:
    void open()
    {
        m_panel->toggle({});
        QVERIFY(m_panel->isVisible());
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    }
    void turnElsewhere()
    {
        m_other.show();
        m_other.requestActivate();
    }

    ScratchTree m_tree;
    QQmlEngine m_engine;
    QWindow m_other;
    bool m_composited = true;
    PanelWindow::Clock::time_point m_now{1h};
    std::unique_ptr<PanelWindow> m_panel;
};

QTEST_MAIN(tst_PanelWindow)
#include "tst_PanelWindow.moc"
