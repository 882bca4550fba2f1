// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>
#include <QtQmlIntegration>

/// A symbol that the symbol font lacks, drawn in its style.
class SymbolDrawing : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY changed FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed FINAL)

public:
    explicit SymbolDrawing(QQuickItem *parent = nullptr);

    [[nodiscard]] QString symbol() const { return m_symbol; }
    void setSymbol(const QString &symbol);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &colour);

    /// Whether there is a drawing of that name.
    [[nodiscard]] static bool has(QStringView symbol);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    QString m_symbol;
    QColor m_color;
};
