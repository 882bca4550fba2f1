// SPDX-License-Identifier: MIT
#include "Components/ShadowImages.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <memory>

Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)

using namespace Qt::StringLiterals;

namespace {

/// The picture of a card's shadow, drawn by an item of these lines over white.
QImage drawn(const QByteArray &item, QSize size)
{
    QQuickView view;
    view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    view.engine()->addImageProvider(u"shadow"_s, new ShadowImages);
    QQmlComponent component(view.engine());
    component.setData("import QtQuick\nimport Brisko.Painted\nItem {\n"
                      "Image { id: shadow; visible: false; source: 'image://shadow/3b5bdb-60-14-22-5' }\n" +
                          item + "}\n",
                      QUrl());
    std::unique_ptr<QObject> object(component.create());
    auto *root = qobject_cast<QQuickItem *>(object.get());
    if (!root) {
        qWarning("%s", qPrintable(component.errorString()));
        return {};
    }
    root->setSize(size);
    root->setParentItem(view.contentItem());
    view.resize(size);
    view.setColor(Qt::white);
    view.show();
    return QTest::qWaitForWindowExposed(&view) ? view.grabWindow().convertToFormat(QImage::Format_RGB32) : QImage();
}

/// How far apart two pictures are at worst, in steps of one of their colours.
int difference(const QImage &a, const QImage &b)
{
    int worst = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            worst = std::max({worst, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                              std::abs(qBlue(one) - qBlue(other))});
        }
    }
    return worst;
}

constexpr auto kFrame = "ShadowFrame { anchors.fill: parent; picture: shadow; corner: 58; depth: 24 }\n";

} // namespace

class tst_ShadowFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsTheWholePictureStretched_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("a card") << QSize(239, 259);
        QTest::newRow("a wide card") << QSize(700, 130);
        QTest::newRow("as large as the picture") << QSize(117, 117);
    }
    void looksAsTheWholePictureStretched()
    {
        QFETCH(const QSize, size);
        const QImage whole = drawn("BorderImage { anchors.fill: parent; source: shadow.source\n"
                                   "border { left: 58; top: 58; right: 58; bottom: 58 } }\n",
                                   size);
        const QImage frame = drawn(kFrame, size);
        QCOMPARE(frame.size(), size);
        QCOMPARE(whole.size(), size);
        QVERIFY(frame.pixelColor(size.width() / 2, size.height() - 20) != QColor(Qt::white));
        QCOMPARE(frame.pixelColor(size.width() / 2, size.height() / 2), QColor(Qt::white));
        QVERIFY2(difference(whole, frame) <= 2, qPrintable(QString::number(difference(whole, frame))));
    }

    void itsCornersMeetWhereThereIsNoRoom()
    {
        const QSize size(200, 72); // a card of twice its corner's radius
        const QImage frame = drawn(kFrame, size);
        QCOMPARE(frame.size(), size);
        QCOMPARE(frame.pixelColor(100, 36), QColor(Qt::white));
        QVERIFY(frame.pixelColor(100, 55) != QColor(Qt::white));
        QCOMPARE(frame.pixelColor(0, 36), frame.pixelColor(199, 36));
    }

    void withoutAPictureNothingIsDrawn()
    {
        const QImage frame =
            drawn("ShadowFrame { anchors.fill: parent; picture: null; corner: 58; depth: 24 }\n", QSize(200, 200));
        QCOMPARE(frame.pixelColor(100, 190), QColor(Qt::white));
    }
};

QTEST_MAIN(tst_ShadowFrame)
#include "tst_ShadowFrame.moc"
