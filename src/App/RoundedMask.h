// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <QSize>

/// A window's shape without its corners: where nothing makes windows translucent, what is transparent is black.
[[nodiscard]] QRegion roundedMask(QSize window, int radius);
