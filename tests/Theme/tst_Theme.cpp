// SPDX-License-Identifier: MIT
#include "Theme/Theme.h"

#include <QImage>
#include <QPainter>
#include <QTest>

class tst_Theme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneColourOverAnotherLooksAsPainted_data()
    {
        QTest::addColumn<QColor>("upper");
        QTest::addColumn<QColor>("lower");
        const QColor blue(20, 90, 230);
        const QColor sand(240, 220, 150);
        QTest::newRow("both opaque") << blue << sand;
        QTest::newRow("tint on opaque") << Theme::at(blue, 0.2) << sand;
        QTest::newRow("tint on glass") << Theme::at(blue, 0.25) << Theme::at(sand, 0.6);
        QTest::newRow("nothing on glass") << QColor(Qt::transparent) << Theme::at(sand, 0.6);
        QTest::newRow("tint on nothing") << Theme::at(blue, 0.25) << QColor(Qt::transparent);
        QTest::newRow("nothing at all") << QColor(Qt::transparent) << QColor(Qt::transparent);
    }
    void oneColourOverAnotherLooksAsPainted()
    {
        QFETCH(const QColor, upper);
        QFETCH(const QColor, lower);
        QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.fillRect(image.rect(), lower);
        painter.fillRect(image.rect(), upper);
        painter.end();
        const QColor painted = image.pixelColor(0, 0);
        const QColor mixed = Theme::over(upper, lower);
        const auto close = [](int a, int b) { return std::abs(a - b) <= 3; }; // each layer is rounded when painted
        QVERIFY(close(mixed.alpha(), painted.alpha()));
        if (painted.alpha() > 0)
            QVERIFY(close(mixed.red(), painted.red()) && close(mixed.green(), painted.green()) &&
                    close(mixed.blue(), painted.blue()));
    }
};

QTEST_GUILESS_MAIN(tst_Theme)
#include "tst_Theme.moc"
