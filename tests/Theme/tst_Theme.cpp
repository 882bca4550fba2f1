// SPDX-License-Identifier: MIT
#include "Theme/Theme.h"

#include <QImage>
#include <QMetaProperty>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

class tst_Theme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixedColours_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("hex");
        const auto row = [](const char *name, const char *hex) {
            QTest::newRow(name) << QByteArray(name) << QString::fromLatin1(hex);
        };
        row("blue", "#3882f6");
        row("violet", "#8b5cf6");
        row("cyan", "#22d3ee");
        row("amber", "#f59e0b");
        row("orange", "#f97316");
        row("green", "#34d399");
        row("teal", "#2dd4bf");
    }
    void fixedColours()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QString, hex);
        Theme theme;
        for (const bool dark : {false, true}) {
            theme.setDark(dark);
            const QColor colour = theme.property(name).value<QColor>();
            QCOMPARE(colour.name(), hex);
            QCOMPARE(colour.alpha(), 255);
        }
    }

    void coloursOfBothAppearances_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("darkHex");
        QTest::addColumn<double>("darkOpacity");
        QTest::addColumn<QString>("lightHex");
        QTest::addColumn<double>("lightOpacity");
        const auto row = [](const char *name, const char *dark, double darkOpacity, const char *light,
                            double lightOpacity) {
            QTest::newRow(name) << QByteArray(name) << QString::fromLatin1(dark) << darkOpacity
                                << QString::fromLatin1(light) << lightOpacity;
        };
        row("textPrimary", "#f8faff", 1, "#0f172a", 1);
        row("textSecondary", "#c2cee0", 1, "#64748b", 1);
        row("cardFill", "#1b2540", 0.52, "#ffffff", 0.5);
        row("border", "#3a4763", 1, "#e2e8f0", 1);
        row("glassEdge", "#ffffff", 0.1, "#ffffff", 0.65);
        row("surfaceAlt", "#273350", 1, "#f1f5f9", 1);
        row("hoverFill", "#2a3760", 1, "#e0e7ff", 1);
        row("windowTintTop", "#22305c", 0.55, "#c9daff", 0.22);
        row("windowTintBottom", "#0c1424", 0.28, "#ffffff", 0.05);
        row("sidebarTop", "#ffffff", 0.06, "#ffffff", 0.32);
        row("sidebarBottom", "#0a1020", 0.2, "#eef3ff", 0.18);
        row("cardShadow", "#000000", 0.4, "#3b5bdb", 0.14);
        row("hoverShadow", "#1d4ed8", 0.45, "#3882f6", 0.32);
        row("backgroundBottom", "#1e293b", 1, "#f8fafc", 1);
    }
    void coloursOfBothAppearances()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QString, darkHex);
        QFETCH(const double, darkOpacity);
        QFETCH(const QString, lightHex);
        QFETCH(const double, lightOpacity);
        Theme theme;
        const auto colour = [&] { return theme.property(name).value<QColor>(); };
        const auto near = [](double a, double b) { return std::abs(a - b) < 0.0001; };
        QCOMPARE(colour().name(), lightHex);
        QVERIFY(near(colour().alphaF(), lightOpacity));
        theme.setDark(true);
        QCOMPARE(colour().name(), darkHex);
        QVERIFY(near(colour().alphaF(), darkOpacity));
        theme.setDark(false);
        QCOMPARE(colour().name(), lightHex);
    }

    void tellsOfEveryColourThatTheAppearanceChanges()
    {
        Theme theme;
        QSignalSpy changes(&theme, &Theme::darkChanged);
        const QMetaObject *type = theme.metaObject();
        QHash<QByteArray, QVariant> light;
        for (int at = 0; at < type->propertyCount(); ++at)
            light.insert(type->property(at).name(), type->property(at).read(&theme));
        theme.setDark(true);
        QCOMPARE(changes.count(), 1);
        theme.setDark(true);
        QCOMPARE(changes.count(), 1);
        int differing = 0;
        for (int at = 0; at < type->propertyCount(); ++at) {
            const QMetaProperty property = type->property(at);
            if (property.read(&theme) == light.value(property.name()))
                continue;
            ++differing;
            // A property that changes without a word leaves the old colour on screen.
            QVERIFY2(property.hasNotifySignal(), property.name());
            QCOMPARE(property.notifySignal().name(), QByteArray("darkChanged"));
        }
        QVERIFY(differing >= 15);
    }

    void transitionsTakeNoTimeWithReducedMotion()
    {
        Theme theme;
        QSignalSpy changes(&theme, &Theme::reducedMotionChanged);
        const QList<QByteArray> names{"quick", "gentle", "hover", "entrance", "ring"};
        const QList<int> usual{150, 200, 250, 500, 900};
        for (qsizetype at = 0; at < names.size(); ++at)
            QCOMPARE(theme.property(names[at]).toInt(), usual[at]);
        theme.setReducedMotion(true);
        QCOMPARE(changes.count(), 1);
        for (const QByteArray &name : names)
            QCOMPARE(theme.property(name).toInt(), 0);
        theme.setReducedMotion(false);
        QCOMPARE(changes.count(), 2);
        QCOMPARE(theme.property("ring").toInt(), 900);
    }

    void aColourFromItsNumberIsOpaque()
    {
        QCOMPARE(Theme::fromHex(0xFF0000), QColor(255, 0, 0));
        QCOMPARE(Theme::fromHex(0x10B981), QColor(0x10, 0xB9, 0x81));
        QCOMPARE(Theme::fromHex(0).alpha(), 255);
    }

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
