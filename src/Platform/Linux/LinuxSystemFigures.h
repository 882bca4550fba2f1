// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/SystemFigures.h"

#include "Models/FileURL.h"

#include <QByteArrayView>

/// Where the samples are read; tests put folders of their own in.
struct FigureSources {
    FileURL proc = FileURL::fromCleanPath("/proc");
    FileURL sys = FileURL::fromCleanPath("/sys");
    FileURL volume = FileURL::root(); // any folder of the volume whose free space counts
};

/// Samples from the kernel's files, each file read once for a sample.
class LinuxSystemFigures : public SystemFigures
{
public:
    explicit LinuxSystemFigures(FigureSources sources = {});

    /// Time waiting for a disk is idle, time in interrupts is the system's; time that the machine's host gave to
    /// others is neither.
    [[nodiscard]] std::optional<ProcessorTicks> processorTicks() const override;
    /// In pages of 1 KiB, the unit in which the kernel counts memory.
    [[nodiscard]] std::optional<MemoryPages> memoryPages() const override;
    [[nodiscard]] qint64 physicalMemory() const override;
    [[nodiscard]] std::optional<qint64> availableDisk() const override;
    [[nodiscard]] bool canReadSensors() const override;
    /// The drive's own temperature of each NVMe and then each SATA disk, as products named "NAND ...".
    [[nodiscard]] QList<Sensor> sensors(const SensorMatch &match) const override;
    [[nodiscard]] std::optional<double> temperature(const Sensor &sensor) const override;

private:
    [[nodiscard]] quint64 zramBytes() const;

    FigureSources m_sources;
};
