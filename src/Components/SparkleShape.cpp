// SPDX-License-Identifier: MIT
#include "Components/SparkleShape.h"

namespace SparkleShape {

QPainterPath star(const QRectF &box)
{
    // Each side bends towards the centre; the nearer its control point, the slimmer the star.
    constexpr double kWaist = 0.14;
    const QPointF centre = box.center();
    const double dx = box.width() / 2 * kWaist;
    const double dy = box.height() / 2 * kWaist;
    QPainterPath path(QPointF(centre.x(), box.top()));
    path.quadTo(centre + QPointF(dx, -dy), QPointF(box.right(), centre.y()));
    path.quadTo(centre + QPointF(dx, dy), QPointF(centre.x(), box.bottom()));
    path.quadTo(centre + QPointF(-dx, dy), QPointF(box.left(), centre.y()));
    path.quadTo(centre + QPointF(-dx, -dy), QPointF(centre.x(), box.top()));
    path.closeSubpath();
    return path;
}

QPainterPath sparkles(const QRectF &box)
{
    const auto within = [&box](double x, double y, double size) {
        return QRectF(box.left() + x * box.width(), box.top() + y * box.height(), size * box.width(),
                      size * box.height());
    };
    QPainterPath path = star(within(0.24, 0.26, 0.76));
    path.addPath(star(within(0.0, 0.06, 0.4)));
    path.addPath(star(within(0.36, 0.0, 0.24)));
    return path;
}

} // namespace SparkleShape
