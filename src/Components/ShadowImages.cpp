// SPDX-License-Identifier: MIT
#include "Components/ShadowImages.h"

#include <QColor>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

/// How far outside a rounded square a point lies; negative inside. The square's half side is `half`.
double distance(double x, double y, double half, double radius)
{
    const double dx = std::max(std::abs(x) - half + radius, 0.0);
    const double dy = std::max(std::abs(y) - half + radius, 0.0);
    return std::hypot(dx, dy) - radius;
}

} // namespace

ShadowImages::ShadowImages()
    : QQuickImageProvider(Image)
{
}

QImage ShadowImages::requestImage(const QString &id, QSize *size, const QSize & /*requestedSize*/)
{
    const QStringList parts = id.split(u'-');
    const QColor colour = QColor::fromRgb(parts.value(0).toUInt(nullptr, 16));
    const double opacity = parts.value(1).toDouble() / 100;
    const int radius = std::clamp(parts.value(2).toInt(), 0, 256);
    const int blur = std::clamp(parts.value(3).toInt(), 1, 256);
    const int drop = std::clamp(parts.value(4).toInt(), 0, blur);

    // The corners take radius and blur on each side; one row and column between them is stretched.
    const int side = 2 * (radius + 2 * blur) + 1;
    const double half = (side - 2.0 * blur) / 2;
    QImage image(side, side, QImage::Format_ARGB32);
    for (int row = 0; row < side; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < side; ++column) {
            const double x = column + 0.5 - side / 2.0;
            const double y = row + 0.5 - side / 2.0;
            const double away = distance(x, y - drop, half, radius);
            // Half as dark at the edge itself, as a blurred shape is.
            const double fade = std::clamp((blur - away) / (2.0 * blur), 0.0, 1.0);
            const double outside = std::clamp(distance(x, y, half, radius) + 0.5, 0.0, 1.0);
            const double alpha = opacity * fade * fade * (3 - 2 * fade) * outside;
            line[column] =
                qRgba(colour.red(), colour.green(), colour.blue(), static_cast<int>(std::lround(255 * alpha)));
        }
    }
    if (size)
        *size = image.size();
    return image;
}
