// SPDX-License-Identifier: MIT
#include "Services/SystemStatsService.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Which sensors are asked for: the disk's own by its name, else every temperature sensor.
constexpr QLatin1StringView kDiskSensorName{"NAND CH0 temp"};
constexpr int kTemperaturePage = 0xFF00;
constexpr int kTemperatureUsage = 5;
constexpr QLatin1StringView kFlashStorage{"NAND"};

// Readings outside, bounds included, are those of a sensor that does not work.
constexpr double kColdestDegrees = 0;
constexpr double kHottestDegrees = 110;

/// The growth of a counter. Some of the system's counters run backwards now and then: that is negative.
double growth(quint64 before, quint64 now)
{
    return static_cast<double>(static_cast<qint64>(now - before));
}

qint64 checkedBytes(const MemoryPages &pages)
{
    quint64 count = 0;
    quint64 bytes = 0;
    if (__builtin_add_overflow(pages.active, pages.wired, &count) ||
        __builtin_add_overflow(count, pages.compressed, &count) ||
        __builtin_mul_overflow(count, pages.pageSize, &bytes) ||
        bytes > static_cast<quint64>(std::numeric_limits<qint64>::max()))
        qFatal("Memory in use overflows");
    return static_cast<qint64>(bytes);
}

/// The first sensor of flash storage among those found.
std::optional<Sensor> flashSensor(const QList<Sensor> &sensors)
{
    const auto found =
        std::ranges::find_if(sensors, [](const Sensor &sensor) { return sensor.product.contains(kFlashStorage); });
    return found == sensors.end() ? std::nullopt : std::optional(*found);
}

} // namespace

double SystemStatsService::cpuUsage(const SystemFigures &figures, std::optional<ProcessorTicks> &previous)
{
    const std::optional<ProcessorTicks> now = figures.processorTicks();
    if (!now)
        return 0;
    const std::optional<ProcessorTicks> before = std::exchange(previous, now);
    if (!before)
        return 0;
    const double busy =
        growth(before->system, now->system) + growth(before->user, now->user) + growth(before->nice, now->nice);
    const double total = busy + growth(before->idle, now->idle);
    return total > 0 ? std::clamp(busy / total, 0.0, 1.0) : 0;
}

SystemStatsService::Memory SystemStatsService::memoryUsage(const SystemFigures &figures)
{
    const std::optional<MemoryPages> pages = figures.memoryPages();
    if (!pages)
        return {};
    return {.used = checkedBytes(*pages), .total = figures.physicalMemory()};
}

std::optional<double> SystemStatsService::diskTemperature(const SystemFigures &figures)
{
    if (!figures.canReadSensors())
        return std::nullopt;
    QList<Sensor> found = figures.sensors({.product = kDiskSensorName, .usagePage = 0, .usage = 0});
    if (found.isEmpty())
        found = figures.sensors({.product = {}, .usagePage = kTemperaturePage, .usage = kTemperatureUsage});
    const std::optional<Sensor> sensor = flashSensor(found);
    const std::optional<double> degrees = sensor ? figures.temperature(*sensor) : std::nullopt;
    return degrees && *degrees > kColdestDegrees && *degrees < kHottestDegrees ? degrees : std::nullopt;
}

QCoro::Task<std::optional<double>> SystemStatsService::diskTemperatureAsync(std::shared_ptr<const Platform> platform,
                                                                            QThreadPool *pool)
{
    const QFuture<std::optional<double>> reading =
        QtConcurrent::run(pool, [platform] { return diskTemperature(*platform->systemFigures); });
    co_return co_await reading;
}
