// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

/// The brand mark: a rounded square in blue tones that carries white sparkles.
class BrandLogo : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit BrandLogo(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    /// Draws the mark into a square `box`, wherever it is needed. Any thread.
    static void draw(QPainter *painter, const QRectF &box);
};
