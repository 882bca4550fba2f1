// SPDX-License-Identifier: MIT
#include "Components/BrandLogo.h"

#include "Components/SparkleShape.h"

#include <QLinearGradient>

BrandLogo::BrandLogo(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void BrandLogo::paint(QPainter *painter)
{
    draw(painter, QRectF(0, 0, width(), height()));
}

void BrandLogo::draw(QPainter *painter, const QRectF &box)
{
    constexpr double kCorner = 0.26;
    constexpr double kMargin = 0.19;
    QLinearGradient blue(box.topLeft(), box.bottomLeft());
    blue.setColorAt(0, QColor::fromRgb(0x60, 0xA5, 0xFA));
    blue.setColorAt(1, QColor::fromRgb(0x25, 0x63, 0xEB));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(blue);
    painter->drawRoundedRect(box, box.width() * kCorner, box.height() * kCorner);
    const double margin = box.width() * kMargin;
    painter->fillPath(SparkleShape::sparkles(box.adjusted(margin, margin, -margin, -margin)), Qt::white);
    painter->restore();
}
