// SPDX-License-Identifier: MIT
#include "App/RoundedMask.h"

#include <QPainterPath>

QRegion roundedMask(QSize window, int radius)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(), QSizeF(window)), radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}
