// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QRectF>

/// The outlines that we draw ourselves. Any thread.
namespace SparkleShape {

/// A four-pointed star that fills `box`.
[[nodiscard]] QPainterPath star(const QRectF &box);
/// The large star and the two small ones of the brand mark, within `box`.
[[nodiscard]] QPainterPath sparkles(const QRectF &box);

} // namespace SparkleShape
