// SPDX-License-Identifier: MIT
#include "Services/SystemStatsService.h"
#include "State/AppState.h"

namespace {

constexpr int kTicksPerTemperature = 5; // reading the sensors is the costliest figure

} // namespace

void AppState::startStatsMonitoring()
{
    m_statsTask.stop();
    refreshSystemStats();
    m_statsTask.start(m_environment.statsInterval);
}

void AppState::refreshSystemStats()
{
    const SystemFigures &figures = *m_environment.platform->systemFigures;
    publish(m_cpuUsage, SystemStatsService::cpuUsage(figures, m_previousTicks), &AppState::cpuUsageChanged);
    // A sample that failed keeps the last figures.
    if (const auto memory = SystemStatsService::memoryUsage(figures); memory.total >= 1) {
        publish(m_memoryUsed, memory.used, &AppState::memoryUsedChanged);
        publish(m_memoryTotal, memory.total, &AppState::memoryTotalChanged);
    }
    if (m_statsTick % kTicksPerTemperature == 0)
        detach(readTemperature(this));
    ++m_statsTick;
}

QCoro::Task<> AppState::readTemperature(QPointer<AppState> self)
{
    const std::optional<double> temperature = co_await SystemStatsService::diskTemperatureAsync(
        self->m_environment.platform, &self->m_environment.pools->utility);
    if (self)
        self->publish(self->m_diskTemperature, temperature, &AppState::diskTemperatureChanged);
}

void AppState::refreshAvailableDisk()
{
    publish(m_availableDisk, m_environment.platform->systemFigures->availableDisk().value_or(0),
            &AppState::availableDiskChanged);
}
