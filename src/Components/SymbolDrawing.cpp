// SPDX-License-Identifier: MIT
#include "Components/SymbolDrawing.h"

#include "Components/SparkleShape.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <array>

namespace {

// Every drawing stands in a square of this side; the pen is as wide as the font's strokes.
constexpr double kSide = 24;
constexpr double kStroke = 1.6;

QPen pen(const QColor &colour)
{
    return {colour, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// An application's outline, dashed: there is no icon.
void drawAppDashed(QPainter *painter, const QColor &colour)
{
    QPen dashes = pen(colour);
    dashes.setDashPattern({2.2, 2.4});
    painter->setPen(dashes);
    painter->drawRoundedRect(QRectF(3, 3, 18, 18), 5, 5);
}

/// The power sign within a circle.
void drawPowerCircle(QPainter *painter, const QColor &colour)
{
    painter->setPen(pen(colour));
    painter->drawEllipse(QPointF(12, 12), 10, 10);
    painter->drawArc(QRectF(7.5, 7.9, 9, 9), 130 * 16, 280 * 16);
    painter->drawLine(QPointF(12, 6.4), QPointF(12, 11.6));
}

/// Soap bubbles with a sparkle.
void drawBubblesAndSparkles(QPainter *painter, const QColor &colour)
{
    QPainterPath path;
    path.addEllipse(QPointF(9, 15), 6.6, 6.6);
    path.addEllipse(QPointF(19, 18.4), 3.2, 3.2);
    QPainterPath shine;
    shine.addEllipse(QPointF(6.9, 12.7), 1.5, 1.5);
    painter->fillPath(path.subtracted(shine), colour);
    painter->fillPath(SparkleShape::star(QRectF(12.2, 1.6, 10, 10)), colour);
    painter->fillPath(SparkleShape::star(QRectF(6.4, 1.2, 5, 5)), colour);
}

struct Drawing {
    QLatin1StringView symbol;
    void (*draw)(QPainter *, const QColor &);
};

constexpr std::array kDrawings = {
    Drawing{QLatin1StringView("app.dashed"), drawAppDashed},
    Drawing{QLatin1StringView("bubbles.and.sparkles.fill"), drawBubblesAndSparkles},
    Drawing{QLatin1StringView("power.circle"), drawPowerCircle},
};

const Drawing *find(QStringView symbol)
{
    const auto found = std::ranges::find_if(kDrawings, [symbol](const Drawing &each) { return symbol == each.symbol; });
    return found == kDrawings.end() ? nullptr : &*found;
}

} // namespace

SymbolDrawing::SymbolDrawing(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void SymbolDrawing::setSymbol(const QString &symbol)
{
    if (m_symbol == symbol)
        return;
    m_symbol = symbol;
    Q_EMIT changed();
    update();
}

void SymbolDrawing::setColor(const QColor &colour)
{
    if (m_color == colour)
        return;
    m_color = colour;
    Q_EMIT changed();
    update();
}

bool SymbolDrawing::has(QStringView symbol)
{
    return find(symbol) != nullptr;
}

void SymbolDrawing::paint(QPainter *painter)
{
    const Drawing *drawing = find(m_symbol);
    if (!drawing)
        return;
    const double side = std::min(width(), height());
    painter->translate((width() - side) / 2, (height() - side) / 2);
    painter->scale(side / kSide, side / kSide);
    painter->setBrush(Qt::NoBrush);
    drawing->draw(painter, m_color);
}
