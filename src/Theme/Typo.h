// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>

/// The type scale, in points as the window counts them. The family is Inter where it is installed, else the desktop's
/// own, followed by the one that draws the interface language's script in its own forms. Main thread.
class Typo : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QFont largeTitle READ largeTitle NOTIFY changed FINAL)
    Q_PROPERTY(QFont sectionTitle READ sectionTitle NOTIFY changed FINAL)
    Q_PROPERTY(QFont title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QFont headline READ headline NOTIFY changed FINAL)
    Q_PROPERTY(QFont statValue READ statValue NOTIFY changed FINAL)
    Q_PROPERTY(QFont caption READ caption NOTIFY changed FINAL)
    Q_PROPERTY(QFont small READ small NOTIFY changed FINAL)
    // Sizes that single places ask for.
    Q_PROPERTY(QFont button READ headline NOTIFY changed FINAL)         ///< 15 medium
    Q_PROPERTY(QFont rowTitle READ rowTitle NOTIFY changed FINAL)       ///< 14 medium
    Q_PROPERTY(QFont prominent READ prominent NOTIFY changed FINAL)     ///< 13 medium
    Q_PROPERTY(QFont detail READ detail NOTIFY changed FINAL)           ///< 12 regular
    Q_PROPERTY(QFont smallMedium READ smallMedium NOTIFY changed FINAL) ///< 11 medium
    Q_PROPERTY(QFont tiny READ tiny NOTIFY changed FINAL)               ///< 10 regular
    Q_PROPERTY(QFont brand READ brand NOTIFY changed FINAL)             ///< 17 semibold
    Q_PROPERTY(QFont badge READ badge NOTIFY changed FINAL)             ///< 9 medium

public:
    explicit Typo(QObject *parent = nullptr);

    [[nodiscard]] QFont largeTitle() const { return font(34, QFont::DemiBold); }
    [[nodiscard]] QFont sectionTitle() const { return font(22, QFont::DemiBold); }
    [[nodiscard]] QFont title() const { return font(16, QFont::DemiBold); }
    [[nodiscard]] QFont headline() const { return font(15, QFont::Medium); }
    [[nodiscard]] QFont statValue() const { return font(22, QFont::DemiBold); }
    [[nodiscard]] QFont caption() const { return font(13, QFont::Normal); }
    [[nodiscard]] QFont small() const { return font(11, QFont::Normal); }
    [[nodiscard]] QFont rowTitle() const { return font(14, QFont::Medium); }
    [[nodiscard]] QFont prominent() const { return font(13, QFont::Medium); }
    [[nodiscard]] QFont detail() const { return font(12, QFont::Normal); }
    [[nodiscard]] QFont smallMedium() const { return font(11, QFont::Medium); }
    [[nodiscard]] QFont tiny() const { return font(10, QFont::Normal); }
    [[nodiscard]] QFont brand() const { return font(17, QFont::DemiBold); }
    [[nodiscard]] QFont badge() const { return font(9, QFont::Medium); }

    /// Chooses the families for the interface language of the moment. Called when that changes.
    void followLanguage();
    /// The families that are asked for, best first. Empty: the desktop's own.
    [[nodiscard]] QStringList families() const { return m_families; }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QFont font(int pixelSize, QFont::Weight weight) const;
    void chooseFamilies();

    QStringList m_families;
};
