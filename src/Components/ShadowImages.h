// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickImageProvider>

/// Makes the soft shadows of cards: images to be stretched between their corners, with the card's own place cut out,
/// as cards are translucent. `image://shadow/RRGGBB-ALPHA-RADIUS-BLUR-DROP`: the colour, its opacity in percent, the
/// card's corner radius, how far the shadow reaches, and how much lower than the card it lies, in points. Any thread.
class ShadowImages : public QQuickImageProvider
{
public:
    ShadowImages();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
