// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

/// A picture of a soft frame, stretched around this item's edges. What lies inside is clear and is not drawn, which a
/// border image would do: where a processor draws, the inside of every card costs more than its shadow.
class ShadowFrame : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Provides the picture; an image that need not be seen itself.
    Q_PROPERTY(QQuickItem *picture READ picture WRITE setPicture NOTIFY changed REQUIRED FINAL)
    /// The side of the picture's corners, which are not stretched.
    Q_PROPERTY(int corner READ corner WRITE setCorner NOTIFY changed REQUIRED FINAL)
    /// How far the frame reaches in from an edge, between the corners.
    Q_PROPERTY(int depth READ depth WRITE setDepth NOTIFY changed REQUIRED FINAL)

public:
    explicit ShadowFrame(QQuickItem *parent = nullptr);

    [[nodiscard]] QQuickItem *picture() const { return m_picture; }
    [[nodiscard]] int corner() const { return m_corner; }
    [[nodiscard]] int depth() const { return m_depth; }
    void setPicture(QQuickItem *picture);
    void setCorner(int corner);
    void setDepth(int depth);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    QPointer<QQuickItem> m_picture;
    int m_corner = 0;
    int m_depth = 0;
};
