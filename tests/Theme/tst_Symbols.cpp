// SPDX-License-Identifier: MIT
#include "Theme/Symbols.h"

#include "Components/SymbolDrawing.h"

#include <QDirIterator>
#include <QFile>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QRegularExpression>
#include <QTest>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

/// The program's own sources, less the two that define symbols.
QHash<QString, QString> sources()
{
    QHash<QString, QString> texts;
    const QString folder = QStringLiteral(BRISKO_SOURCE_FOLDER);
    QDirIterator walk(folder, {u"*.qml"_s, u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        const QString name = file.fileName().mid(folder.size() + 1);
        if (name == u"Theme/Symbols.cpp" || name == u"Components/SymbolDrawing.cpp")
            continue;
        if (file.open(QIODevice::ReadOnly))
            texts.insert(name, QString::fromUtf8(file.readAll()));
    }
    return texts;
}

struct Place {
    QString ending;
    QRegularExpression value;
};

/// How sources name a symbol. Each of these occurs; one that finds nothing no longer knows the sources.
QList<Place> places()
{
    return {
        {u".qml"_s, QRegularExpression(u"\\bsymbol\\s*:([^\\n]*)"_s)},
        {u".cpp"_s, QRegularExpression(u"\\.symbol\\s*=([^,}\\n]*)"_s)},
        {u".cpp"_s, QRegularExpression(u"showToast\\(\\s*(u\"[^\"]*\")"_s)},
        {u"Views/Navigation.cpp"_s,
         QRegularExpression(u"Row\\{Page::\\w+,\\s*textKey\\(u\"[^\"]*\"\\),\\s*(u\"[^\"]*\")"_s)},
        {u"Services/JunkScanService.cpp"_s,
         QRegularExpression(u"CategoryRow\\{\\s*textKey\\(u\"[^\"]*\"\\),\\s*QLatin1StringView\\((\"[^\"]*\")"_s)},
        {u"Views/AppsModel.cpp"_s, QRegularExpression(u"QString\\(\\) : (u\"[a-z.]*\")"_s)},
    };
}

/// The names that the sources use, each with a file that does.
QMap<QString, QString> usedNames(const Place &place)
{
    static const QRegularExpression literal(u"\"([a-z0-9.]+)\""_s);
    QMap<QString, QString> names;
    const QHash<QString, QString> texts = sources();
    for (auto file = texts.begin(); file != texts.end(); ++file) {
        if (!file.key().endsWith(place.ending))
            continue;
        for (auto use = place.value.globalMatch(file.value()); use.hasNext();) {
            const QString value = use.next().captured(1);
            for (auto name = literal.globalMatch(value); name.hasNext();)
                names.insert(name.next().captured(1), file.key());
        }
    }
    return names;
}

QMap<QString, QString> usedNames()
{
    QMap<QString, QString> names;
    for (const Place &place : places())
        names.insert(usedNames(place));
    return names;
}

/// What the symbol font makes of a text.
QList<quint32> glyphs(const QString &text, const QString &family)
{
    QFont font;
    font.setFamilies({family});
    font.setPixelSize(24);
    font.setStyleStrategy(QFont::NoFontMerging);
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QList<quint32> found;
    for (const QGlyphRun &run : layout.glyphRuns()) {
        if (run.rawFont().familyName() == family)
            found.append(run.glyphIndexes());
        else
            found.append(0); // drawn by some other font: not a symbol
    }
    return found;
}

} // namespace

class tst_Symbols : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSourcesNameSymbolsInTheseWays()
    {
        for (const Place &place : places())
            QVERIFY2(!usedNames(place).isEmpty(), qPrintable(place.value.pattern()));
        QVERIFY(usedNames().size() >= 40);
    }

    void everyNameThatTheSourcesUseIsInTheTable()
    {
        const QMap<QString, QString> used = usedNames();
        QStringList unknown;
        for (auto name = used.begin(); name != used.end(); ++name) {
            if (!Symbols::isKnown(name.key()))
                unknown.append(name.key() + u" in "_s + name.value());
        }
        QCOMPARE(unknown, QStringList());
    }

    void everyNameInTheTableIsUsed()
    {
        const QMap<QString, QString> used = usedNames();
        QStringList idle;
        for (const QString &name : Symbols::names()) {
            if (!used.contains(name))
                idle.append(name);
        }
        QCOMPARE(idle, QStringList());
    }

    void namesStandOnceAndInOrder()
    {
        const QStringList names = Symbols::names();
        QStringList sorted = names;
        sorted.sort();
        sorted.removeDuplicates();
        QCOMPARE(names, sorted);
    }

    void everySymbolIsOneGlyphOrADrawing_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : Symbols::names())
            QTest::newRow(qPrintable(name)) << name;
    }
    void everySymbolIsOneGlyphOrADrawing()
    {
        QFETCH(const QString, name);
        const Symbols symbols;
        QVERIFY(!symbols.family().isEmpty());
        const QString ligature = Symbols::ligature(name);
        QCOMPARE(SymbolDrawing::has(name), ligature.isEmpty()); // one of the two, never both
        if (ligature.isEmpty()) {
            QVERIFY(inkOfDrawing(name) > 40);
            return;
        }
        const QList<quint32> found = glyphs(ligature, symbols.family());
        QCOMPARE(found.size(), 1);
        QVERIFY(found.first() != 0);
    }

    void whatTheFontLacksIsNotOneGlyph()
    {
        const Symbols symbols;
        QVERIFY(glyphs(u"app_dashed_nowhere"_s, symbols.family()).size() > 1);
    }

    void anUnknownNameIsNothing()
    {
        QVERIFY(!Symbols::isKnown(u"no.such.symbol"));
        QVERIFY(!Symbols::isKnown(u""));
        QCOMPARE(Symbols::ligature(u"no.such.symbol"_s), QString());
        QVERIFY(!SymbolDrawing::has(u"no.such.symbol"));
        QCOMPARE(inkOfDrawing(u"no.such.symbol"_s), 0);
    }

private:
    /// How many pixels of 24 x 24 a drawing touches.
    static int inkOfDrawing(const QString &name)
    {
        QImage image(24, 24, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        SymbolDrawing drawing;
        drawing.setSize({24, 24});
        drawing.setColor(Qt::red);
        drawing.setSymbol(name);
        QPainter painter(&image);
        drawing.paint(&painter);
        painter.end();
        int inked = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                inked += pixel.alpha() > 127 && pixel.red() > 200 && pixel.green() < 60;
            }
        }
        return inked;
    }
};

QTEST_MAIN(tst_Symbols)
#include "tst_Symbols.moc"
