// SPDX-License-Identifier: MIT
#pragma once

#include <QJSValue>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QtQmlIntegration>

/// Looks texts up for QML: `Texts.of("Scan")`. `of` is a property that holds a function, so that every binding that
/// calls it is evaluated again when the language changes. Main thread.
class Texts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QJSValue of READ of NOTIFY changed FINAL)

public:
    explicit Texts(QObject *parent = nullptr);

    [[nodiscard]] QJSValue of();
    /// The text in the interface language. QML calls `of`, which tells it when to look again.
    Q_INVOKABLE [[nodiscard]] static QString lookup(const QString &english);
    /// The text `english` in the interface language, its `%@` replaced. For texts that are built anew when shown.
    Q_INVOKABLE [[nodiscard]] static QString fill(const QString &english, const QString &value);
    /// Has every binding look its text up again. Called when the language changes.
    void followLanguage() { Q_EMIT changed(); }

Q_SIGNALS:
    void changed();

private:
    QJSValue m_of;
};
