// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxSystemFigures.h"

#include "Platform/Descriptor.h"

#include "Platform/FileSystem.h"

#include <QByteArray>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <span>

namespace {

// The usage that every temperature sensor of the documented kind has.
constexpr int kTemperaturePage = 0xFF00;
constexpr int kTemperatureUsage = 5;

constexpr qint64 kBytesPerKibibyte = 1024;
constexpr double kMillidegreesPerDegree = 1000.0;

/// The beginning of a kernel file, in one read: what is asked for stands in the first lines of even the longest.
std::optional<QByteArray> content(const FileURL &file)
{
    // Links are followed here: most of /sys is links. O_NONBLOCK keeps a pipe from holding us up.
    const Descriptor descriptor(::open(file.path().constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!descriptor.isOpen())
        return std::nullopt;
    std::array<char, 8192> buffer{};
    ssize_t got = 0;
    do {
        got = ::read(descriptor.get(), buffer.data(), buffer.size());
    } while (got < 0 && errno == EINTR);
    if (got < 0)
        return std::nullopt;
    return QByteArray(buffer.data(), got);
}

/// The words of a line, of which kernel files hold one or more per line.
QList<QByteArray> words(const QByteArray &line)
{
    QList<QByteArray> result = line.simplified().split(' ');
    result.removeAll(QByteArray());
    return result;
}

std::optional<quint64> number(const QByteArray &word)
{
    bool isNumber = false;
    const quint64 value = word.toULongLong(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

quint64 checkedTicks(quint64 a, quint64 b)
{
    quint64 sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        qFatal("Processor ticks overflow");
    return sum;
}

/// A figure of meminfo, in KiB; absent without such a line.
std::optional<quint64> figure(const QByteArray &meminfo, QByteArrayView name)
{
    for (const QByteArray &line : meminfo.split('\n')) {
        if (!line.startsWith(name) || !QByteArrayView(line).sliced(name.size()).startsWith(':'))
            continue;
        const QList<QByteArray> parts = words(line.sliced(name.size() + 1));
        return parts.isEmpty() ? std::nullopt : number(parts.first());
    }
    return std::nullopt;
}

/// The sum of several figures; those that this kernel does not have count as 0.
quint64 sumOf(const QByteArray &meminfo, std::span<const QByteArrayView> names)
{
    quint64 sum = 0;
    for (const QByteArrayView name : names)
        sum += figure(meminfo, name).value_or(0);
    return sum;
}

/// The entries of a folder of /sys whose names are `prefix` and a number, by that number.
QList<FileURL> numbered(const FileURL &folder, QByteArrayView prefix)
{
    QList<std::pair<quint64, FileURL>> found;
    const auto entries = FileSystem::list(folder, FileSystem::Hidden::skip, FileSystem::Want::kinds);
    if (!entries)
        return {};
    for (const FileSystem::Entry &entry : *entries)
        if (entry.name.startsWith(prefix))
            if (const auto index = number(entry.name.sliced(prefix.size())))
                found.append({*index, folder.child(entry.name)});
    std::ranges::sort(found, {}, &std::pair<quint64, FileURL>::first);
    QList<FileURL> result;
    for (const auto &[index, url] : found)
        result.append(url);
    return result;
}

QString line(const FileURL &file)
{
    return QString::fromUtf8(content(file).value_or(QByteArray()).trimmed());
}

/// One temperature sensor as the documented rule knows it: a product, and a usage.
struct SensorService {
    Sensor sensor;
    int usagePage = kTemperaturePage;
    int usage = kTemperatureUsage;
};

bool matches(const SensorService &service, const SensorMatch &match)
{
    if (!match.product.isEmpty() && service.sensor.product != match.product)
        return false;
    return (match.usagePage == 0 && match.usage == 0) ||
           (service.usagePage == match.usagePage && service.usage == match.usage);
}

/// The disks' sensors. NVMe goes before SATA, whose disks may also be spinning ones.
QList<SensorService> diskSensors(const FileURL &sys)
{
    const QList<FileURL> devices = numbered(sys.appending("class/hwmon"), "hwmon");
    QList<SensorService> result;
    for (const QByteArray &driver : {QByteArray("nvme"), QByteArray("drivetemp")}) {
        for (const FileURL &device : devices) {
            if (content(device.child("name")).value_or(QByteArray()).trimmed() != driver)
                continue;
            // Both drivers give the drive's own temperature as the first; what follows are single chips.
            const FileURL input = device.child("temp1_input");
            if (!FileSystem::exists(input))
                continue;
            const QString model = line(device.appending("device/model"));
            const QString product = QStringLiteral("NAND ") + (model.isEmpty() ? QString::fromLatin1(driver) : model);
            result.append({.sensor = {.product = product, .handle = QString::fromUtf8(input.path())}});
        }
    }
    return result;
}

} // namespace

LinuxSystemFigures::LinuxSystemFigures(FigureSources sources)
    : m_sources(std::move(sources))
{
}

std::optional<ProcessorTicks> LinuxSystemFigures::processorTicks() const
{
    const std::optional<QByteArray> stat = content(m_sources.proc.child("stat"));
    if (!stat || !stat->startsWith("cpu "))
        return std::nullopt;
    // user nice system idle iowait irq softirq steal guest guest_nice; guests are counted in user and nice already.
    const QList<QByteArray> fields = words(stat->first(std::max<qsizetype>(stat->indexOf('\n'), 0)));
    std::array<quint64, 7> ticks{};
    if (fields.size() < 5)
        return std::nullopt;
    for (size_t i = 0; i < ticks.size() && static_cast<qsizetype>(i) + 1 < fields.size(); ++i) {
        const std::optional<quint64> value = number(fields.at(static_cast<qsizetype>(i) + 1));
        if (!value)
            return std::nullopt;
        ticks.at(i) = *value;
    }
    return ProcessorTicks{.user = ticks[0],
                          .system = checkedTicks(checkedTicks(ticks[2], ticks[5]), ticks[6]),
                          .idle = checkedTicks(ticks[3], ticks[4]),
                          .nice = ticks[1]};
}

std::optional<MemoryPages> LinuxSystemFigures::memoryPages() const
{
    const std::optional<QByteArray> meminfo = content(m_sources.proc.child("meminfo"));
    const std::optional<quint64> active = meminfo ? figure(*meminfo, "Active") : std::nullopt;
    if (!active)
        return std::nullopt;
    constexpr std::array<QByteArrayView, 4> wired = {"Unevictable", "SUnreclaim", "KernelStack", "PageTables"};
    return MemoryPages{.active = *active,
                       .wired = sumOf(*meminfo, wired),
                       .compressed = figure(*meminfo, "Zswap").value_or(0) + zramBytes() / kBytesPerKibibyte,
                       .pageSize = kBytesPerKibibyte};
}

quint64 LinuxSystemFigures::zramBytes() const
{
    quint64 sum = 0;
    for (const FileURL &device : numbered(m_sources.sys.child("block"), "zram")) {
        // orig_data_size compr_data_size mem_used_total ...: the third is all that the device takes.
        const QList<QByteArray> fields = words(content(device.child("mm_stat")).value_or(QByteArray()));
        if (fields.size() > 2)
            sum += number(fields.at(2)).value_or(0);
    }
    return sum;
}

qint64 LinuxSystemFigures::physicalMemory() const
{
    const std::optional<QByteArray> meminfo = content(m_sources.proc.child("meminfo"));
    const quint64 total = meminfo ? figure(*meminfo, "MemTotal").value_or(0) : 0;
    constexpr auto most = static_cast<quint64>(std::numeric_limits<qint64>::max() / kBytesPerKibibyte);
    return total <= most ? static_cast<qint64>(total) * kBytesPerKibibyte : 0;
}

std::optional<qint64> LinuxSystemFigures::availableDisk() const
{
    struct statvfs status {
    };
    if (::statvfs(m_sources.volume.path().constData(), &status) != 0)
        return std::nullopt;
    qint64 bytes = 0;
    // f_bavail, not f_bfree: what is kept back for the administrator is of no use to anybody else.
    if (__builtin_mul_overflow(status.f_bavail, status.f_frsize, &bytes))
        return std::nullopt;
    return bytes;
}

bool LinuxSystemFigures::canReadSensors() const
{
    return FileSystem::exists(m_sources.sys.appending("class/hwmon"));
}

QList<Sensor> LinuxSystemFigures::sensors(const SensorMatch &match) const
{
    QList<Sensor> result;
    for (const SensorService &service : diskSensors(m_sources.sys))
        if (matches(service, match))
            result.append(service.sensor);
    return result;
}

std::optional<double> LinuxSystemFigures::temperature(const Sensor &sensor) const
{
    const std::optional<FileURL> input = FileURL::fromPath(sensor.handle.toUtf8());
    const std::optional<QByteArray> text = input ? content(*input) : std::nullopt;
    if (!text)
        return std::nullopt;
    bool isNumber = false;
    const qlonglong millidegrees = text->trimmed().toLongLong(&isNumber);
    return isNumber ? std::optional(static_cast<double>(millidegrees) / kMillidegreesPerDegree) : std::nullopt;
}
