// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QtQmlIntegration>

/// From the names of symbols that the interface uses to what draws them: a glyph of the symbol font, named by its
/// ligature, or for the few that the font lacks a drawing of our own (`SymbolDrawing`). Main thread.
class Symbols : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString family READ family CONSTANT FINAL)

public:
    explicit Symbols(QObject *parent = nullptr);

    /// The family of the symbol font, which is part of the program.
    [[nodiscard]] QString family() const { return m_family; }
    /// The text that the symbol font draws as the symbol; empty when the symbol is drawn by us, or unknown.
    Q_INVOKABLE [[nodiscard]] static QString ligature(const QString &name);

    /// Whether the name stands in the table at all.
    [[nodiscard]] static bool isKnown(QStringView name);
    /// Every name in the table.
    [[nodiscard]] static QStringList names();

private:
    QString m_family;
};
