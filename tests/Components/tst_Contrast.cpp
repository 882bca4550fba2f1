// SPDX-License-Identifier: MIT
#include "ComponentWindow.h"

#include <QQmlExtensionPlugin>

#include <cmath>
#include <limits>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr double kReadable = 4.5; // texts
constexpr double kVisible = 3;    // edges of controls

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

int distance(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

/// The window's glass, the way the main window and the panel lay it, over a wallpaper of one colour.
QString onGlass(const QString &wallpaper, const QString &density, const QString &content)
{
    return u"Rectangle { id: scene; width: 320; height: 220; color: '%1'\n"
           "VisualEffectBackground { anchors.fill: parent; density: %2\n"
           "  tintTop: Theme.windowTintTop; tintBottom: Theme.windowTintBottom }\n"
           "%3 }"_s.arg(wallpaper, density, content);
}

} // namespace

/// How well texts stand out from what is really drawn below them: pixels are read, over a black and over a white
/// wallpaper, and the worst counts. Colours that are given once and for all fall short here and there; those figures
/// are pinned, so that none gets worse unnoticed, and none better without its line here going.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("density");
        QTest::addColumn<QString>("content");
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<double>("known"); // the ratio where it falls short, else 0

        // No density helps: on opaque glass it would be 4.3 at the window's top.
        constexpr double kFine = 0;
        const QString window = u"Theme.glassDensity"_s;
        const QString panel = u"Theme.panelDensity"_s;
        const auto row = [](const char *name, const QString &density, const QString &content, double light, double dark,
                            bool hovered = false) {
            QTest::addRow("light: %s", name) << false << density << content << hovered << light;
            QTest::addRow("dark: %s", name) << true << density << content << hovered << dark;
        };
        const auto label = [](const char *colour, const char *place) {
            return u"PlainLabel { objectName: 'text'; text: 'MMMM'; color: Theme.%1; %2 }"_s.arg(
                QLatin1StringView(colour), QLatin1StringView(place));
        };
        const char *top = "x: 30; y: 2";
        const char *bottom = "x: 30; y: 200";
        row("primary on glass, top", window, label("textPrimary", top), kFine, kFine);
        row("primary on glass, bottom", window, label("textPrimary", bottom), kFine, kFine);
        row("secondary on glass, top", window, label("textSecondary", top), 3.71, kFine);
        row("secondary on glass, bottom", window, label("textSecondary", bottom), 3.84, kFine);
        row("accent on glass, top", window, label("accentText", top), kFine, kFine);
        row("accent on glass, bottom", window, label("accentText", bottom), kFine, kFine);
        row("secondary on the panel's glass", panel, label("textSecondary", top), 3.91, kFine);
        row("primary on the panel's glass", panel, label("textPrimary", top), kFine, kFine);

        const auto card = [](const QString &inside) {
            return u"GlassCard { x: 10; y: 10; width: 300; height: 60; %1 }"_s.arg(inside);
        };
        row("primary on a card", window, card(label("textPrimary", "")), kFine, kFine);
        row("secondary on a card", window, card(label("textSecondary", "")), 4.21, kFine);
        row("secondary on the panel's card", panel, card(label("textSecondary", "")), 4.32, kFine);
        row("accent on a card", window, card(label("accentText", "")), kFine, kFine);
        row("badge", window, card(u"Badge { objectName: 'text'; text: 'MMMM' }"_s), kFine, kFine);
        row("amber badge", window, card(u"Badge { objectName: 'text'; text: 'MMMM'; tint: Theme.amber }"_s), kFine,
            kFine);
        row("small button", window, card(u"SmallButton { objectName: 'button'; text: 'MMMM' }"_s), kFine, kFine);
        row("small button under the pointer", window, card(u"SmallButton { objectName: 'button'; text: 'MMMM' }"_s),
            kFine, kFine, true);
        row("link button", window, card(u"LinkButton { objectName: 'button'; text: 'MMMM' }"_s), kFine, kFine);
        row("link button under the pointer", window, card(u"LinkButton { objectName: 'button'; text: 'MMMM' }"_s),
            kFine, kFine, true);

        const auto sidebar = [](const QString &inside) {
            return u"Rectangle { x: 4; y: 4; width: 212; height: 212; gradient: Gradient {\n"
                   "  GradientStop { position: 0; color: Theme.sidebarTop }\n"
                   "  GradientStop { position: 1; color: Theme.sidebarBottom } } %1 }"_s.arg(inside);
        };
        row("primary in the sidebar, top", window, sidebar(label("textPrimary", top)), kFine, kFine);
        row("primary in the sidebar, bottom", window, sidebar(label("textPrimary", "y: 190")), kFine, kFine);

        // Opaque fills, whatever lies behind.
        row("quiet button", window, u"PrimaryButton { objectName: 'button'; text: 'MMMM'; x: 30; y: 30 }"_s, kFine,
            kFine);
        // Blue on the quiet fill is how hovering looks, for as long as the pointer is there.
        row("quiet button under the pointer", window,
            u"PrimaryButton { objectName: 'button'; text: 'MMMM'; x: 30; y: 30 }"_s, 3.37, 3.4, true);
        row("secondary on a quiet fill", window,
            u"Rectangle { x: 30; y: 30; width: 100; height: 40; color: Theme.surfaceAlt\n"
            "  PlainLabel { objectName: 'text'; text: 'MMMM'; color: Theme.textSecondary } }"_s,
            4.34, kFine);
        row("choice", window, u"ChoiceButton { objectName: 'button'; text: 'MMMM'; chosen: false; x: 30; y: 30 }"_s,
            kFine, kFine);
        row("chosen choice", window, card(u"ChoiceButton { objectName: 'button'; text: 'MMMM'; chosen: true }"_s),
            kFine, kFine);
        row("menu row under the pointer", window,
            u"Rectangle { x: 30; y: 30; width: 180; height: 40; color: Theme.backgroundBottom\n"
            "  MenuRowButton { objectName: 'button'; text: 'MMMM'; width: 180 } }"_s,
            kFine, kFine, true);
        row("toast", window,
            u"ToastView { objectName: 'button'; shown: true; symbol: 'trash'; tint: 0; message: 'MMMM'; x: 30\n"
            "  distance: 40 }"_s,
            kFine, kFine);
        row("alert's message", window,
            u"Item { id: behind; anchors.fill: parent }\n"
            "AlertModal { title: 'Title'; message: 'MMMM'; shown: true; backdropSource: behind; cardWidth: 260 }"_s,
            kFine, kFine);
        // White on the gradients is given, and so are the gradients; the brightest end that a label meets counts.
        const auto gradient = [](const char *colour) {
            return u"GradientButton { objectName: 'button'; text: 'MMMM'; x: 30; y: 30; firstColor: Theme.%1\n"
                   "  lastColor: Theme.%1 }"_s.arg(QLatin1StringView(colour));
        };
        row("white on blue", window, gradient("blue"), 3.69, 3.69);
        row("white on violet", window, gradient("violet"), 4.23, 4.23);
        row("white on amber", window, gradient("amber"), 2.15, 2.15);
        row("white on orange", window, gradient("orange"), 2.8, 2.8);
    }
    void texts()
    {
        QFETCH(const bool, dark);
        QFETCH(const QString, density);
        QFETCH(const QString, content);
        QFETCH(const bool, hovered);
        QFETCH(const double, known);
        double worst = std::numeric_limits<double>::max();
        for (const QString &wallpaper : {u"black"_s, u"white"_s}) {
            ComponentWindow window(dark);
            QVERIFY(window.show(onGlass(wallpaper, density, content)));
            QQuickItem *text = label(window.root.get());
            QVERIFY(text);
            if (hovered)
                window.hover(text);
            for (const QQuickItem *item = text; item != window.root.get(); item = item->parentItem())
                QTRY_COMPARE(item->opacity(), 1.0);
            const QColor colour = text->property("color").value<QColor>();
            QCOMPARE(colour.alpha(), 255);
            const QRect box = text->mapRectToScene(text->boundingRect()).toRect() & QRect(60, 60, 320, 220);
            QVERIFY(!box.isEmpty());
            // The text is there, in its colour: strokes of small letters are not quite opaque.
            const QImage shown = window.picture();
            int nearest = std::numeric_limits<int>::max();
            text->setOpacity(0);
            const QImage bare = window.picture();
            for (int y = box.top(); y <= box.bottom(); ++y) {
                for (int x = box.left(); x <= box.right(); ++x) {
                    nearest = std::min(nearest, distance(shown.pixelColor(x, y), colour));
                    worst = std::min(worst, contrast(colour, bare.pixelColor(x, y)));
                }
            }
            QVERIFY2(nearest < 60, qPrintable(QString::number(nearest)));
        }
        const QByteArray measured = QByteArray::number(worst, 'f', 2);
        if (known == 0) {
            QVERIFY2(worst >= kReadable, measured);
        } else {
            QVERIFY2(std::abs(worst - known) < 0.05, measured);
            QVERIFY(known < kReadable);
        }
    }

    void theEdgeOfAnEmptyCheckBoxIsSeen_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void theEdgeOfAnEmptyCheckBoxIsSeen()
    {
        QFETCH(const bool, dark);
        for (const QString &wallpaper : {u"black"_s, u"white"_s}) {
            ComponentWindow window(dark);
            QVERIFY(window.show(onGlass(wallpaper, u"Theme.glassDensity"_s,
                                        u"GlassCard { x: 10; y: 10; width: 200; height: 80\n"
                                        "  CircleCheck { objectName: 'check'; label: 'a'; x: 10; y: 10 } }"_s)));
            const QQuickItem *check = ComponentWindow::named(window.root.get(), u"check"_s);
            const QImage image = window.picture();
            const QPoint middle = window.centre(check);
            const QColor inside = image.pixelColor(middle);
            const QColor outside = image.pixelColor(middle - QPoint(20, 0));
            // Of the pixels that a line from outside to inside crosses, the edge is the farthest from both.
            double edge = 0;
            for (int x = -14; x <= 0; ++x) {
                const QColor pixel = image.pixelColor(middle + QPoint(x, 0));
                edge = std::max(edge, std::min(contrast(pixel, inside), contrast(pixel, outside)));
            }
            QVERIFY2(edge >= kVisible, QByteArray::number(edge, 'f', 2));
        }
    }

    void theRatioIsTheUsualOne()
    {
        QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
        QVERIFY(std::abs(contrast(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.01);
    }

private:
    /// The text "MMMM" of a scene.
    static QQuickItem *label(QQuickItem *scene)
    {
        for (QQuickItem *item : ComponentWindow::having(scene, "contentWidth")) {
            if (item->property("text").toString() == u"MMMM" && item->inherits("QQuickText"))
                return item;
        }
        return nullptr;
    }
};

QTEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
