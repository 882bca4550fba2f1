// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

/// Processor time since the machine started, summed over all processors, in ticks.
struct ProcessorTicks {
    quint64 user = 0;
    quint64 system = 0;
    quint64 idle = 0;
    quint64 nice = 0;
    friend bool operator==(const ProcessorTicks &, const ProcessorTicks &) = default;
};

/// Memory that is in use, in pages.
struct MemoryPages {
    quint64 active = 0;
    quint64 wired = 0;
    quint64 compressed = 0;
    quint64 pageSize = 0; // bytes
    friend bool operator==(const MemoryPages &, const MemoryPages &) = default;
};

/// Which sensors are asked for: those of one product name, or those of one usage.
struct SensorMatch {
    QString product; // empty: any
    int usagePage = 0;
    int usage = 0; // both 0: any
    friend bool operator==(const SensorMatch &, const SensorMatch &) = default;
};

/// A sensor found; `handle` is the platform's own name for it.
struct Sensor {
    QString product;
    QString handle;
    friend bool operator==(const Sensor &, const Sensor &) = default;
};

/// Raw samples of the system: no formula, no bounds. Any thread; `sensors` and `temperature` may block for a moment.
class SystemFigures
{
public:
    virtual ~SystemFigures() = default;
    [[nodiscard]] virtual std::optional<ProcessorTicks> processorTicks() const = 0;
    [[nodiscard]] virtual std::optional<MemoryPages> memoryPages() const = 0;
    /// Physical memory, in bytes; 0 when unknown.
    [[nodiscard]] virtual qint64 physicalMemory() const = 0;
    /// Bytes that an unprivileged user can still use on the start-up volume.
    [[nodiscard]] virtual std::optional<qint64> availableDisk() const = 0;
    /// Whether sensors can be read at all; asked once.
    [[nodiscard]] virtual bool canReadSensors() const = 0;
    [[nodiscard]] virtual QList<Sensor> sensors(const SensorMatch &match) const = 0;
    /// Degrees Celsius.
    [[nodiscard]] virtual std::optional<double> temperature(const Sensor &sensor) const = 0;
};
