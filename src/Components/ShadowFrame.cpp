// SPDX-License-Identifier: MIT
#include "Components/ShadowFrame.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTextureProvider>

#include <algorithm>
#include <array>

namespace {

/// A part of the frame: where it is on the item, and where on the picture.
struct Piece {
    QRectF place;
    QRectF source;
};

/// Four corners and the four edges between them.
std::array<Piece, 8> pieces(QSizeF item, QSizeF picture, double corner, double depth)
{
    // On an item smaller than its corners these meet in the middle.
    const double x = std::min(corner, item.width() / 2);
    const double y = std::min(corner, item.height() / 2);
    const double right = item.width() - x;
    const double bottom = item.height() - y;
    const double sourceRight = picture.width() - x;
    const double sourceBottom = picture.height() - y;
    const double across = std::min(depth, x);
    const double down = std::min(depth, y);
    const QPointF middle(picture.width() / 2 - 0.5, picture.height() / 2 - 0.5); // the one pixel that is stretched
    return {{
        {{0, 0, x, y}, {0, 0, x, y}},
        {{right, 0, x, y}, {sourceRight, 0, x, y}},
        {{0, bottom, x, y}, {0, sourceBottom, x, y}},
        {{right, bottom, x, y}, {sourceRight, sourceBottom, x, y}},
        {{x, 0, right - x, down}, {middle.x(), 0, 1, down}},
        {{x, item.height() - down, right - x, down}, {middle.x(), picture.height() - down, 1, down}},
        {{0, y, across, bottom - y}, {0, middle.y(), across, 1}},
        {{item.width() - across, y, across, bottom - y}, {picture.width() - across, middle.y(), across, 1}},
    }};
}

} // namespace

ShadowFrame::ShadowFrame(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void ShadowFrame::setPicture(QQuickItem *picture)
{
    if (m_picture == picture)
        return;
    m_picture = picture;
    update();
    Q_EMIT changed();
}

void ShadowFrame::setCorner(int corner)
{
    if (m_corner == corner)
        return;
    m_corner = corner;
    update();
    Q_EMIT changed();
}

void ShadowFrame::setDepth(int depth)
{
    if (m_depth == depth)
        return;
    m_depth = depth;
    update();
    Q_EMIT changed();
}

void ShadowFrame::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

QSGNode *ShadowFrame::updatePaintNode(QSGNode *node, UpdatePaintNodeData * /*data*/)
{
    const QSGTextureProvider *provider = m_picture ? m_picture->textureProvider() : nullptr;
    QSGTexture *texture = provider ? provider->texture() : nullptr;
    if (!texture || size().isEmpty()) {
        delete node;
        return nullptr;
    }
    const auto parts = pieces(size(), texture->textureSize(), m_corner, m_depth);
    if (!node) {
        node = new QSGNode;
        for (qsizetype each = 0; each < std::ssize(parts); ++each) {
            QSGImageNode *image = window()->createImageNode();
            image->setFiltering(QSGTexture::Linear);
            image->setFlag(QSGNode::OwnedByParent);
            node->appendChildNode(image);
        }
    }
    auto *image = static_cast<QSGImageNode *>(node->firstChild());
    for (const Piece &part : parts) {
        image->setTexture(texture);
        image->setRect(part.place);
        image->setSourceRect(part.source);
        image = static_cast<QSGImageNode *>(image->nextSibling());
    }
    return node;
}
