// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

/// A round gauge: a quiet track, and over it an arc with round caps that runs clockwise from the top, in a gradient
/// along its length. Painted anew only when something of it changes.
class RingGauge : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The part of the circle that is drawn, 0 to 1.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    /// Where the arc begins, as a part of the circle from the top; the arc that spins moves it.
    Q_PROPERTY(double start READ start WRITE setStart NOTIFY startChanged FINAL)
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor trackColor READ trackColor WRITE setTrackColor NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor firstColor READ firstColor WRITE setFirstColor NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor lastColor READ lastColor WRITE setLastColor NOTIFY lookChanged FINAL)

public:
    explicit RingGauge(QQuickItem *parent = nullptr);

    [[nodiscard]] double value() const { return m_value; }
    void setValue(double value);
    [[nodiscard]] double start() const { return m_start; }
    void setStart(double start);
    [[nodiscard]] double lineWidth() const { return m_lineWidth; }
    void setLineWidth(double width);
    [[nodiscard]] QColor trackColor() const { return m_trackColor; }
    void setTrackColor(const QColor &colour);
    [[nodiscard]] QColor firstColor() const { return m_firstColor; }
    void setFirstColor(const QColor &colour);
    [[nodiscard]] QColor lastColor() const { return m_lastColor; }
    void setLastColor(const QColor &colour);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void valueChanged();
    void startChanged();
    void lookChanged();

private:
    template <typename T>
    void change(T &field, const T &value, void (RingGauge::*changed)());

    double m_value = 0;
    double m_start = 0;
    double m_lineWidth = 8;
    QColor m_trackColor;
    QColor m_firstColor;
    QColor m_lastColor;
};
