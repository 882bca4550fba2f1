// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <QCoro/QCoroTask>
#include <QThreadPool>

#include <memory>
#include <optional>

/// Live figures from the system's raw samples.
namespace SystemStatsService {

struct Memory {
    qint64 used = 0;  // bytes
    qint64 total = 0; // bytes
    friend bool operator==(const Memory &, const Memory &) = default;
};

/// The processors' load since the previous call, 0 to 1; 0 when there is no previous sample. `previous` is replaced by
/// the new sample.
[[nodiscard]] double cpuUsage(const SystemFigures &figures, std::optional<ProcessorTicks> &previous);

/// Memory in use out of physical memory; both 0 when it cannot be read.
[[nodiscard]] Memory memoryUsage(const SystemFigures &figures);

/// The temperature of the first flash-storage sensor, in degrees Celsius; absent without one or outside 0 to 110.
/// May block for a moment.
[[nodiscard]] std::optional<double> diskTemperature(const SystemFigures &figures);

/// The same on `pool`.
QCoro::Task<std::optional<double>> diskTemperatureAsync(std::shared_ptr<const Platform> platform, QThreadPool *pool);

} // namespace SystemStatsService
