// SPDX-License-Identifier: MIT
#pragma once

#include "Views/PageModel.h"

#include <QString>
#include <QtQmlIntegration>

#include <optional>

/// The live figures that the overview and the panel share, as they are shown: each a text and the part of its ring
/// that is drawn. Rings move with the figure written in them, so that nothing is drawn for less. Main thread.
class Figures final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Figures come from the program.")
    Q_PROPERTY(QString cpu READ cpu NOTIFY changed FINAL)
    Q_PROPERTY(double cpuProgress READ cpuProgress NOTIFY changed FINAL)
    Q_PROPERTY(QString memory READ memory NOTIFY changed FINAL)
    Q_PROPERTY(QString memoryDetail READ memoryDetail NOTIFY changed FINAL)
    Q_PROPERTY(double memoryProgress READ memoryProgress NOTIFY changed FINAL)
    Q_PROPERTY(QString temperature READ temperature NOTIFY changed FINAL)
    Q_PROPERTY(QString temperatureDetail READ temperatureDetail NOTIFY changed FINAL)
    Q_PROPERTY(bool hasTemperature READ hasTemperature NOTIFY changed FINAL)
    Q_PROPERTY(double temperatureProgress READ temperatureProgress NOTIFY changed FINAL)
    Q_PROPERTY(QString freeable READ freeable NOTIFY changed FINAL)
    Q_PROPERTY(double freeableProgress READ freeableProgress NOTIFY changed FINAL)
    Q_PROPERTY(QString unusedApps READ unusedApps NOTIFY changed FINAL)
    Q_PROPERTY(QString duplicates READ duplicates NOTIFY changed FINAL)
    Q_PROPERTY(QString largeFiles READ largeFiles NOTIFY changed FINAL)
    Q_PROPERTY(QString junk READ junk NOTIFY changed FINAL)

public:
    explicit Figures(AppState &state, QObject *parent = nullptr);

    [[nodiscard]] const QString &cpu() const { return m_view.cpu; }
    [[nodiscard]] double cpuProgress() const { return m_view.cpuProgress; }
    [[nodiscard]] const QString &memory() const { return m_view.memory; }
    [[nodiscard]] const QString &memoryDetail() const { return m_view.memoryDetail; }
    [[nodiscard]] double memoryProgress() const { return m_view.memoryProgress; }
    [[nodiscard]] const QString &temperature() const { return m_view.temperature; }
    [[nodiscard]] const QString &temperatureDetail() const { return m_view.temperatureDetail; }
    [[nodiscard]] bool hasTemperature() const { return m_view.hasTemperature; }
    [[nodiscard]] double temperatureProgress() const { return m_view.temperatureProgress; }
    [[nodiscard]] const QString &freeable() const { return m_view.freeable; }
    [[nodiscard]] double freeableProgress() const { return m_view.freeableProgress; }
    [[nodiscard]] const QString &unusedApps() const { return m_view.unusedApps; }
    [[nodiscard]] const QString &duplicates() const { return m_view.duplicates; }
    [[nodiscard]] const QString &largeFiles() const { return m_view.largeFiles; }
    [[nodiscard]] const QString &junk() const { return m_view.junk; }

    /// A fraction in percent; "--" when the rounded figure is no number or fits no 64-bit integer.
    [[nodiscard]] static QString percent(double fraction);
    /// A temperature in whole degrees; "--" without a reading.
    [[nodiscard]] static QString degrees(std::optional<double> celsius);

private:
    struct View {
        QString cpu;
        double cpuProgress = 0;
        QString memory;
        QString memoryDetail;
        double memoryProgress = 0;
        QString temperature;
        QString temperatureDetail;
        bool hasTemperature = false;
        double temperatureProgress = 0;
        QString freeable;
        double freeableProgress = 0;
        QString unusedApps;
        QString duplicates;
        QString largeFiles;
        QString junk;
        friend bool operator==(const View &, const View &) = default;
    };

    void takeUnusedApps();
    void takeDuplicates();
    void takeLargeFiles();
    void takeJunk();
    void refresh();

    // Bytes. Kept, because adding up a long list for each sample of the processor would be work for nothing.
    qint64 m_unusedApps = 0;
    qint64 m_duplicates = 0;
    qint64 m_largeFiles = 0;
    qint64 m_junk = 0;
    View m_view;
};
