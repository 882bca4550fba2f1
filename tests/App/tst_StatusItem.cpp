// SPDX-License-Identifier: MIT
#include "App/StatusItem.h"
#include "Fakes/FakeScheduler.h"

#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_StatusItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theImageIsTheMarkInColourAtTwiceItsPoints()
    {
        const QImage image = StatusItem::brandStatusImage();
        QCOMPARE(image.size(), QSize(36, 36));
        QCOMPARE(image.deviceIndependentSize(), QSizeF(18, 18));
        QVERIFY(image.hasAlphaChannel());
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0); // the square's corners are round
        // A blue ground: in colour, and no mask.
        const QColor ground = image.pixelColor(18, 2);
        QCOMPARE(ground.alpha(), 255);
        QVERIFY(ground.blue() > ground.red() + 60);
        int white = 0;
        for (int y = 0; y < 36; ++y) {
            for (int x = 0; x < 36; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                white += pixel.red() > 240 && pixel.alpha() == 255 ? 1 : 0;
            }
        }
        QVERIFY(white > 20); // the sparkles
    }

    void isShownAtOnceWhereThereIsAHost()
    {
        StatusItem item(m_clock.scheduler(), [] { return true; });
        QVERIFY(!item.isShown());
        item.show();
        const auto *icon = item.findChild<QSystemTrayIcon *>();
        QVERIFY(icon);
        QVERIFY(item.isShown());
        QCOMPARE(icon->toolTip(), u"Brisko"_s);
        QVERIFY(!icon->icon().isNull());
        QVERIFY(!icon->icon().isMask());
    }

    void aHostThatStartsLateIsFound()
    {
        int asked = 0;
        bool there = false;
        StatusItem item(m_clock.scheduler(), [&asked, &there] {
            ++asked;
            return there;
        });
        item.show();
        QCOMPARE(asked, 1);
        m_clock.advance(1s);
        QCOMPARE(asked, 2);
        there = true;
        QVERIFY(!item.isShown());
        m_clock.advance(2s);
        QVERIFY(item.isShown());
        m_clock.advance(1h);
        QCOMPARE(asked, 3);
        QCOMPARE(item.findChildren<QSystemTrayIcon *>().size(), 1);
    }

    void lookingEndsAfterAMinute()
    {
        int asked = 0;
        StatusItem item(m_clock.scheduler(), [&asked] {
            ++asked;
            return false;
        });
        item.show();
        m_clock.advance(60s);
        QCOMPARE(asked, 6);
        m_clock.advance(1h);
        QCOMPARE(asked, 6);
        QVERIFY(!item.isShown());
        QVERIFY(item.geometry().isEmpty());
    }

    void nothingIsLookedForOnceTheItemIsGone()
    {
        int asked = 0;
        auto item = std::make_unique<StatusItem>(m_clock.scheduler(), [&asked] {
            ++asked;
            return false;
        });
        item->show();
        item.reset();
        m_clock.advance(1h);
        QCOMPARE(asked, 1);
    }

    void oneClickActivatesOnce_data()
    {
        QTest::addColumn<int>("reason");
        QTest::addColumn<int>("count");
        QTest::newRow("click") << int(QSystemTrayIcon::Trigger) << 1;
        QTest::newRow("menu button") << int(QSystemTrayIcon::Context) << 1;
        QTest::newRow("the second of a double click") << int(QSystemTrayIcon::DoubleClick) << 0;
        QTest::newRow("middle button") << int(QSystemTrayIcon::MiddleClick) << 0;
    }
    void oneClickActivatesOnce()
    {
        QFETCH(int, reason);
        QFETCH(int, count);
        StatusItem item(m_clock.scheduler(), [] { return true; });
        item.show();
        QSignalSpy activated(&item, &StatusItem::activated);
        auto *icon = item.findChild<QSystemTrayIcon *>();
        Q_EMIT icon->activated(static_cast<QSystemTrayIcon::ActivationReason>(reason));
        QCOMPARE(activated.count(), count);
    }

private:
    FakeScheduler m_clock;
};

QTEST_MAIN(tst_StatusItem)
#include "tst_StatusItem.moc"
