// SPDX-License-Identifier: MIT
#include "Views/AppIconImages.h"

#include "Fakes/ScratchTree.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class tst_AppIconImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAnImageAtTheSizeAskedFor();
    void keepsTheShapeOfAnImage();
    void findsFilesOfAnyName_data();
    void findsFilesOfAnyName();
    void looksAtTheContentRatherThanTheName();
    void readsDrawings();
    void takesTheSizeThatFits();
    void givesNoImageForWhatIsNone();
    void doesNotWaitForAPipe();
};

namespace {

constexpr QSize kNothing{1, 1}; // of what stands for no icon

QByteArray png(QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QImage load(const FileURL &file, QSize wanted = {44, 44})
{
    const QString address = AppIconImages::addressOf(file);
    QString id = address;
    id.remove(u"image://appicon/"_s);
    QSize size;
    return AppIconImages().requestImage(id, &size, wanted);
}

} // namespace

void tst_AppIconImages::readsAnImageAtTheSizeAskedFor()
{
    const ScratchTree tree;
    const QImage image = load(tree.file("icon.png", png({256, 256})));
    QCOMPARE(image.size(), QSize(44, 44));
    QCOMPARE(image.pixelColor(20, 20), QColor(10, 20, 30));
}

void tst_AppIconImages::keepsTheShapeOfAnImage()
{
    const ScratchTree tree;
    QCOMPARE(load(tree.file("icon.png", png({200, 100}))).size(), QSize(44, 22));
}

void tst_AppIconImages::findsFilesOfAnyName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("a space") << "my icon.png"_ba;
    QTest::newRow("a percent sign") << "my%20icon.png"_ba;
    QTest::newRow("signs of addresses") << "icon?a=b#c.png"_ba;
    QTest::newRow("no UTF-8") << "icon\xff.png"_ba;
}

void tst_AppIconImages::findsFilesOfAnyName()
{
    QFETCH(QByteArray, name);
    const ScratchTree tree;
    const FileURL file = tree.file(name, png({64, 64}));
    // As it arrives when an address went through QML's own URL.
    QCOMPARE(QUrl(AppIconImages::addressOf(file)).toString(), AppIconImages::addressOf(file));
    QVERIFY(!load(file).isNull());
}

void tst_AppIconImages::looksAtTheContentRatherThanTheName()
{
    const ScratchTree tree;
    QVERIFY(!load(tree.file("icon", png({64, 64}))).isNull());
    QVERIFY(!load(tree.file("icon.jpg", png({64, 64}))).isNull());
}

void tst_AppIconImages::readsDrawings()
{
    const ScratchTree tree;
    const FileURL file = tree.file("icon.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16">)"
                                               R"(<rect width="16" height="16" fill="#0a141e"/></svg>)");
    const QImage image = load(file, {88, 88});
    QCOMPARE(image.size(), QSize(88, 88));
    QCOMPARE(image.pixelColor(44, 44), QColor(10, 20, 30));
}

void tst_AppIconImages::takesTheSizeThatFits()
{
    const ScratchTree tree;
    QImage drawn(128, 128, QImage::Format_ARGB32);
    drawn.fill(QColor(10, 20, 30));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(drawn.save(&buffer, "ICNS"));
    const QImage image = load(tree.file("icon.icns", bytes));
    QCOMPARE(image.size(), QSize(44, 44));
    QCOMPARE(image.pixelColor(22, 22), QColor(10, 20, 30));
}

void tst_AppIconImages::givesNoImageForWhatIsNone()
{
    const ScratchTree tree;
    QCOMPARE(load(tree.file("icon.png", "no image")).size(), kNothing);
    QCOMPARE(load(tree.file("empty.png", {})).size(), kNothing);
    QCOMPARE(load(tree.at("absent.png")).size(), kNothing);
    QCOMPARE(load(tree.folder("folder.png")).size(), kNothing);
    QCOMPARE(load(tree.sparseFile("large.png", 17 * 1024 * 1024)).size(), kNothing);
    QSize size;
    QCOMPARE(AppIconImages().requestImage(u"!!!"_s, &size, {44, 44}).size(), kNothing);
    QCOMPARE(AppIconImages().requestImage(QString(), &size, {44, 44}).size(), kNothing);
}

void tst_AppIconImages::doesNotWaitForAPipe()
{
    const ScratchTree tree;
    const FileURL pipe = tree.at("pipe.png");
    QVERIFY(::mkfifo(pipe.path().constData(), 0600) == 0);
    QCOMPARE(load(pipe).size(), kNothing);
}

QTEST_MAIN(tst_AppIconImages)
#include "tst_AppIconImages.moc"
