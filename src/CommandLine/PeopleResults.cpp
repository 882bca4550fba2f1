// SPDX-License-Identifier: MIT
#include "CommandLine/PeopleResults.h"

#include "Models/CheckedSum.h"
#include "Models/TextKey.h"
#include "State/Confirmations.h"
#include "State/Outcomes.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

using Look = Printer::Look;
using Side = Printer::Side;

constexpr int kSizeColumns = 10; // "999.99 GB" and a blank
constexpr int kDateColumns = 14; // "Mar 15, 2024" and two blanks

QString sizeText(const std::optional<qint64> &size)
{
    return size ? Format::bytes(*size) : u"—"_s;
}

QString dateText(const std::optional<QDateTime> &date)
{
    return date ? Format::date(*date) : u"—"_s;
}

QString countAndSize(QStringView one, QStringView many, qint64 count, qint64 size)
{
    return Text::filled(count == 1 ? one : many, {count, Format::bytes(size)});
}

/// One file of a list: what it takes, when it was changed, where it is.
void writeRow(Printer &to, const std::optional<qint64> &size, const std::optional<QDateTime> &modified,
              const FileURL &url)
{
    to.text(u"  ").padded(sizeText(size), kSizeColumns, Side::left).text(u"  ");
    to.padded(dateText(modified), kDateColumns, Side::right, Look::dim).text(url.text()).end();
}

template <typename File>
void writeRows(Printer &to, const QList<File> &files)
{
    for (const File &file : files)
        writeRow(to, file.size, file.modified, file.url);
}

void writeHeading(Printer &to, QStringView name, QStringView sum)
{
    to.text(name, Look::strong).text(u"  ").text(sum, Look::dim).end();
}

void write(Printer &to, Printer &, const JunkResult &result)
{
    if (result.categories.isEmpty()) {
        to.text(Text::lookup(u"No junk found")).end();
        return;
    }
    for (const JunkCategory &category : result.categories) {
        // The English name, in every language: it is what `clean junk --category` takes.
        writeHeading(to, category.name,
                     countAndSize(textKey(u"%lld file · %@"), textKey(u"%lld files · %@"), category.files.size(),
                                  category.totalSize));
        writeRows(to, category.files);
        to.end();
    }
    to.text(countAndSize(textKey(u"%lld category · %@ reclaimable"), textKey(u"%lld categories · %@ reclaimable"),
                         result.categories.size(), result.reclaimable),
            Look::strong)
        .end();
}

void write(Printer &to, Printer &, const LargeFilesResult &result)
{
    if (result.files.isEmpty()) {
        to.text(Text::lookup(u"No large files found above threshold")).end();
        return;
    }
    writeRows(to, result.files);
    to.end();
    to.text(countAndSize(textKey(u"%lld file · %@ total"), textKey(u"%lld files · %@ total"), result.files.size(),
                         result.totalSize),
            Look::strong)
        .end();
}

void write(Printer &to, Printer &, const DuplicatesResult &result)
{
    if (result.groups.isEmpty()) {
        to.text(Text::lookup(u"No duplicate files found")).end();
        return;
    }
    for (const DuplicateGroup &group : result.groups) {
        writeHeading(to, group.files.isEmpty() ? QString() : group.files.first().url.nameText(),
                     Text::filled(u"%lld copies · %@ reclaimable",
                                  {qint64{group.files.size()}, Format::bytes(group.reclaimable())}));
        writeRows(to, group.files);
        to.end();
    }
    to.text(countAndSize(textKey(u"%lld group · %@ reclaimable"), textKey(u"%lld groups · %@ reclaimable"),
                         result.groups.size(), result.reclaimable),
            Look::strong)
        .end();
}

void write(Printer &to, Printer &, const AppsResult &result)
{
    if (result.apps.isEmpty()) {
        to.text(Text::lookup(u"No applications found")).end();
        return;
    }
    for (const InstalledApp &app : result.apps) {
        to.text(u"  ").padded(sizeText(app.bundleSize), kSizeColumns, Side::left).text(u"  ");
        to.padded(dateText(app.lastUsed), kDateColumns, Side::right, Look::dim).text(app.name, Look::strong);
        if (app.version)
            to.text(u" ").text(*app.version);
        if (app.bundleID)
            to.text(u"  ").text(*app.bundleID, Look::dim);
        if (Totals::isUnused(app, result.now))
            to.text(u"  ").text(Text::lookup(u"Unused"), Look::bad);
        to.end();
        to.text(QString(kSizeColumns + 4, u' ')).text(app.url.text()).end();
        for (const RelatedFile &file : app.relatedFiles) {
            to.text(u"  ").padded(sizeText(file.size), kSizeColumns, Side::left, Look::dim).text(u"  ");
            to.text(file.name + u": "_s, Look::dim).text(file.url.text()).end();
        }
    }
    const qint64 total = checkedTotal(result.apps, [](const InstalledApp &app) { return Totals::sizeOf(app); });
    to.end();
    to.text(countAndSize(textKey(u"%lld application · %@ installed"), textKey(u"%lld applications · %@ installed"),
                         result.apps.size(), total),
            Look::strong)
        .end();
}

QString stateText(const StartupItem &item)
{
    return item.isEnabled ? Text::lookup(u"Enabled") : Text::lookup(u"Disabled");
}

struct StartupColumns {
    int state = kSizeColumns;
    int type = kDateColumns + 2;
};

/// Wide enough for the words of every language, with two blanks behind them.
StartupColumns columnsFor(const QList<StartupItem> &items)
{
    StartupColumns columns;
    for (const StartupItem &item : items) {
        columns.state = std::max(columns.state, columnsOf(stateText(item)) + 2);
        columns.type = std::max(columns.type, columnsOf(Text::lookup(rawValue(item.type))) + 2);
    }
    return columns;
}

void writeItem(Printer &to, const StartupItem &item, const StartupColumns &columns)
{
    to.text(u"  ").padded(stateText(item), columns.state, Side::right, item.isEnabled ? Look::good : Look::dim);
    to.padded(Text::lookup(rawValue(item.type)), columns.type, Side::right, Look::dim);
    to.text(Confirmations::displayName(item), Look::strong).text(u"  ").text(item.path.text(), Look::dim).end();
}

void write(Printer &to, Printer &, const StartupResult &result)
{
    if (result.items.isEmpty()) {
        to.text(Text::lookup(u"No startup items found")).end();
        return;
    }
    const StartupColumns columns = columnsFor(result.items);
    for (const StartupItem &item : result.items)
        writeItem(to, item, columns);
    to.end();
    const qint64 count = result.items.size();
    const qint64 enabled = std::ranges::count_if(result.items, &StartupItem::isEnabled);
    to.text(count == 1 ? Text::filled(u"%lld item · %lld enabled", {count, enabled})
                       : Text::filled(u"%lld items · %lld enabled", {count, enabled}),
            Look::strong)
        .end();
}

void write(Printer &to, Printer &errors, const FullScanResult &result)
{
    const auto part = [&](QStringView title, const auto &one) {
        to.text(title, Look::strong).end().end();
        write(to, errors, one);
        to.end();
    };
    part(Text::lookup(u"Uninstaller"), result.apps);
    part(Text::lookup(u"Duplicates"), result.duplicates);
    part(Text::lookup(u"Junk Cleaner"), result.junk);
    part(Text::lookup(u"Large Files"), result.largeFiles);
    if (result.toast)
        to.text(result.toast->message, Look::good).end();
}

void writeReport(Printer &to, Printer &errors, const RemovalReport &report)
{
    for (const FailedTrash &failure : report.failed)
        errors.text(failure.url.text()).text(u": ").text(Outcomes::words(failure.error), Look::bad).end();
    if (report.alert)
        errors.text(report.alert->title, Look::strong).text(u": ").text(report.alert->message).end();
    if (report.toast)
        to.text(report.toast->message, Look::good).end();
    else if (report.removed.isEmpty() && !report.alert)
        to.text(Text::lookup(u"Nothing was removed.")).end();
}

void write(Printer &to, Printer &errors, const RemovalResult &result)
{
    writeReport(to, errors, result.report);
}

void write(Printer &to, Printer &errors, const CategoriesResult &result)
{
    if (result.results.isEmpty())
        to.text(Text::lookup(u"Nothing was removed.")).end();
    for (const CategoriesResult::One &one : result.results) {
        to.text(one.category, Look::strong).text(u"  ");
        to.flush();
        writeReport(to, errors, one.report);
        errors.flush();
    }
}

void write(Printer &to, Printer &, const DryRunResult &result)
{
    for (const RemovedItem &item : result.items)
        to.text(u"  ").padded(sizeText(item.size), kSizeColumns, Side::left).text(u"  ").text(item.url.text()).end();
    if (!result.items.isEmpty())
        to.end();
    to.text(countAndSize(textKey(u"%lld item · %@ would be removed"), textKey(u"%lld items · %@ would be removed"),
                         result.items.size(), result.bytes),
            Look::strong)
        .end();
}

void write(Printer &to, Printer &, const SwitchResult &result)
{
    if (result.item)
        writeItem(to, *result.item, columnsFor({*result.item}));
    if (result.toast)
        to.text(result.toast->message).end();
}

void writeFigure(Printer &to, const QString &label, const QString &figure)
{
    constexpr int labelColumns = 20;
    to.text(u"  ").padded(label, labelColumns, Side::right, Look::dim).text(figure).end();
}

void write(Printer &to, Printer &, const StatsResult &result)
{
    writeFigure(to, Text::lookup(u"CPU"), Text::filled(u"%lld%%", {qint64{std::lround(result.cpuUsage * 100)}}));
    writeFigure(to, Text::lookup(u"Memory"), sizeText(result.memoryUsed) + u" / "_s + sizeText(result.memoryTotal));
    writeFigure(to, Text::lookup(u"Free disk space"), sizeText(result.availableDisk));
    writeFigure(to, Text::lookup(u"Disk Temperature"),
                result.diskTemperature ? u"%1°"_s.arg(std::lround(*result.diskTemperature)) : u"--"_s);
}

void write(Printer &to, Printer &, const HistoryResult &result)
{
    if (result.activities.isEmpty())
        to.text(Text::lookup(u"Nothing was removed.")).end();
    for (const ActivityRecord &record : result.activities) {
        to.text(u"  ").padded(Format::date(record.date), kDateColumns, Side::right, Look::dim);
        to.text(record.title, Look::strong).text(u"  ").text(record.detail).end();
    }
}

void write(Printer &to, Printer &, const FoldersResult &result)
{
    for (const FileURL &folder : result.folders)
        to.text(folder.text()).end();
}

void write(Printer &to, Printer &, const UpdateResult &result)
{
    if (result.info) {
        to.text(Text::lookup(u"Update Available"), Look::strong).text(u"  ");
        to.text(Text::filled(u"Version %@", {result.info->latestVersion})).end();
        to.text(result.info->downloadURL.toString(QUrl::FullyEncoded)).end();
    }
    if (result.toast)
        to.text(result.toast->message).end();
}

} // namespace

void writeForPeople(Printer &output, Printer &errors, const Result &result)
{
    std::visit([&](const auto &one) { write(output, errors, one); }, result);
}

void writeQuestion(Printer &errors, const ConfirmData &question)
{
    int labels = 0;
    for (const auto &[label, value] : question.rows)
        labels = std::max(labels, columnsOf(label));
    errors.text(question.title, Look::strong).end();
    errors.text(question.message).end();
    for (const auto &[label, value] : question.rows)
        errors.text(u"  ").padded(label, labels + 2, Side::right, Look::dim).text(value).end();
    errors.text(Text::filled(u"%@?", {question.confirmTitle}), Look::strong).text(u" [y/N] ");
    errors.flush();
}

} // namespace CommandLine
