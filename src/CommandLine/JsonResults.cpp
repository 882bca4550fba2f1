// SPDX-License-Identifier: MIT
#include "CommandLine/JsonResults.h"

#include "State/Outcomes.h"
#include "State/Totals.h"

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

void writeUrl(JsonWriter &json, const FileURL &url)
{
    json.key("url");
    json.plainText(url.encoded());
    json.key("path");
    json.text(url.text());
}

template <typename Items, typename Write>
void writeList(JsonWriter &json, QByteArrayView key, const Items &items, Write write)
{
    json.key(key);
    json.beginArray();
    for (const auto &item : items) {
        json.beginObject();
        write(item);
        json.endObject();
    }
    json.endArray();
}

/// Files of every scan look alike.
template <typename File>
void writeFiles(JsonWriter &json, const QList<File> &files)
{
    writeList(json, "files", files, [&json](const File &file) {
        writeUrl(json, file.url);
        json.key("size");
        json.number(file.size);
        json.key("modified");
        json.date(file.modified);
    });
}

void writeItems(JsonWriter &json, QByteArrayView key, const QList<RemovedItem> &items)
{
    writeList(json, key, items, [&json](const RemovedItem &item) {
        writeUrl(json, item.url);
        json.key("size");
        json.number(item.size);
    });
}

void writeToast(JsonWriter &json, const std::optional<ToastData> &toast)
{
    json.key("toast");
    if (!toast) {
        json.null();
        return;
    }
    json.beginObject();
    json.key("symbol");
    json.text(toast->symbol);
    json.key("tint");
    json.plainText('#' + QByteArray::number(toast->tintHex, 16).rightJustified(6, '0').toUpper());
    json.key("message");
    json.text(toast->message);
    json.endObject();
}

void writeAlert(JsonWriter &json, const std::optional<AlertData> &alert)
{
    json.key("alert");
    if (!alert) {
        json.null();
        return;
    }
    json.beginObject();
    json.key("title");
    json.text(alert->title);
    json.key("message");
    json.text(alert->message);
    json.endObject();
}

void writeRecord(JsonWriter &json, const ActivityRecord &record)
{
    json.key("id");
    json.text(record.id.toString(QUuid::WithoutBraces).toUpper());
    json.key("kind");
    json.text(rawValue(record.kind));
    json.key("title");
    json.text(record.title);
    json.key("detail");
    json.text(record.detail);
    json.key("bytes");
    json.number(record.bytes);
    json.key("date");
    json.date(record.date);
}

void writeReport(JsonWriter &json, const RemovalReport &report)
{
    writeItems(json, "removed", report.removed);
    writeList(json, "failed", report.failed, [&json](const FailedTrash &failure) {
        writeUrl(json, failure.url);
        json.key("error");
        json.text(Outcomes::words(failure.error));
    });
    json.key("bytes");
    json.number(report.bytes);
    writeToast(json, report.toast);
    writeAlert(json, report.alert);
    json.key("activity");
    if (report.activity) {
        json.beginObject();
        writeRecord(json, *report.activity);
        json.endObject();
    } else {
        json.null();
    }
}

void writeStartupItem(JsonWriter &json, const StartupItem &item)
{
    writeUrl(json, item.path);
    json.key("name");
    json.text(item.name);
    json.key("type");
    json.text(rawValue(item.type));
    json.key("isEnabled");
    json.boolean(item.isEnabled);
    json.key("isUserLevel");
    json.boolean(item.isUserLevel);
}

void write(JsonWriter &json, const JunkResult &result)
{
    writeList(json, "categories", result.categories, [&json](const JunkCategory &category) {
        json.key("name");
        json.text(category.name);
        json.key("symbol");
        json.text(category.symbol);
        json.key("paths");
        json.beginArray();
        for (const FileURL &folder : category.paths)
            json.plainText(folder.encoded());
        json.endArray();
        writeFiles(json, category.files);
        json.key("totalSize");
        json.number(category.totalSize);
        json.key("deletesDirectly");
        json.boolean(category.deletesDirectly);
    });
    json.key("junkReclaimable");
    json.number(result.reclaimable);
}

void write(JsonWriter &json, const LargeFilesResult &result)
{
    writeFiles(json, result.files);
    json.key("totalSize");
    json.number(result.totalSize);
}

void write(JsonWriter &json, const DuplicatesResult &result)
{
    writeList(json, "groups", result.groups, [&json](const DuplicateGroup &group) {
        json.key("id");
        json.text(group.id);
        json.key("reclaimable");
        json.number(group.reclaimable());
        writeFiles(json, group.files);
    });
    json.key("duplicateReclaimable");
    json.number(result.reclaimable);
}

void writeApp(JsonWriter &json, const InstalledApp &app, const QDateTime &now)
{
    writeUrl(json, app.url);
    json.key("name");
    json.text(app.name);
    json.key("bundleID");
    json.text(app.bundleID);
    json.key("version");
    json.text(app.version);
    json.key("lastUsed");
    json.date(app.lastUsed);
    json.key("bundleSize");
    json.number(app.bundleSize);
    json.key("unused");
    json.boolean(Totals::isUnused(app, now));
    writeList(json, "relatedFiles", app.relatedFiles, [&json](const RelatedFile &file) {
        json.key("name");
        json.text(file.name);
        writeUrl(json, file.url);
        json.key("size");
        json.number(file.size);
    });
}

void write(JsonWriter &json, const AppsResult &result)
{
    writeList(json, "apps", result.apps, [&](const InstalledApp &app) { writeApp(json, app, result.now); });
    json.key("unusedAppsSize");
    json.number(result.unusedSize);
}

void write(JsonWriter &json, const StartupResult &result)
{
    writeList(json, "items", result.items, [&json](const StartupItem &item) { writeStartupItem(json, item); });
}

void write(JsonWriter &json, const FullScanResult &result)
{
    const auto nested = [&json](QByteArrayView key, const auto &part) {
        json.key(key);
        json.beginObject();
        write(json, part);
        json.endObject();
    };
    nested("apps", result.apps);
    nested("duplicates", result.duplicates);
    nested("junk", result.junk);
    nested("largeFiles", result.largeFiles);
    writeToast(json, result.toast);
}

void write(JsonWriter &json, const RemovalResult &result)
{
    writeReport(json, result.report);
}

void write(JsonWriter &json, const CategoriesResult &result)
{
    writeList(json, "results", result.results, [&json](const CategoriesResult::One &one) {
        json.key("category");
        json.text(one.category);
        writeReport(json, one.report);
    });
}

void write(JsonWriter &json, const DryRunResult &result)
{
    writeItems(json, "wouldRemove", result.items);
    json.key("bytes");
    json.number(result.bytes);
}

void write(JsonWriter &json, const SwitchResult &result)
{
    json.key("item");
    if (result.item) {
        json.beginObject();
        writeStartupItem(json, *result.item);
        json.endObject();
    } else {
        json.null();
    }
    writeToast(json, result.toast);
}

void write(JsonWriter &json, const StatsResult &result)
{
    json.key("cpuUsage");
    json.number(result.cpuUsage);
    json.key("memoryUsed");
    json.number(result.memoryUsed);
    json.key("memoryTotal");
    json.number(result.memoryTotal);
    json.key("availableDisk");
    json.number(result.availableDisk);
    json.key("diskTemperature");
    json.number(result.diskTemperature);
}

void write(JsonWriter &json, const HistoryResult &result)
{
    writeList(json, "activities", result.activities,
              [&json](const ActivityRecord &record) { writeRecord(json, record); });
}

void write(JsonWriter &json, const FoldersResult &result)
{
    writeList(json, "folders", result.folders, [&json](const FileURL &folder) { writeUrl(json, folder); });
}

void writeUpdateInfo(JsonWriter &json, const UpdateInfo &info)
{
    json.key("latestVersion");
    json.text(info.latestVersion);
    json.key("latestBuildNumber");
    json.number(info.latestBuildNumber);
    json.key("releaseDate");
    json.date(info.releaseDate);
    json.key("minimumSystemVersion");
    json.text(info.minimumSystemVersion);
    json.key("downloadURL");
    json.text(info.downloadURL.toString(QUrl::FullyEncoded));
    json.key("fileSizeBytes");
    json.number(info.fileSizeBytes);
    json.key("sha256");
    json.text(info.sha256);
    json.key("releaseNotes");
    json.beginObject();
    for (const auto &[language, notes] : info.releaseNotes) {
        json.textKey(language);
        json.text(notes);
    }
    json.endObject();
    json.key("criticalUpdate");
    json.boolean(info.criticalUpdate);
}

void write(JsonWriter &json, const UpdateResult &result)
{
    json.key("updateInfo");
    if (result.info) {
        json.beginObject();
        writeUpdateInfo(json, *result.info);
        json.endObject();
    } else {
        json.null();
    }
    writeToast(json, result.toast);
}

} // namespace

void writeJson(JsonWriter &json, const Result &result)
{
    json.beginObject();
    std::visit([&json](const auto &one) { write(json, one); }, result);
    json.endObject();
}

} // namespace CommandLine
