// SPDX-License-Identifier: MIT
#include "Theme/Theme.h"

Theme::Theme(QObject *parent)
    : QObject(parent)
{
}

void Theme::setDark(bool dark)
{
    if (m_dark == dark)
        return;
    m_dark = dark;
    Q_EMIT darkChanged();
}

void Theme::setReducedMotion(bool reduced)
{
    if (m_reducedMotion == reduced)
        return;
    m_reducedMotion = reduced;
    Q_EMIT reducedMotionChanged();
}

QColor Theme::fromHex(quint32 rgb)
{
    return QColor::fromRgb((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

QColor Theme::at(const QColor &colour, double opacity)
{
    QColor faded = colour;
    faded.setAlphaF(static_cast<float>(opacity));
    return faded;
}

QColor Theme::over(const QColor &upper, const QColor &lower)
{
    const float rest = lower.alphaF() * (1 - upper.alphaF());
    const float alpha = upper.alphaF() + rest;
    if (alpha <= 0)
        return Qt::transparent;
    const auto mixed = [&](float above, float below) { return (above * upper.alphaF() + below * rest) / alpha; };
    return QColor::fromRgbF(mixed(upper.redF(), lower.redF()), mixed(upper.greenF(), lower.greenF()),
                            mixed(upper.blueF(), lower.blueF()), alpha);
}

QColor Theme::dynamic(quint32 light, double lightAlpha, quint32 dark, double darkAlpha) const
{
    return m_dark ? at(fromHex(dark), darkAlpha) : at(fromHex(light), lightAlpha);
}
