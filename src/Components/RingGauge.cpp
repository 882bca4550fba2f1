// SPDX-License-Identifier: MIT
#include "Components/RingGauge.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPen>

#include <algorithm>

namespace {

constexpr int kFullCircle = 360 * 16; // in the painter's sixteenths of a degree
constexpr double kTop = 90;           // degrees, counter-clockwise from three o'clock

/// The gradient along an arc of `part` of the circle. A conical gradient runs counter-clockwise, the arc clockwise.
QConicalGradient alongArc(QPointF centre, double topAngle, double part, const QColor &first, const QColor &last)
{
    QConicalGradient gradient(centre, topAngle);
    gradient.setColorAt(1, first);
    gradient.setColorAt(1 - part, last);
    // Beyond each end the round cap still has its end's colour; a circle that is almost full has no room for that.
    constexpr double kCap = 0.03;
    if (part < 1 - 2 * kCap) {
        gradient.setColorAt(1 - part - kCap, last);
        gradient.setColorAt(kCap, first);
        gradient.setColorAt(0, first);
    }
    return gradient;
}

} // namespace

RingGauge::RingGauge(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

template <typename T>
void RingGauge::change(T &field, const T &value, void (RingGauge::*changed)())
{
    if (field == value)
        return;
    field = value;
    Q_EMIT(this->*changed)();
    update();
}

void RingGauge::setValue(double value)
{
    // Steps that nobody sees cost a painting all the same.
    constexpr double kStep = 1.0 / 720;
    const double bounded = std::clamp(value, 0.0, 1.0);
    if (bounded != 0 && bounded != 1 && std::abs(bounded - m_value) < kStep)
        return;
    change(m_value, bounded, &RingGauge::valueChanged);
}

void RingGauge::setStart(double start)
{
    change(m_start, start, &RingGauge::startChanged);
}

void RingGauge::setLineWidth(double width)
{
    change(m_lineWidth, width, &RingGauge::lookChanged);
}

void RingGauge::setTrackColor(const QColor &colour)
{
    change(m_trackColor, colour, &RingGauge::lookChanged);
}

void RingGauge::setFirstColor(const QColor &colour)
{
    change(m_firstColor, colour, &RingGauge::lookChanged);
}

void RingGauge::setLastColor(const QColor &colour)
{
    change(m_lastColor, colour, &RingGauge::lookChanged);
}

void RingGauge::paint(QPainter *painter)
{
    const double side = std::min(width(), height());
    const double inset = m_lineWidth / 2 + 1;
    const QRectF square((width() - side) / 2, (height() - side) / 2, side, side);
    const QRectF box = square.adjusted(inset, inset, -inset, -inset);
    if (!box.isValid())
        return;
    painter->setPen(QPen(m_trackColor, m_lineWidth));
    painter->drawEllipse(box);
    if (m_value <= 0)
        return;
    const double begin = kTop - 360 * m_start;
    const QBrush brush(alongArc(box.center(), begin, m_value, m_firstColor, m_lastColor));
    painter->setPen(QPen(brush, m_lineWidth, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(box, static_cast<int>(begin * 16), static_cast<int>(-kFullCircle * m_value));
}
