// SPDX-License-Identifier: MIT
#include "ComponentWindow.h"

#include "Components/BrandLogo.h"
#include "Components/RingGauge.h"
#include "Components/ShadowImages.h"
#include "Components/SparkleShape.h"

#include <QPainter>
#include <QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)

using namespace Qt::StringLiterals;

namespace {

bool alike(const QColor &a, const QColor &b, int most = 10)
{
    return std::abs(a.red() - b.red()) <= most && std::abs(a.green() - b.green()) <= most &&
           std::abs(a.blue() - b.blue()) <= most && std::abs(a.alpha() - b.alpha()) <= most;
}

constexpr int kSide = 101; // its centre is a pixel's
constexpr QRgb kTrack = qRgb(40, 40, 40);

QImage ring(double value, const QColor &first = Qt::red, const QColor &last = Qt::blue, double start = 0)
{
    QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    RingGauge gauge;
    gauge.setSize({kSide, kSide});
    gauge.setLineWidth(8);
    gauge.setTrackColor(QColor::fromRgb(kTrack));
    gauge.setFirstColor(first);
    gauge.setLastColor(last);
    gauge.setStart(start);
    gauge.setValue(value);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    gauge.paint(&painter);
    return image;
}

/// The pixel on the ring's line, so far round from the top.
QColor on(const QImage &image, double part)
{
    const double radius = kSide / 2.0 - 5;
    const double angle = part * 2 * M_PI;
    return image.pixelColor(static_cast<int>(kSide / 2.0 + radius * std::sin(angle)),
                            static_cast<int>(kSide / 2.0 - radius * std::cos(angle)));
}

QImage shadow(const QString &id)
{
    ShadowImages images;
    return images.requestImage(id, nullptr, {});
}

} // namespace

class tst_Painted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyRingIsItsTrack()
    {
        const QImage image = ring(0);
        for (const double part : {0.0, 0.25, 0.5, 0.75})
            QVERIFY(alike(on(image, part), QColor::fromRgb(kTrack)));
        QCOMPARE(image.pixelColor(kSide / 2, kSide / 2).alpha(), 0);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }

    void aQuarterRunsFromTheTopToTheRight()
    {
        const QImage image = ring(0.25);
        QVERIFY(alike(on(image, 0.005), Qt::red, 16));
        QVERIFY(alike(on(image, 0.245), Qt::blue, 16));
        const QColor between = on(image, 0.125); // the gradient runs along the arc
        QVERIFY(std::abs(between.red() - between.blue()) < 30 && between.red() > 90);
        for (const double part : {0.35, 0.5, 0.75, 0.9})
            QVERIFY(alike(on(image, part), QColor::fromRgb(kTrack)));
    }

    void itsCapsAreRoundAndInTheirEndsColours()
    {
        const QImage image = ring(0.25);
        // Three points of the line before the start and behind the end belong to the caps.
        const double three = 3 / (2 * M_PI * (kSide / 2.0 - 5));
        QVERIFY(alike(on(image, -three), Qt::red, 40));
        QVERIFY(alike(on(image, 0.25 + three), Qt::blue, 40));
        QVERIFY(alike(on(image, -3 * three), QColor::fromRgb(kTrack)));
        QVERIFY(alike(on(image, 0.25 + 3 * three), QColor::fromRgb(kTrack)));
    }

    void aFullRingIsClosed()
    {
        const QImage image = ring(1);
        for (int step = 0; step < 100; ++step)
            QVERIFY2(!alike(on(image, step / 100.0), QColor::fromRgb(kTrack), 30), qPrintable(QString::number(step)));
        QVERIFY(alike(on(image, 0.01), Qt::red, 20));
        QVERIFY(alike(on(image, 0.97), Qt::blue, 20));
        QVERIFY(on(image, 0.25).red() > on(image, 0.75).red());
    }

    void anArcThatTurnsKeepsItsColours()
    {
        const QImage image = ring(0.25, Qt::red, Qt::blue, 0.5);
        QVERIFY(alike(on(image, 0.505), Qt::red, 16));
        QVERIFY(alike(on(image, 0.745), Qt::blue, 16));
        QVERIFY(alike(on(image, 0.25), QColor::fromRgb(kTrack)));
    }

    void aValueBeyondItsBoundsIsTheBound()
    {
        RingGauge gauge;
        gauge.setValue(7);
        QCOMPARE(gauge.value(), 1.0);
        gauge.setValue(-1);
        QCOMPARE(gauge.value(), 0.0);
        QCOMPARE(ring(3), ring(1));
    }

    void aShadowIsClearInside()
    {
        const int radius = 14;
        const int blur = 22;
        const QImage image = shadow(u"3b5bdb-40-14-22-5"_s);
        QCOMPARE(image.width(), 2 * (radius + 2 * blur) + 1);
        QCOMPARE(image.height(), image.width());
        const QRect card = image.rect().adjusted(blur, blur, -blur, -blur);
        const int middle = image.width() / 2;
        QCOMPARE(image.pixelColor(middle, middle).alpha(), 0);
        for (int at = card.left() + radius; at <= card.right() - radius; ++at) {
            QCOMPARE(image.pixelColor(at, card.top() + 1).alpha(), 0);
            QCOMPARE(image.pixelColor(at, card.bottom() - 1).alpha(), 0);
            QCOMPARE(image.pixelColor(card.left() + 1, at).alpha(), 0);
            QCOMPARE(image.pixelColor(card.right() - 1, at).alpha(), 0);
        }
        // Outside: in its colour, no denser than asked, denser below than above, and gone at the picture's edge.
        const QColor below = image.pixelColor(middle, card.bottom() + 3);
        const QColor above = image.pixelColor(middle, card.top() - 3);
        QVERIFY(below.alpha() > above.alpha() && above.alpha() > 0);
        QVERIFY(below.alpha() <= 102);
        QCOMPARE(below.rgb() & 0xFFFFFF, 0x3B5BDBU);
        QVERIFY(image.pixelColor(middle, 0).alpha() <= 1);
        QVERIFY(image.pixelColor(0, middle).alpha() <= 1);
    }

    void aShadowOfAnOddNameIsHarmless()
    {
        QVERIFY(!shadow(u""_s).isNull());
        QVERIFY(!shadow(u"zz-9-x"_s).isNull());
        QVERIFY(shadow(u"000000-40-99999-99999-9"_s).width() < 2000);
    }

    void aCardsShadowLiesAroundIt()
    {
        ComponentWindow window;
        window.view().setColor(Qt::white);
        QVERIFY(window.show(u"Item { width: 160; height: 120\n"
                            "  CardShadow { color: Qt.rgba(0, 0, 0, 0.6); radius: 14 } }"_s));
        const QImage image = window.picture();
        const QRect card = window.root->mapRectToScene(window.root->boundingRect()).toRect();
        for (int y = card.top() + 15; y < card.bottom() - 15; y += 5) {
            for (int x = card.left() + 2; x < card.right() - 1; x += 5)
                QCOMPARE(image.pixelColor(x, y), QColor(Qt::white));
        }
        QVERIFY(image.pixelColor(card.center().x(), card.bottom() + 4).lightness() < 230);
        QVERIFY(image.pixelColor(card.left() - 4, card.center().y()).lightness() < 250);
        QCOMPARE(image.pixelColor(card.right() + 60, card.center().y()), QColor(Qt::white));
    }

    void theBrandMarkIsBlueWithWhiteSparkles()
    {
        QImage image(96, 96, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        BrandLogo::draw(&painter, QRectF(0, 0, 96, 96));
        painter.end();
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // rounded
        QCOMPARE(image.pixelColor(95, 95).alpha(), 0);
        const QColor top = image.pixelColor(48, 2);
        const QColor bottom = image.pixelColor(48, 93);
        for (const QColor &blue : {top, bottom}) {
            QCOMPARE(blue.alpha(), 255);
            QVERIFY(blue.blue() > blue.green() && blue.green() > blue.red() && blue.blue() > 220);
        }
        QVERIFY(top.lightness() > bottom.lightness());
        int white = 0;
        for (int y = 0; y < 96; ++y) {
            for (int x = 0; x < 96; ++x)
                white += image.pixelColor(x, y) == QColor(Qt::white);
        }
        QVERIFY(white > 96 * 96 / 50 && white < 96 * 96 / 3);
    }

    void theBrandMarkDrawsWhereItIsTold()
    {
        QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        BrandLogo::draw(&painter, QRectF(16, 16, 32, 32));
        painter.end();
        for (int at = 0; at < 64; ++at) {
            QCOMPARE(image.pixelColor(at, 14).alpha(), 0);
            QCOMPARE(image.pixelColor(50, at).alpha(), 0);
        }
        QCOMPARE(image.pixelColor(18, 32).alpha(), 255);
    }

    void aStarHasFourPoints()
    {
        const QPainterPath star = SparkleShape::star(QRectF(0, 0, 100, 100));
        QCOMPARE(star.boundingRect(), QRectF(0, 0, 100, 100));
        for (const QPointF &inside :
             {QPointF(50, 5), QPointF(95, 50), QPointF(50, 95), QPointF(5, 50), QPointF(50, 50)})
            QVERIFY(star.contains(inside));
        for (const QPointF &outside : {QPointF(20, 20), QPointF(80, 20), QPointF(80, 80), QPointF(20, 80)})
            QVERIFY(!star.contains(outside));
    }
};

QTEST_MAIN(tst_Painted)
#include "tst_Painted.moc"
