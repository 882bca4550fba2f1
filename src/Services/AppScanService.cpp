// SPDX-License-Identifier: MIT
#include "Services/AppScanService.h"

#include "Platform/FileSystem.h"
#include "Theme/Format.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// What an application's identifier or name is put between to make the place of its leftovers.
enum class Part {
    identifier,         // no candidate without one
    identifierOrHyphen, // an application without one has the name "-", which hardly anything has
    name,
    identifierAsSuffix, // each entry of the folder that ends with "." and the identifier
};

struct Location {
    QLatin1StringView label;
    Part part;
    const char *folder; // below Library
    const char *ending;
};

constexpr QLatin1StringView kContainers{"Containers"};
constexpr std::array kLocations = {
    Location{QLatin1StringView("Preferences"), Part::identifier, "Preferences", ".plist"},
    Location{QLatin1StringView("Caches"), Part::identifier, "Caches", ""},
    Location{kContainers, Part::identifier, "Containers", ""},
    Location{QLatin1StringView("HTTP Storages"), Part::identifier, "HTTPStorages", ""},
    Location{QLatin1StringView("WebKit"), Part::identifier, "WebKit", ""},
    Location{QLatin1StringView("Group Containers"), Part::identifier, "Group Containers", ""},
    Location{QLatin1StringView("LaunchAgents"), Part::identifier, "LaunchAgents", ".plist"},
    Location{QLatin1StringView("Application Support"), Part::name, "Application Support", ""},
    Location{QLatin1StringView("Application Support"), Part::identifierOrHyphen, "Application Support", ""},
    Location{QLatin1StringView("Logs"), Part::name, "Logs", ""},
    Location{QLatin1StringView("Saved Application State"), Part::identifierOrHyphen, "Saved Application State",
             ".savedState"},
    Location{kContainers, Part::identifierAsSuffix, "Containers", ""},
};

/// Whether bytes from inside a bundle may become a name below Library: one that is no single component would name a
/// folder that holds more than the application's own.
bool isSafeName(const QByteArray &name)
{
    return !name.isEmpty() && name != "." && name != ".." && !name.contains('/') && !name.contains('\0');
}

/// The file names that a location stands for; none where the application lacks what it is made of.
QList<QByteArray> names(const Location &location, const InstalledApp &app, const QList<QByteArray> &containers)
{
    const std::optional<QByteArray> identifier =
        app.bundleID.transform([](const QString &text) { return text.toUtf8(); });
    QList<QByteArray> result;
    switch (location.part) {
    case Part::identifier:
        if (identifier)
            result.append(*identifier);
        break;
    case Part::identifierOrHyphen:
        result.append(identifier.value_or("-"));
        break;
    case Part::name:
        result.append(app.name.toUtf8());
        break;
    case Part::identifierAsSuffix:
        if (identifier && isSafeName(*identifier))
            std::ranges::copy_if(containers, std::back_inserter(result), [&identifier](const QByteArray &each) {
                return each.endsWith('.' + *identifier) && each != *identifier;
            });
        break;
    }
    result.removeIf([](const QByteArray &name) { return !isSafeName(name); });
    return result;
}

InstalledApp appAt(const Platform &platform, const FileURL &bundle, const FileSystem::Entry &entry)
{
    const BundleInfo info = platform.workspace->bundleInfo(bundle);
    return {.url = bundle,
            .name = platform.workspace->displayName(bundle),
            .bundleID = info.identifier,
            .version = info.version,
            .icon = info.icon,
            .lastUsed = entry.attributes.transform(
                [](const FileSystem::Attributes &found) { return FileSystem::dateTime(found.accessed); }),
            .bundleSize = std::nullopt,
            .relatedFiles = {}};
}

QList<QByteArray> containerNames(const FileURL &library)
{
    QList<QByteArray> result;
    const auto entries = FileSystem::list(library.appending(QByteArrayView(kContainers.data(), kContainers.size())),
                                          FileSystem::Hidden::include, FileSystem::Want::kinds);
    if (entries)
        for (const FileSystem::Entry &entry : *entries)
            result.append(entry.name);
    return result;
}

bool comesBefore(const RelatedFile &a, const RelatedFile &b)
{
    if (a.size.value_or(0) != b.size.value_or(0))
        return a.size.value_or(0) > b.size.value_or(0);
    return a.name < b.name;
}

} // namespace

QList<InstalledApp> AppScanService::listApps(const Platform &platform)
{
    QList<InstalledApp> apps;
    for (const FileURL &root : platform.places->folders(Place::applications)) {
        const auto entries = FileSystem::list(root, FileSystem::Hidden::include, FileSystem::Want::everything);
        if (!entries)
            continue;
        for (const FileSystem::Entry &entry : *entries)
            if (const FileURL bundle = root.child(entry.name); bundle.extension() == "app")
                apps.append(appAt(platform, bundle, entry));
    }
    std::ranges::stable_sort(
        apps, [](const InstalledApp &a, const InstalledApp &b) { return Format::compareNames(a.name, b.name) < 0; });
    return apps;
}

AppScanService::DirectorySize AppScanService::directorySize(const FileURL &item, const CancelToken &cancel)
{
    const auto found = FileSystem::attributes(item);
    // A link that leads nowhere is as good as nothing; any other is one small file, whatever it leads to.
    if (!found || (found->kind == FileSystem::Kind::link && !FileSystem::attributes(item, FileSystem::Root::follow)))
        return {};
    if (found->kind != FileSystem::Kind::folder)
        return {.exists = true, .size = found->size.value_or(0)};
    const auto measured = FileSystem::measure(item, FileSystem::Hidden::skip, cancel);
    if (!measured)
        return {.exists = true, .size = std::nullopt};
    // A folder that is not empty and yet takes no space could not be read.
    if (measured->allocated == 0 && measured->entries > 0)
        return {.exists = true, .size = std::nullopt};
    return {.exists = true, .size = measured->allocated};
}

QList<AppScanService::Candidate> AppScanService::candidates(const FileURL &library, const InstalledApp &app,
                                                            const QList<QByteArray> &containers)
{
    QList<Candidate> result;
    for (const Location &location : kLocations)
        for (const QByteArray &name : names(location, app, containers))
            result.append(
                {.label = location.label, .url = library.child(location.folder).child(name + location.ending)});
    return result;
}

AppScanService::Details AppScanService::computeDetails(const Platform &platform, const InstalledApp &app,
                                                       const CancelToken &cancel)
{
    Details details{.size = directorySize(app.url, cancel).size, .related = {}};
    const std::optional<FileURL> library = platform.places->library();
    if (!library)
        return details;
    QSet<FileURL> taken;
    for (const Candidate &candidate : candidates(*library, app, containerNames(*library))) {
        if (cancel.isCancelled())
            break;
        const DirectorySize size = directorySize(candidate.url, cancel);
        if (!size.exists || taken.contains(candidate.url) || (size.size && *size.size < 1))
            continue;
        taken.insert(candidate.url);
        details.related.append({.name = candidate.label, .url = candidate.url, .size = size.size});
    }
    std::ranges::stable_sort(details.related, comesBefore);
    return details;
}
