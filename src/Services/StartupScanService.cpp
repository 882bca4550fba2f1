// SPDX-License-Identifier: MIT
#include "Services/StartupScanService.h"

#include "Platform/FileSystem.h"
#include "Services/TrashService.h"
#include "Support/Text.h"

#include <algorithm>
#include <array>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kDisabledKey{"Disabled"};

struct Folder {
    Place place;
    StartupType type;
};
constexpr std::array kFolders = {
    Folder{Place::userLaunchAgents, StartupType::launchAgent},
    Folder{Place::systemLaunchAgents, StartupType::launchAgent},
    Folder{Place::systemLaunchDaemons, StartupType::launchDaemon},
};

class Category : public std::error_category
{
public:
    [[nodiscard]] const char *name() const noexcept override { return "StartupScanService"; }
    /// In the interface language of the moment, as it is shown to the user.
    [[nodiscard]] std::string message(int code) const override
    {
        if (code == StartupScanService::kSystemLevelCode)
            return Text::lookup(u"Cannot remove system-level startup items").toStdString();
        return "Unknown error " + std::to_string(code);
    }
};

/// Whether a path is the user's by the plain beginning of its text, which is how the rule is told. A home of `/` would
/// make everything the user's.
bool isUserLevel(const Platform &platform, const FileURL &path)
{
    const std::optional<FileURL> home = platform.places->home();
    return home && *home != FileURL::root() && path.path().startsWith(home->path());
}

bool isEnabled(const Platform &platform, const FileURL &file)
{
    // A linked file says whether it is enabled as any other does; what it links to may not be a pipe either.
    const auto content = platform.propertyList->read(FileSystem::resolved(file));
    return !content || content->boolean(kDisabledKey) != true;
}

} // namespace

const std::error_category &StartupScanService::errorCategory()
{
    static const Category category; // compared by its address
    return category;
}

QList<StartupItem> StartupScanService::scanPlistDirectory(const Platform &platform, const FileURL &folder,
                                                          StartupType type)
{
    const auto entries = FileSystem::list(folder, FileSystem::Hidden::skip, FileSystem::Want::kinds);
    if (!entries)
        return {};
    QList<StartupItem> items;
    for (const FileSystem::Entry &entry : *entries) {
        const FileURL file = folder.child(entry.name);
        if (file.extension() != "plist")
            continue;
        items.append({.name = file.nameText(),
                      .path = file,
                      .type = type,
                      .isEnabled = isEnabled(platform, file),
                      .isUserLevel = isUserLevel(platform, file)});
    }
    return items;
}

QList<StartupItem> StartupScanService::scanSync(const Platform &platform)
{
    QList<StartupItem> items;
    for (const Folder &each : kFolders)
        for (const FileURL &folder : platform.places->folders(each.place))
            items += scanPlistDirectory(platform, folder, each.type);
    // UTF-8 bytes order as plain text does.
    std::ranges::stable_sort(items, [](const StartupItem &a, const StartupItem &b) {
        return std::ranges::lexicographical_compare(a.path.name(), b.path.name(), [](char x, char y) {
            return static_cast<unsigned char>(x) < static_cast<unsigned char>(y);
        });
    });
    return items;
}

bool StartupScanService::toggleItem(const Platform &platform, const StartupItem &item)
{
    if (!isUserLevel(platform, item.path))
        return item.isEnabled;
    const bool isDisabledNow = item.isEnabled;
    const auto outcome = platform.propertyList->setBoolean(item.path, kDisabledKey, isDisabledNow);
    return outcome ? !isDisabledNow : item.isEnabled;
}

std::expected<void, std::error_code> StartupScanService::removeItem(const Platform &platform, const StartupItem &item)
{
    if (!isUserLevel(platform, item.path))
        return std::unexpected(std::error_code(kSystemLevelCode, errorCategory()));
    const TrashResult result = TrashService::trash(platform, QList<FileURL>{item.path}, CancelToken());
    if (!result.failed.isEmpty())
        return std::unexpected(result.failed.first().error);
    return {};
}
