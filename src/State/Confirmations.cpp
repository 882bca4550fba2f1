// SPDX-License-Identifier: MIT
#include "State/Confirmations.h"

#include "Models/CheckedSum.h"
#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString countAndSize(qint64 count, qint64 size)
{
    return Text::filled(u"%lld · %@", {count, Format::bytes(size)});
}

QString junkMessage(const QList<JunkCategory> &categories, qint64 files)
{
    const bool forGood = std::ranges::any_of(categories, &JunkCategory::deletesDirectly);
    if (forGood) {
        return files == 1 ? Text::filled(u"This will permanently delete %lld file.", {files})
                          : Text::filled(u"This will permanently delete %lld files.", {files});
    }
    return files == 1 ? Text::filled(u"This will move %lld file to Trash.", {files})
                      : Text::filled(u"This will move %lld files to Trash.", {files});
}

} // namespace

ConfirmData Confirmations::cleanJunk(const QList<JunkCategory> &categories)
{
    const qint64 count = categories.size();
    const qint64 files = checkedTotal(categories, [](const JunkCategory &category) { return category.files.size(); });
    return {.id = QUuid::createUuid(),
            .iconImage = {},
            .symbol = u"sparkles"_s,
            .title = count == 1 ? Text::filled(u"Clean %lld category?", {count})
                                : Text::filled(u"Clean %lld categories?", {count}),
            .message = junkMessage(categories, files),
            .rows = {{Text::lookup(u"Total Size"), Format::bytes(Totals::sizeOf(categories))}},
            .confirmTitle = Text::lookup(u"Clean Selected"),
            .onConfirm = {},
            .again = [categories] { return cleanJunk(categories); }};
}

ConfirmData Confirmations::removeLargeFiles(const QList<LargeFile> &files)
{
    const qint64 count = files.size();
    return {.id = QUuid::createUuid(),
            .iconImage = {},
            .symbol = u"trash"_s,
            .title = count == 1 ? Text::filled(u"Remove %lld large file?", {count})
                                : Text::filled(u"Remove %lld large files?", {count}),
            .message = Text::lookup(u"The selected files will be moved to Trash."),
            .rows = {{Text::lookup(u"Total Size"), Format::bytes(Totals::sizeOf(files))}},
            .confirmTitle = Text::lookup(u"Move to Trash"),
            .onConfirm = {},
            .again = [files] { return removeLargeFiles(files); }};
}

ConfirmData Confirmations::removeDuplicates(const QList<DuplicateFile> &files)
{
    const qint64 count = files.size();
    return {.id = QUuid::createUuid(),
            .iconImage = {},
            .symbol = u"square.stack.3d.up.slash"_s,
            .title = count == 1 ? Text::filled(u"Remove %lld duplicate file?", {count})
                                : Text::filled(u"Remove %lld duplicate files?", {count}),
            .message =
                Text::lookup(u"The selected copies will be moved to Trash. One original copy of each file is kept."),
            .rows = {{Text::lookup(u"Selected Files"), countAndSize(count, Totals::sizeOf(files))}},
            .confirmTitle = Text::lookup(u"Move to Trash"),
            .onConfirm = {},
            .again = [files] { return removeDuplicates(files); }};
}

ConfirmData Confirmations::uninstall(const QList<InstalledApp> &apps)
{
    const qint64 count = apps.size();
    const bool single = count == 1;
    const qint64 bundles = checkedTotal(apps, [](const InstalledApp &app) { return app.bundleSize.value_or(0); });
    const qint64 related = checkedTotal(apps, [](const InstalledApp &app) { return Totals::relatedSize(app); });
    const qint64 relatedCount = checkedTotal(apps, [](const InstalledApp &app) { return app.relatedFiles.size(); });
    const QString who = single ? apps.first().name : Text::filled(u"%lld apps", {count});
    return {
        .id = QUuid::createUuid(),
        .iconImage = single ? apps.first().icon : std::nullopt,
        .symbol = u"arrow.down.app.fill"_s,
        .title = Text::filled(u"Uninstall %@?", {who}),
        .message = Text::lookup(u"This will move the application and related files to Trash."),
        .rows = {{single ? Text::lookup(u"Application") : Text::lookup(u"Applications"), countAndSize(count, bundles)},
                 {Text::lookup(u"Related Files"), countAndSize(relatedCount, related)}},
        .confirmTitle = Text::lookup(u"Move to Trash"),
        .onConfirm = {},
        .again = [apps] { return uninstall(apps); }};
}

ConfirmData Confirmations::removeStartupItem(const StartupItem &item)
{
    return {
        .id = QUuid::createUuid(),
        .iconImage = {},
        .symbol = u"trash"_s,
        .title = Text::filled(u"Remove %@?", {displayName(item)}),
        .message =
            Text::lookup(u"This will move the plist file to Trash. You can re-enable it later from the original app."),
        .rows = {{Text::lookup(u"Type"), Text::lookup(rawValue(item.type))}, {Text::lookup(u"Path"), item.path.text()}},
        .confirmTitle = Text::lookup(u"Remove"),
        .onConfirm = {},
        .again = [item] { return removeStartupItem(item); }};
}

QString Confirmations::displayName(const StartupItem &item)
{
    return QString(item.name).remove(u".plist"_s);
}
