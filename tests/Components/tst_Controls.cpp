// SPDX-License-Identifier: MIT
#include "ComponentWindow.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QQmlExtensionPlugin>
#include <QSignalSpy>
#include <QWheelEvent>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)

using namespace Qt::StringLiterals;

namespace {

bool near(double a, double b)
{
    return std::abs(a - b) < 0.003;
}

} // namespace

class tst_Controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyComponentCanBeMadeAlone_data()
    {
        QTest::addColumn<QString>("qml");
        const QHash<QString, QString> fields{
            {u"AccessBanner"_s, u"text: 'a'; width: 300"_s},
            {u"AlertModal"_s, u"title: 'a'; message: 'b'; shown: true; backdropSource: null"_s},
            {u"AppIcon"_s, u"source: ''"_s},
            {u"BlurredPicture"_s, u"source: null; covering: false"_s},
            {u"ChevronButton"_s, u"label: 'a'"_s},
            {u"ChoiceButton"_s, u"text: 'a'; chosen: true"_s},
            {u"CircleCheck"_s, u"label: 'a'"_s},
            {u"CircularIconButton"_s, u"label: 'a'; symbol: 'plus'"_s},
            {u"ConfirmModal"_s, u"title: 'a'; icon: ''; symbol: 'trash'; message: 'b'; labels: ['c']; values: ['d']\n"
                                "confirmTitle: 'e'; busy: false; shown: true; backdropSource: null"_s},
            {u"EmptyState"_s, u"symbol: 'trash'; title: 'a'; hint: 'b'"_s},
            {u"FocusRing"_s, u"shown: true"_s},
            {u"FolderChip"_s, u"name: 'a'"_s},
            {u"GaugeTile"_s, u"title: 'a'; value: 'b'; width: 150"_s},
            {u"GradientSquare"_s, u"symbol: 'trash'; width: 40; height: 40"_s},
            {u"HoverLift"_s, u"target: GlassCard {}"_s},
            {u"MetaPill"_s, u"symbol: 'calendar'; text: 'a'"_s},
            {u"MiniGauge"_s, u"title: 'a'; value: 'b'; width: 90"_s},
            {u"MiniTile"_s, u"title: 'a'; value: 'b'; symbol: 'trash'; width: 150"_s},
            {u"ModalBackdrop"_s, u"source: null"_s},
            {u"ModalCard"_s, u"title: 'a'; shown: true; backdropSource: null"_s},
            {u"PageFooter"_s, u"status: 'a'; width: 300"_s},
            {u"PageHeader"_s, u"title: 'a'; width: 300"_s},
            {u"PageList"_s, u"label: 'a'"_s},
            {u"PanelRow"_s, u"text: 'a'; symbol: 'power'"_s},
            {u"ScanProgress"_s, u"running: true; detail: 'a'; width: 300"_s},
            {u"SegmentedControl"_s, u"texts: ['a', 'b']; current: 0"_s},
            {u"SpinningSymbol"_s, u"symbol: 'trash'; running: true"_s},
            {u"StatTile"_s, u"title: 'a'; subtitle: 'b'; value: 'c'; symbol: 'trash'; width: 200"_s},
            {u"SymbolIcon"_s, u"symbol: 'app.dashed'"_s},
            {u"ToastView"_s, u"shown: true; symbol: 'trash'; tint: 0; message: 'a'"_s},
            {u"UpdateModal"_s, u"version: 'a'; date: 'b'; fileSize: 'c'; notes: 'd'; shown: true\n"
                               "backdropSource: null"_s},
        };
        const QStringList files = QDir(u":/qt/qml/Brisko/Components"_s).entryList({u"*.qml"_s});
        QVERIFY(files.size() > fields.size());
        for (const QString &file : files) {
            const QString name = QFileInfo(file).baseName();
            QTest::newRow(qPrintable(name)) << u"Item { width: 300; height: 200\n%1 { %2 } }"_s.arg(name, fields[name]);
        }
    }
    void everyComponentCanBeMadeAlone()
    {
        QFETCH(const QString, qml);
        ComponentWindow window; // a warning fails the test
        QVERIFY(window.show(qml));
        window.hover();
        QVERIFY(!window.picture().isNull());
        window.theme->setDark(true);
        window.root->setEnabled(false);
        QVERIFY(!window.picture().isNull());
    }

    void aMenuIsDrivenByTheKeyboard()
    {
        ComponentWindow window;
        QVERIFY(
            window.show(u"Item { id: root; width: 200; height: 40; signal chosen(string what)\n"
                        "  function open() { menu.popup(0, 0) }\n"
                        "  property alias opened: menu.opened\n"
                        "  PopupMenu { id: menu\n"
                        "    MenuRowButton { text: 'One'; onTriggered: root.chosen(text) }\n"
                        "    MenuRowButton { text: 'Two'; onTriggered: root.chosen(text) }\n"
                        "    MenuRowButton { text: 'Three'; enabled: false; onTriggered: root.chosen(text) } } }"_s));
        QSignalSpy chosen(window.root.get(), SIGNAL(chosen(QString)));
        const auto open = [&] {
            QMetaObject::invokeMethod(window.root.get(), "open");
            QTRY_VERIFY(window.value("opened").toBool());
        };
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            open();
            window.press(Qt::Key_Down);
            window.press(Qt::Key_Down);
            window.press(key);
            QTRY_VERIFY(!window.value("opened").toBool());
            QCOMPARE(chosen.takeLast().first().toString(), u"Two"_s);
        }
        open();
        window.press(Qt::Key_Down);
        window.press(Qt::Key_Escape);
        QTRY_VERIFY(!window.value("opened").toBool());
        QVERIFY(chosen.isEmpty());
    }

    // Every control that is pressed.

    void controls_data()
    {
        QTest::addColumn<QString>("qml");
        QTest::addColumn<int>("role");
        const auto row = [](const char *name, const char *qml, QAccessible::Role role) {
            QTest::newRow(name) << QString::fromLatin1(qml) << int(role);
        };
        row("GradientButton", "GradientButton { text: 'Name' }", QAccessible::Button);
        row("PrimaryButton", "PrimaryButton { text: 'Name' }", QAccessible::Button);
        row("LinkButton", "LinkButton { text: 'Name' }", QAccessible::Button);
        row("SmallButton", "SmallButton { text: 'Name' }", QAccessible::Button);
        row("CircularIconButton", "CircularIconButton { label: 'Name'; symbol: 'plus' }", QAccessible::Button);
        row("ChevronButton", "ChevronButton { label: 'Name' }", QAccessible::Button);
        row("RescanButton", "RescanButton { text: 'Name' }", QAccessible::Button);
        row("PanelRow", "PanelRow { text: 'Name'; symbol: 'power'; width: 200 }", QAccessible::Button);
        row("MiniTile", "MiniTile { title: 'Name'; value: '1'; symbol: 'power'; width: 160 }", QAccessible::Button);
        row("StatTile", "StatTile { title: 'Name'; subtitle: 's'; value: '1'; symbol: 'power'; width: 200 }",
            QAccessible::Button);
        row("CircleCheck", "CircleCheck { label: 'Name' }", QAccessible::CheckBox);
        row("ChoiceButton", "ChoiceButton { text: 'Name'; chosen: false }", QAccessible::RadioButton);
    }

    void mouseKeysAndAssistiveToolsPressOnce_data() { controls_data(); }
    void mouseKeysAndAssistiveToolsPressOnce()
    {
        QFETCH(const QString, qml);
        ComponentWindow window;
        QVERIFY(window.show(qml));
        QSignalSpy clicks(window.root.get(), SIGNAL(clicked()));
        window.click();
        QCOMPARE(clicks.count(), 1);
        window.root->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(window.root->hasActiveFocus());
        window.press(Qt::Key_Space);
        QCOMPARE(clicks.count(), 2);
        window.press(Qt::Key_Return);
        QCOMPARE(clicks.count(), 3);
        window.press(Qt::Key_Enter);
        QCOMPARE(clicks.count(), 4);
        window.assist(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicks.count(), 5);
        QTest::mouseClick(&window.view(), Qt::LeftButton, {}, {390, 290}); // beside it
        QCOMPARE(clicks.count(), 5);
    }

    void disabledNothingPresses_data() { controls_data(); }
    void disabledNothingPresses()
    {
        QFETCH(const QString, qml);
        ComponentWindow window;
        QVERIFY(window.show(qml));
        window.root->setEnabled(false);
        QSignalSpy clicks(window.root.get(), SIGNAL(clicked()));
        window.click();
        window.root->forceActiveFocus(Qt::TabFocusReason);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            window.press(key);
        window.assist(QAccessibleActionInterface::pressAction());
        window.assist(QAccessibleActionInterface::toggleAction());
        QCOMPARE(clicks.count(), 0);
        QVERIFY(window.accessible()->state().readOnly);
    }

    void assistiveToolsAreToldNameAndRole_data() { controls_data(); }
    void assistiveToolsAreToldNameAndRole()
    {
        QFETCH(const QString, qml);
        QFETCH(const int, role);
        ComponentWindow window;
        QVERIFY(window.show(qml));
        QAccessibleInterface *face = window.accessible();
        QVERIFY(face);
        QCOMPARE(face->text(QAccessible::Name), u"Name"_s);
        QCOMPARE(int(face->role()), role);
        QVERIFY(!face->state().readOnly);
        QVERIFY(face->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }

    void theKeyboardIsMarkedAndTheMouseIsNot_data() { controls_data(); }
    void theKeyboardIsMarkedAndTheMouseIsNot()
    {
        QFETCH(const QString, qml);
        ComponentWindow window;
        QVERIFY(window.show(qml));
        const QList<QQuickItem *> rings = ComponentWindow::having(window.root.get(), "shown");
        QCOMPARE(rings.size(), 1);
        QQuickItem *ring = rings.first();
        QVERIFY(!ring->isVisible());
        window.click();
        QVERIFY(!ring->isVisible());
        window.root->setFocus(false);
        window.press(Qt::Key_Tab);
        QVERIFY(window.root->hasActiveFocus());
        QVERIFY(ring->isVisible());
        QCOMPARE(ComponentWindow::value(ring, "border.color").value<QColor>(), window.theme->focusRing());
        QCOMPARE(ComponentWindow::value(ring, "border.width").toInt(), 2);
        window.root->setFocus(false);
        QVERIFY(!ring->isVisible());
    }

    void disabledLooksDimmed_data()
    {
        QTest::addColumn<QString>("qml");
        QTest::addColumn<double>("opacity");
        QTest::newRow("LinkButton") << u"LinkButton { text: 'a'; enabled: false }"_s << 0.4;
        QTest::newRow("CircleCheck") << u"CircleCheck { label: 'a'; enabled: false }"_s << 0.4;
        QTest::newRow("GradientButton") << u"GradientButton { text: 'a'; enabled: false }"_s << 0.45;
        QTest::newRow("PrimaryButton") << u"PrimaryButton { text: 'a'; enabled: false }"_s << 0.45;
        QTest::newRow("CircularIconButton")
            << u"CircularIconButton { label: 'a'; symbol: 'plus'; enabled: false }"_s << 0.3;
    }
    void disabledLooksDimmed()
    {
        QFETCH(const QString, qml);
        QFETCH(const double, opacity);
        ComponentWindow window;
        QVERIFY(window.show(qml));
        QVERIFY(near(window.root->opacity(), opacity));
        window.root->setEnabled(true);
        QTRY_COMPARE(window.root->opacity(), 1.0);
    }

    // Each of them.

    void gradientButton()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"GradientButton { text: 'Clean'; firstColor: '#102030'; lastColor: '#405060' }"_s));
        QCOMPARE(window.number("leftPadding"), 20);
        QCOMPARE(window.number("rightPadding"), 20);
        QCOMPARE(window.value("font").value<QFont>().pixelSize(), 15);
        QCOMPARE(window.colour("labelColor"), QColor(Qt::white));
        window.theme->setReducedMotion(false);
        QTest::mousePress(&window.view(), Qt::LeftButton, {}, window.centre());
        QTRY_COMPARE(window.root->scale(), 0.97);
        QTest::mouseRelease(&window.view(), Qt::LeftButton, {}, window.centre());
        QTRY_COMPARE(window.root->scale(), 1.0);
        window.theme->setReducedMotion(true);
        window.away();
        // The fill runs from the left edge to the right.
        const QImage image = window.picture();
        const QRect box = window.root->mapRectToScene(window.root->boundingRect()).toRect();
        const QColor left = image.pixelColor(box.left() + 2, box.center().y());
        const QColor right = image.pixelColor(box.right() - 2, box.center().y());
        QVERIFY(std::abs(left.red() - 0x10) < 6 && std::abs(left.blue() - 0x30) < 6);
        QVERIFY(std::abs(right.red() - 0x40) < 6 && std::abs(right.blue() - 0x60) < 6);
    }

    void gradientButtonsShadowIsBlueAndGrowsUnderThePointer()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"GradientButton { text: 'Clean' }"_s));
        QQuickItem *background = window.value("background").value<QQuickItem *>();
        QQuickItem *shadow = ComponentWindow::having(background, "drop").value(0);
        QVERIFY(shadow);
        const QColor still = shadow->property("color").value<QColor>();
        QCOMPARE(still.rgb(), window.theme->blue().rgb());
        window.hover();
        QTRY_VERIFY(shadow->property("color").value<QColor>().alpha() > still.alpha());
        QCOMPARE(shadow->property("color").value<QColor>().rgb(), window.theme->blue().rgb());
        window.root->setEnabled(false);
        QTRY_VERIFY(!shadow->isVisible());
    }

    void gradientButtonStaysBrightWhileItsWorkRuns()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"GradientButton { text: 'Clean'; symbol: 'trash'; busy: true; enabled: false }"_s));
        QCOMPARE(window.root->opacity(), 1.0);
        QVERIFY(window.value("turning").toBool());
    }

    void primaryButton()
    {
        for (const bool dark : {false, true}) {
            ComponentWindow window(dark);
            QVERIFY(window.show(u"PrimaryButton { text: 'Scan' }"_s));
            QCOMPARE(window.colour("background.color"), window.theme->surfaceAlt());
            QQuickItem *background = window.value("background").value<QQuickItem *>();
            QCOMPARE(ComponentWindow::value(background, "border.color").value<QColor>(), window.theme->border());
            QCOMPARE(window.colour("labelColor"), window.theme->textPrimary());
            window.hover();
            QTRY_COMPARE(window.colour("labelColor"), window.theme->blue());
            QTRY_COMPARE(ComponentWindow::value(background, "border.color").value<QColor>(), window.theme->blue());
            window.root->setEnabled(false);
            QTRY_COMPARE(window.colour("labelColor"), window.theme->textPrimary());
        }
    }

    void linkButton()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"LinkButton { text: 'Skip' }"_s));
        QCOMPARE(window.number("leftPadding"), 10);
        QCOMPARE(window.number("rightPadding"), 10);
        QCOMPARE(window.number("topPadding"), 6);
        QCOMPARE(window.number("bottomPadding"), 6);
        QCOMPARE(window.colour("background.color").alpha(), 0);
        window.hover();
        QTRY_VERIFY(near(window.colour("background.color").alphaF(), 0.1));
        QCOMPARE(window.colour("background.color").rgb(), window.theme->blue().rgb());
    }

    void circularIconButton()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"CircularIconButton { label: 'Menu'; symbol: 'plus'; size: 34 }"_s));
        QCOMPARE(window.root->size(), QSizeF(34, 34));
        QCOMPARE(window.number("background.radius"), 17);
        QCOMPARE(window.colour("background.color"), window.theme->surfaceAlt());
        QQuickItem *background = window.value("background").value<QQuickItem *>();
        QCOMPARE(ComponentWindow::value(background, "border.color").value<QColor>(), window.theme->border());
        QCOMPARE(window.colour("labelColor"), window.theme->textSecondary());
        window.hover();
        QTRY_COMPARE(window.colour("labelColor"), window.theme->blue());
    }

    void menuRow()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"MenuRowButton { text: '100 MB'; width: 180 }"_s));
        QSignalSpy chosen(window.root.get(), SIGNAL(triggered()));
        QCOMPARE(window.colour("background.color").alpha(), 0);
        QCOMPARE(window.number("background.width"), 180);
        window.hover();
        QTRY_VERIFY(near(window.colour("background.color").alphaF(), 0.1));
        QCOMPARE(window.colour("background.color").rgb(), window.theme->blue().rgb());
        QTest::mousePress(&window.view(), Qt::LeftButton, {}, window.centre());
        QTRY_VERIFY(near(window.colour("background.color").alphaF(), 0.12));
        QTest::mouseRelease(&window.view(), Qt::LeftButton, {}, window.centre());
        QCOMPARE(chosen.count(), 1);
        window.assist(QAccessibleActionInterface::pressAction());
        QCOMPARE(chosen.count(), 2);
        QCOMPARE(window.accessible()->role(), QAccessible::MenuItem);
        QCOMPARE(window.accessible()->text(QAccessible::Name), u"100 MB"_s);
        QVERIFY(!window.accessible()->state().selected);
        window.root->setProperty("chosen", true);
        QVERIFY(window.accessible()->state().selected);
        window.root->setEnabled(false);
        window.assist(QAccessibleActionInterface::pressAction());
        window.click();
        QCOMPARE(chosen.count(), 2);
        QVERIFY(window.accessible()->state().readOnly);
    }

    void circleCheckShowsWhatItIsTold()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"CircleCheck { label: 'All'; property bool model: false; checked: model }"_s));
        QSignalSpy clicks(window.root.get(), SIGNAL(clicked()));
        QQuickItem *box = window.value("indicator").value<QQuickItem *>();
        QCOMPARE(box->property("color").value<QColor>(), window.theme->surfaceAlt());
        QVERIFY(ComponentWindow::value(box, "border.width").toDouble() > 0);
        // A click only asks: what is shown stays the model's, whatever asked.
        window.click();
        QCOMPARE(window.value("checked").toBool(), false);
        window.root->forceActiveFocus();
        window.press(Qt::Key_Space);
        QCOMPARE(window.value("checked").toBool(), false);
        window.assist(QAccessibleActionInterface::toggleAction());
        QCOMPARE(window.value("checked").toBool(), false);
        window.assist(QAccessibleActionInterface::pressAction());
        QCOMPARE(window.value("checked").toBool(), false);
        QCOMPARE(clicks.count(), 4);
        QVERIFY(!window.accessible()->state().checked);
        window.root->setProperty("model", true);
        QCOMPARE(window.value("checked").toBool(), true);
        QVERIFY(window.accessible()->state().checked);
        window.click();
        QCOMPARE(window.value("checked").toBool(), true);
        window.root->setProperty("model", false);
        QCOMPARE(window.value("checked").toBool(), false);
    }

    void circleCheckIsDrawnInItsGradient()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"CircleCheck { label: 'All'; checked: true; width: 44; height: 44 }"_s));
        const QImage image = window.picture();
        const QPoint middle = window.centre();
        const auto close = [](const QColor &a, const QColor &b) {
            return std::abs(a.red() - b.red()) < 12 && std::abs(a.green() - b.green()) < 12 &&
                   std::abs(a.blue() - b.blue()) < 12;
        };
        QVERIFY(close(image.pixelColor(middle - QPoint(20, 0)), window.theme->blue()));
        QVERIFY(close(image.pixelColor(middle + QPoint(20, 0)), window.theme->violet()));
        // The mark is white.
        int white = 0;
        for (int y = -6; y <= 6; ++y) {
            for (int x = -6; x <= 6; ++x)
                white += image.pixelColor(middle + QPoint(x, y)).lightness() > 235;
        }
        QVERIFY(white > 5);
        window.root->setProperty("checked", false);
        QVERIFY(close(window.picture().pixelColor(middle), window.theme->surfaceAlt()));
    }

    void circleCheckGrowsUnderThePointer()
    {
        ComponentWindow window;
        window.theme->setReducedMotion(false);
        QVERIFY(window.show(u"CircleCheck { label: 'All' }"_s));
        window.hover();
        QTRY_COMPARE(window.root->scale(), 1.08);
        window.root->setEnabled(false);
        QTRY_COMPARE(window.root->scale(), 1.0);
    }

    void folderChip()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"FolderChip { name: 'Downloads'; path: '/home/me/Downloads' }"_s));
        QSignalSpy removals(window.root.get(), SIGNAL(removeRequested()));
        QCOMPARE(window.colour("color"), window.theme->surfaceAlt());
        QCOMPARE(ComponentWindow::value(window.root.get(), "border.color").value<QColor>(), window.theme->border());
        QList<QQuickItem *> symbols = ComponentWindow::having(window.root.get(), "ligature");
        QCOMPARE(symbols.first()->property("symbol").toString(), u"folder.fill"_s);
        QCOMPARE(symbols.first()->property("color").value<QColor>(), window.theme->blue());
        QCOMPARE(symbols.first()->mapToItem(window.root.get(), {0, 0}).x(), 8);
        QQuickItem *remove = ComponentWindow::named(window.root.get(), u"removeFolder"_s);
        QVERIFY(remove && remove->isVisible());
        QCOMPARE(window.root->width() - remove->mapToItem(window.root.get(), {remove->width(), 0}).x(), 8);
        QCOMPARE(remove->property("symbol").toString(), u"xmark"_s);
        QCOMPARE(remove->property("labelColor").value<QColor>(), window.theme->textSecondary());
        QCOMPARE(window.accessible(remove)->text(QAccessible::Name), u"Remove folder Downloads"_s);
        window.hover(symbols.first());
        QTRY_VERIFY(tipShown(window, u"/home/me/Downloads"_s));
        window.hover(remove);
        QTRY_VERIFY(near(ComponentWindow::value(remove, "background.color").value<QColor>().alphaF(), 0.12));
        window.click(remove);
        QCOMPARE(removals.count(), 1);
        remove->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(window.value("focused").toBool());
        window.press(Qt::Key_Return);
        QCOMPARE(removals.count(), 2);
        window.root->setProperty("removable", false);
        QVERIFY(!remove->isVisible());
    }

    void aTipLeavesThePointerToWhatItCoversUnlessItHasSomethingToSay()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"Item { width: 100; height: 40\n"
                            "  property string tip: ''\n"
                            "  SmallButton { objectName: 'button'; text: 'Stop'; anchors.fill: parent }\n"
                            "  HelpTip { objectName: 'tip'; text: parent.tip } }"_s));
        QQuickItem *button = ComponentWindow::named(window.root.get(), u"button"_s);
        window.hover();
        QTRY_VERIFY(button->property("hovered").toBool());
        window.away();
        QTRY_VERIFY(!button->property("hovered").toBool());
        button->setEnabled(false);
        window.root->setProperty("tip", u"Nothing runs"_s);
        window.hover();
        QTRY_VERIFY(tipShown(window, u"Nothing runs"_s));
        window.away();
        QTRY_VERIFY(!tipShown(window, u"Nothing runs"_s));
    }

    void rescanButton()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"RescanButton { }"_s));
        QCOMPARE(window.value("text").toString(), u"Rescan"_s);
        QCOMPARE(window.value("symbol").toString(), u"arrow.clockwise"_s);
        QVERIFY(window.root->isEnabled());
        QQuickItem *symbol = ComponentWindow::having(window.root.get(), "ligature").value(0);
        QCOMPARE(symbol->rotation(), 0.0);
        window.root->setProperty("isScanning", true);
        QVERIFY(!window.root->isEnabled());
        // It turns one way and does not go back: past half a turn, and round again.
        QTRY_VERIFY(symbol->rotation() > 180);
        QTRY_VERIFY(symbol->rotation() < 90);
        window.root->setProperty("isScanning", false);
        QVERIFY(window.root->isEnabled());
        QCOMPARE(symbol->rotation(), 0.0);
    }

    void aSymbolThatIsNotSeenDoesNotTurn()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"SpinningSymbol { symbol: 'arrow.clockwise'; running: true; visible: false }"_s));
        QList<QObject *> timers = window.root->findChildren<QObject *>();
        timers.removeIf([](const QObject *child) { return !child->property("interval").isValid(); });
        QCOMPARE(timers.size(), 1);
        QVERIFY(!timers.first()->property("running").toBool());
        window.root->setVisible(true);
        QVERIFY(timers.first()->property("running").toBool());
    }

    void singleLineScrollTurnsTheWheelSideways()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"SingleLineScroll { width: 200; height: 40\n"
                            "  Repeater { model: 10; Rectangle { width: 60; height: 30 } } }"_s));
        QCOMPARE(window.number("contentX"), 0);
        wheel(window, {0, -120});
        QTRY_COMPARE(window.number("contentX"), 60);
        QCOMPARE(window.number("contentY"), 0);
        wheel(window, {0, 120});
        QTRY_COMPARE(window.number("contentX"), 0);
        // Not past its ends.
        wheel(window, {0, 480});
        QCOMPARE(window.number("contentX"), 0);
        for (int turn = 0; turn < 10; ++turn)
            wheel(window, {0, -480});
        QTRY_COMPARE(window.number("contentX"), window.number("contentWidth") - 200);
    }

    void singleLineScrollBringsAnItemIntoView()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"SingleLineScroll { id: scroll; width: 200; height: 40; spacing: 10\n"
                            "  function reach(at: int) { scroll.show(repeater.itemAt(at)) }\n"
                            "  Repeater { id: repeater; model: 10; Rectangle { width: 60; height: 30 } } }"_s));
        const auto reach = [&](int at) { QMetaObject::invokeMethod(window.root.get(), "reach", Q_ARG(int, at)); };
        reach(9);
        QCOMPARE(window.number("contentX"), 10 * 60 + 9 * 10 - 200.0);
        reach(9);
        QCOMPARE(window.number("contentX"), 490);
        reach(0);
        QCOMPARE(window.number("contentX"), 0);
        reach(1); // in sight already
        QCOMPARE(window.number("contentX"), 0);
    }

    void hoverLiftLiftsByTwoPointsAndTurnsTheShadowBlue()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"Item { width: 120; height: 80\n"
                            "  GlassCard { id: card; objectName: 'card'; anchors.fill: parent }\n"
                            "  HoverLift { objectName: 'lift'; target: card } }"_s));
        QQuickItem *card = ComponentWindow::named(window.root.get(), u"card"_s);
        QQuickItem *lift = ComponentWindow::named(window.root.get(), u"lift"_s);
        const QList<QQuickItem *> shadows = ComponentWindow::having(card, "drop");
        QCOMPARE(shadows.size(), 2);
        QCOMPARE(shadows[0]->property("color").value<QColor>(), window.theme->cardShadow());
        QCOMPARE(shadows[1]->property("color").value<QColor>(), window.theme->hoverShadow());
        const auto top = [&] { return card->mapToScene({0, 0}).y() - window.root->y(); };
        QCOMPARE(top(), 0.0);
        QVERIFY(shadows[0]->isVisible() && !shadows[1]->isVisible());
        window.hover();
        QTRY_COMPARE(top(), -2.0);
        QTRY_VERIFY(!shadows[0]->isVisible() && shadows[1]->isVisible());
        window.away();
        QTRY_COMPARE(top(), 0.0);
        QTRY_VERIFY(shadows[0]->isVisible() && !shadows[1]->isVisible());
        lift->setProperty("lifting", false);
        window.hover();
        QCOMPARE(top(), 0.0);
        QVERIFY(!shadows[1]->isVisible());
    }

    void statTileLiftsAndShowsItsBadge()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"StatTile { title: 'Junk'; subtitle: 'Found'; value: '1 GB'; symbol: 'trash'; width: 200\n"
                            "  height: 188; badge: 'New' }"_s));
        QQuickItem *card = ComponentWindow::having(window.root.get(), "lifted").value(0);
        QVERIFY(card);
        QQuickItem *badge = ComponentWindow::having(card, "tint").value(0);
        QVERIFY(badge && badge->isVisible());
        QCOMPARE(badge->property("text").toString(), u"New"_s);
        QCOMPARE(window.accessible()->text(QAccessible::Description), u"Found, 1 GB"_s);
        const auto top = [&] { return card->mapToItem(window.root.get(), {0, 0}).y(); };
        QTRY_COMPARE(top(), 0.0);
        window.hover();
        QTRY_COMPARE(top(), -2.0);
        QVERIFY(card->property("lifted").toBool());
        window.root->setProperty("loading", true);
        QCOMPARE(window.value("shownValue").toString(), u"Calculating…"_s);
        window.root->setProperty("badge", QString());
        QVERIFY(!badge->isVisible());
    }

    void glassCard()
    {
        for (const bool dark : {false, true}) {
            ComponentWindow window(dark);
            QVERIFY(window.show(u"GlassCard { width: 120; height: 80; radius: 18; padding: 20\n"
                                "  Rectangle { objectName: 'inside'; anchors.fill: parent } }"_s));
            QQuickItem *inside = ComponentWindow::named(window.root.get(), u"inside"_s);
            QCOMPARE(inside->size(), QSizeF(80, 40));
            QCOMPARE(inside->mapToItem(window.root.get(), {0, 0}), QPointF(20, 20));
            QList<QQuickItem *> sheets = ComponentWindow::having(window.root.get(), "radius");
            sheets.removeIf([](QQuickItem *item) { return !item->property("gradient").isValid(); });
            sheets.removeOne(inside);
            QCOMPARE(sheets.size(), 1);
            QCOMPARE(sheets[0]->property("radius").toDouble(), 18);
            QCOMPARE(sheets[0]->property("color").value<QColor>(), window.theme->cardFill());
            QCOMPARE(ComponentWindow::value(sheets[0], "border.color").value<QColor>(), window.theme->glassEdge());
            QCOMPARE(ComponentWindow::value(sheets[0], "border.width").toDouble(), 1);
        }
    }

    void everyColourFollowsTheAppearanceWhileItIsShown()
    {
        ComponentWindow window(false);
        QVERIFY(window.show(u"PrimaryButton { text: 'Scan' }"_s));
        const QPoint inside = window.root->mapToScene({6, window.root->height() / 2}).toPoint();
        QCOMPARE(window.picture().pixelColor(inside).name(), u"#f1f5f9"_s);
        window.theme->setDark(true);
        QCOMPARE(window.picture().pixelColor(inside).name(), u"#273350"_s);
    }

    void segmentsAskAndDoNotFlip()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"SegmentedControl { texts: ['One', 'Two', 'Three']; current: 0 }"_s));
        QSignalSpy chosen(window.root.get(), SIGNAL(chosen(int)));
        QQuickItem *first = ComponentWindow::named(window.root.get(), u"segment0"_s);
        QQuickItem *second = ComponentWindow::named(window.root.get(), u"segment1"_s);
        QVERIFY(first && second);
        QCOMPARE(first->width(), second->width());
        window.click(second);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.last().first().toInt(), 1);
        QVERIFY(!second->property("checked").toBool());
        window.assist(QAccessibleActionInterface::pressAction(), second);
        window.assist(QAccessibleActionInterface::toggleAction(), second);
        second->forceActiveFocus(Qt::TabFocusReason);
        window.press(Qt::Key_Return);
        window.press(Qt::Key_Space);
        QCOMPARE(chosen.count(), 5);
        QVERIFY(first->property("checked").toBool() && !second->property("checked").toBool());
        window.root->setProperty("current", 1);
        QVERIFY(!first->property("checked").toBool() && second->property("checked").toBool());
        QVERIFY(window.accessible(second)->state().selected && !window.accessible(first)->state().selected);
        window.root->setEnabled(false);
        window.assist(QAccessibleActionInterface::pressAction(), first);
        window.click(first);
        QCOMPARE(chosen.count(), 5);
        QVERIFY(window.accessible(first)->state().readOnly);
    }

    void choicesAskAndDoNotFlip()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"ChoiceButton { text: 'Deutsch'; chosen: false }"_s));
        window.click();
        QVERIFY(!window.value("checked").toBool());
        window.assist(QAccessibleActionInterface::toggleAction());
        QVERIFY(!window.value("checked").toBool());
        window.root->setProperty("chosen", true);
        QVERIFY(window.value("checked").toBool());
        QVERIFY(window.accessible()->state().selected);
    }

    void headingsAndLabelsReadAsWhatTheyAre()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"Column { Heading { objectName: 'heading'; text: 'Junk' }\n"
                            "  PlainLabel { objectName: 'label'; text: '<b>bold</b>' } }"_s));
        QQuickItem *heading = ComponentWindow::named(window.root.get(), u"heading"_s);
        QQuickItem *label = ComponentWindow::named(window.root.get(), u"label"_s);
        QCOMPARE(window.accessible(heading)->role(), QAccessible::Heading);
        QCOMPARE(window.accessible(heading)->text(QAccessible::Name), u"Junk"_s);
        QCOMPARE(window.accessible(label)->role(), QAccessible::StaticText);
        // Names come from outside: what looks like markup is shown as it is.
        QCOMPARE(window.accessible(label)->text(QAccessible::Name), u"<b>bold</b>"_s);
        QCOMPARE(label->property("textFormat").toInt(), int(Qt::PlainText));
    }

    void gaugesTellTheirFigure()
    {
        ComponentWindow window;
        QVERIFY(window.show(
            u"Column { width: 300\n"
            "  GaugeTile { objectName: 'tile'; width: 150; title: 'CPU'; value: '12 %'; detail: '4 cores';\n"
            "    progress: 0.12 }\n"
            "  MiniGauge { objectName: 'mini'; width: 90; title: 'RAM'; value: '50 %'; progress: 0.5 } }"_s));
        QAccessibleInterface *tile = window.accessible(ComponentWindow::named(window.root.get(), u"tile"_s));
        QCOMPARE(tile->text(QAccessible::Name), u"CPU"_s);
        QCOMPARE(tile->text(QAccessible::Description), u"12 %, 4 cores"_s);
        QAccessibleInterface *mini = window.accessible(ComponentWindow::named(window.root.get(), u"mini"_s));
        QCOMPARE(mini->text(QAccessible::Name), u"RAM"_s);
        QCOMPARE(mini->text(QAccessible::Description), u"50 %"_s);
    }

    void toastIsTintedAsItIsTold()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"ToastView { shown: true; symbol: 'checkmark.circle.fill'; tint: 0xFF0000\n"
                            "  message: 'Done'; distance: 60 }"_s));
        QTRY_COMPARE(window.root->opacity(), 1.0);
        QQuickItem *symbol = ComponentWindow::named(window.root.get(), u"toastSymbol"_s);
        QCOMPARE(symbol->property("color").value<QColor>(), QColor(255, 0, 0));
        const QImage image = window.picture();
        const QRect box = symbol->mapRectToScene(symbol->boundingRect()).toRect();
        int red = 0;
        for (int y = box.top(); y <= box.bottom(); ++y) {
            for (int x = box.left(); x <= box.right(); ++x)
                red += image.pixelColor(x, y) == QColor(255, 0, 0);
        }
        QVERIFY(red > 20);
        QCOMPARE(window.accessible()->role(), QAccessible::AlertMessage);
        QCOMPARE(window.accessible()->text(QAccessible::Name), u"Done"_s);
        QSignalSpy gone(window.root.get(), SIGNAL(gone()));
        window.root->setProperty("shown", false);
        QTRY_COMPARE(gone.count(), 1);
    }

    void theGlassIsFilledRoundedAndTinted()
    {
        ComponentWindow window;
        QVERIFY(window.show(u"VisualEffectBackground { width: 100; height: 60; cornerRadius: 20; density: 0.5\n"
                            "  tintTop: '#80ff0000' }"_s));
        QCOMPARE(window.number("radius"), 20);
        QVERIFY(near(window.colour("glass").alphaF(), 0.5));
        QCOMPARE(window.colour("glass").rgb(), window.theme->backgroundBottom().rgb());
        window.view().setColor(Qt::black);
        const QImage image = window.picture();
        QCOMPARE(image.pixelColor(61, 61), QColor(Qt::black)); // outside the rounded corner
        const QColor top = image.pixelColor(110, 61);
        const QColor bottom = image.pixelColor(110, 118);
        QVERIFY(top.red() > top.green() + 60);
        QVERIFY(std::abs(bottom.red() - 0xF8 / 2) < 8 && std::abs(bottom.green() - 0xFA / 2) < 8);
    }

private:
    static bool tipShown(ComponentWindow &window, const QString &text)
    {
        for (const QQuickItem *item : ComponentWindow::having(window.view().contentItem(), "contentWidth")) {
            if (item->isVisible() && item->property("text").toString() == text)
                return true;
        }
        return false;
    }
    static void wheel(ComponentWindow &window, QPoint angle)
    {
        const QPointF place = window.centre();
        QWheelEvent event(place, window.view().mapToGlobal(place), {}, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window.view(), &event);
    }
};

QTEST_MAIN(tst_Controls)
#include "tst_Controls.moc"
