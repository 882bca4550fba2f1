// SPDX-License-Identifier: MIT
#include "Views/Figures.h"

#include "Models/CheckedSum.h"
#include "State/AppState.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double kHottest = 100; // degrees; fills the ring

QString none()
{
    return u"--"_s;
}

/// The part of a ring that belongs to a fraction shown in whole percents.
double drawn(double fraction)
{
    return std::isfinite(fraction) ? std::clamp(std::round(fraction * 100) / 100, 0.0, 1.0) : 0;
}

} // namespace

Figures::Figures(AppState &state, QObject *parent)
    : PageModel(state, parent)
{
    connect(&state, &AppState::appsChanged, this, &Figures::takeUnusedApps);
    connect(&state, &AppState::duplicateGroupsChanged, this, &Figures::takeDuplicates);
    connect(&state, &AppState::largeFilesChanged, this, &Figures::takeLargeFiles);
    connect(&state, &AppState::junkCategoriesChanged, this, &Figures::takeJunk);
    for (const auto signal : {&AppState::cpuUsageChanged, &AppState::memoryUsedChanged, &AppState::memoryTotalChanged,
                              &AppState::diskTemperatureChanged, &AppState::languageChanged})
        connect(&state, signal, this, &Figures::refresh);
    takeUnusedApps();
    takeDuplicates();
    takeLargeFiles();
    takeJunk();
}

void Figures::takeUnusedApps()
{
    m_unusedApps = state().unusedAppsSize();
    refresh();
}

void Figures::takeDuplicates()
{
    m_duplicates = state().duplicateReclaimable();
    refresh();
}

void Figures::takeLargeFiles()
{
    m_largeFiles = state().largeFilesTotalSize();
    refresh();
}

void Figures::takeJunk()
{
    m_junk = state().junkReclaimable();
    refresh();
}

void Figures::refresh()
{
    const double memory = state().memoryUsageRatio();
    const std::optional<double> temperature = state().diskTemperature();
    const bool hasTemperature = temperature && std::isfinite(*temperature);
    const qint64 freeable = checkedSum(checkedSum(m_unusedApps, m_duplicates), m_junk);
    show(m_view, View{
                     .cpu = percent(state().cpuUsage()),
                     .cpuProgress = drawn(state().cpuUsage()),
                     .memory = percent(memory),
                     .memoryDetail = Text::filled(
                         u"%@ / %@", {Format::bytes(state().memoryUsed()), Format::bytes(state().memoryTotal())}),
                     .memoryProgress = drawn(memory),
                     .temperature = degrees(temperature),
                     .temperatureDetail = hasTemperature ? Text::lookup(u"NAND flash") : Text::lookup(u"Unavailable"),
                     .hasTemperature = hasTemperature,
                     .temperatureProgress = hasTemperature ? drawn(*temperature / kHottest) : 0,
                     .freeable = Format::bytes(freeable),
                     .freeableProgress = Totals::freeableProgress(freeable),
                     .unusedApps = Format::bytes(m_unusedApps),
                     .duplicates = Format::bytes(m_duplicates),
                     .largeFiles = Format::bytes(m_largeFiles),
                     .junk = Format::bytes(m_junk),
                 });
}

QString Figures::percent(double fraction)
{
    constexpr double tooLarge = 9'223'372'036'854'775'808.0; // 2^63
    const double rounded = std::round(fraction * 100);
    if (!std::isfinite(rounded) || rounded < -tooLarge || rounded >= tooLarge)
        return none();
    return Text::filled(u"%lld%%", {static_cast<qint64>(rounded)});
}

QString Figures::degrees(std::optional<double> celsius)
{
    if (!celsius || !std::isfinite(*celsius))
        return none();
    return QString::number(*celsius, 'f', 0) + u'°';
}
