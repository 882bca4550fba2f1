// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QtQmlIntegration>

/// The palette, the distances and the durations that every screen draws with. A colour that differs between light and
/// dark is a property that follows `dark`. One object an engine; main thread.
class Theme : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    /// Whether the dark values hold.
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged FINAL)
    /// Whether transitions are left out: every duration below is then 0 ms.
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged FINAL)

    Q_PROPERTY(QColor blue READ blue CONSTANT FINAL)
    Q_PROPERTY(QColor violet READ violet CONSTANT FINAL)
    Q_PROPERTY(QColor cyan READ cyan CONSTANT FINAL)
    Q_PROPERTY(QColor amber READ amber CONSTANT FINAL)
    Q_PROPERTY(QColor orange READ orange CONSTANT FINAL)
    Q_PROPERTY(QColor emerald READ emerald CONSTANT FINAL)
    Q_PROPERTY(QColor green READ green CONSTANT FINAL)
    Q_PROPERTY(QColor teal READ teal CONSTANT FINAL)
    Q_PROPERTY(QColor red READ red CONSTANT FINAL)
    Q_PROPERTY(QColor onAccent READ onAccent CONSTANT FINAL)

    Q_PROPERTY(QColor textPrimary READ textPrimary NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor textSecondary READ textSecondary NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor cardFill READ cardFill NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor border READ border NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor glassEdge READ glassEdge NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor surfaceAlt READ surfaceAlt NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor hoverFill READ hoverFill NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor windowTintTop READ windowTintTop NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor windowTintBottom READ windowTintBottom NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor sidebarTop READ sidebarTop NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor sidebarBottom READ sidebarBottom NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor cardShadow READ cardShadow NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor hoverShadow READ hoverShadow NOTIFY darkChanged FINAL)
    Q_PROPERTY(QColor backgroundBottom READ backgroundBottom NOTIFY darkChanged FINAL)
    /// The ring that marks the control that the keyboard is at.
    Q_PROPERTY(QColor focusRing READ focusRing NOTIFY darkChanged FINAL)

    /// The accent where it is a text: dense enough to read.
    Q_PROPERTY(QColor accentText READ accentText NOTIFY darkChanged FINAL)
    /// The edge of an empty check box, which must not vanish on a bright wallpaper.
    Q_PROPERTY(QColor checkEdge READ checkEdge NOTIFY darkChanged FINAL)
    /// How much of what is behind the window its background hides, 0 to 1.
    Q_PROPERTY(double glassDensity READ glassDensity NOTIFY darkChanged FINAL)
    /// The same for the status area's panel, which lies over whatever is on screen.
    Q_PROPERTY(double panelDensity MEMBER kPanelDensity CONSTANT FINAL)

    // Distances, in points.
    Q_PROPERTY(int panelInset MEMBER kPanelInset CONSTANT FINAL)
    Q_PROPERTY(int windowRadius MEMBER kWindowRadius CONSTANT FINAL)
    Q_PROPERTY(int pagePadding MEMBER kPagePadding CONSTANT FINAL)
    Q_PROPERTY(int sectionGap MEMBER kSectionGap CONSTANT FINAL)
    Q_PROPERTY(int gridGap MEMBER kGridGap CONSTANT FINAL)
    Q_PROPERTY(int cardGap MEMBER kCardGap CONSTANT FINAL)
    Q_PROPERTY(int rowGap MEMBER kRowGap CONSTANT FINAL)
    Q_PROPERTY(int textGap MEMBER kTextGap CONSTANT FINAL)
    Q_PROPERTY(int cardRadius MEMBER kCardRadius CONSTANT FINAL)
    Q_PROPERTY(int controlRadius MEMBER kControlRadius CONSTANT FINAL)
    Q_PROPERTY(int controlHeight MEMBER kControlHeight CONSTANT FINAL)

    // Durations, in milliseconds.
    Q_PROPERTY(int quick READ quick NOTIFY reducedMotionChanged FINAL)       ///< hover of controls and rows
    Q_PROPERTY(int gentle READ gentle NOTIFY reducedMotionChanged FINAL)     ///< lifting, turning, appearance
    Q_PROPERTY(int hover READ hover NOTIFY reducedMotionChanged FINAL)       ///< hover of the sidebar and of tiles
    Q_PROPERTY(int entrance READ entrance NOTIFY reducedMotionChanged FINAL) ///< rows and tiles that come in
    Q_PROPERTY(int ring READ ring NOTIFY reducedMotionChanged FINAL)         ///< an arc that moves to its value

public:
    static constexpr double kPanelDensity = 0.95;
    static constexpr int kPanelInset = 8;
    static constexpr int kWindowRadius = 20;

    explicit Theme(QObject *parent = nullptr);

    [[nodiscard]] bool dark() const { return m_dark; }
    void setDark(bool dark);
    [[nodiscard]] bool reducedMotion() const { return m_reducedMotion; }
    void setReducedMotion(bool reduced);

    [[nodiscard]] static QColor blue() { return QColor::fromRgb(0x38, 0x82, 0xF6); }
    [[nodiscard]] static QColor violet() { return QColor::fromRgb(0x8B, 0x5C, 0xF6); }
    [[nodiscard]] static QColor cyan() { return QColor::fromRgb(0x22, 0xD3, 0xEE); }
    [[nodiscard]] static QColor amber() { return QColor::fromRgb(0xF5, 0x9E, 0x0B); }
    [[nodiscard]] static QColor orange() { return QColor::fromRgb(0xF9, 0x73, 0x16); }
    [[nodiscard]] static QColor emerald() { return QColor::fromRgb(0x10, 0xB9, 0x81); }
    [[nodiscard]] static QColor green() { return QColor::fromRgb(0x34, 0xD3, 0x99); }
    [[nodiscard]] static QColor teal() { return QColor::fromRgb(0x2D, 0xD4, 0xBF); }
    [[nodiscard]] static QColor red() { return QColor::fromRgb(0xEF, 0x44, 0x44); }
    [[nodiscard]] static QColor onAccent() { return QColor::fromRgb(0xFF, 0xFF, 0xFF); }

    [[nodiscard]] QColor textPrimary() const { return dynamic(0x0F172A, 1, 0xF8FAFF, 1); }
    [[nodiscard]] QColor textSecondary() const { return dynamic(0x64748B, 1, 0xC2CEE0, 1); }
    [[nodiscard]] QColor cardFill() const { return dynamic(0xFFFFFF, 0.5, 0x1B2540, 0.52); }
    [[nodiscard]] QColor border() const { return dynamic(0xE2E8F0, 1, 0x3A4763, 1); }
    [[nodiscard]] QColor glassEdge() const { return dynamic(0xFFFFFF, 0.65, 0xFFFFFF, 0.1); }
    [[nodiscard]] QColor surfaceAlt() const { return dynamic(0xF1F5F9, 1, 0x273350, 1); }
    [[nodiscard]] QColor hoverFill() const { return dynamic(0xE0E7FF, 1, 0x2A3760, 1); }
    [[nodiscard]] QColor windowTintTop() const { return dynamic(0xC9DAFF, 0.22, 0x22305C, 0.55); }
    [[nodiscard]] QColor windowTintBottom() const { return dynamic(0xFFFFFF, 0.05, 0x0C1424, 0.28); }
    [[nodiscard]] QColor sidebarTop() const { return dynamic(0xFFFFFF, 0.32, 0xFFFFFF, 0.06); }
    [[nodiscard]] QColor sidebarBottom() const { return dynamic(0xEEF3FF, 0.18, 0x0A1020, 0.2); }
    [[nodiscard]] QColor cardShadow() const { return dynamic(0x3B5BDB, 0.14, 0x000000, 0.4); }
    [[nodiscard]] QColor hoverShadow() const { return dynamic(0x3882F6, 0.32, 0x1D4ED8, 0.45); }
    [[nodiscard]] QColor backgroundBottom() const { return dynamic(0xF8FAFC, 1, 0x1E293B, 1); }
    [[nodiscard]] QColor focusRing() const { return dynamic(0x3882F6, 0.9, 0x93C5FD, 0.9); }

    [[nodiscard]] QColor accentText() const { return dynamic(0x1D4ED8, 1, 0x93C5FD, 1); }
    [[nodiscard]] QColor checkEdge() const { return dynamic(0x718096, 1, 0x7C8BA1, 1); }
    // Light glass turns grey over a dark wallpaper, and grey texts on it fade; dark glass has room to spare.
    [[nodiscard]] double glassDensity() const { return m_dark ? 0.84 : 0.92; }

    [[nodiscard]] int quick() const { return m_reducedMotion ? 0 : 150; }
    [[nodiscard]] int gentle() const { return m_reducedMotion ? 0 : 200; }
    [[nodiscard]] int hover() const { return m_reducedMotion ? 0 : 250; }
    [[nodiscard]] int entrance() const { return m_reducedMotion ? 0 : 500; }
    [[nodiscard]] int ring() const { return m_reducedMotion ? 0 : 900; }

    /// The colour 0xRRGGBB, opaque.
    Q_INVOKABLE [[nodiscard]] static QColor fromHex(quint32 rgb);
    /// `colour` at another opacity, 0 to 1.
    Q_INVOKABLE [[nodiscard]] static QColor at(const QColor &colour, double opacity);
    /// What is seen where one colour lies over another, as one colour.
    Q_INVOKABLE [[nodiscard]] static QColor over(const QColor &upper, const QColor &lower);

Q_SIGNALS:
    void darkChanged();
    void reducedMotionChanged();

private:
    [[nodiscard]] QColor dynamic(quint32 light, double lightAlpha, quint32 dark, double darkAlpha) const;

    static constexpr int kPagePadding = 16;
    static constexpr int kSectionGap = 24;
    static constexpr int kGridGap = 16;
    static constexpr int kCardGap = 12;
    static constexpr int kRowGap = 10;
    static constexpr int kTextGap = 4;
    static constexpr int kCardRadius = 14;
    static constexpr int kControlRadius = 10;
    static constexpr int kControlHeight = 38;

    bool m_dark = false;
    bool m_reducedMotion = false;
};
