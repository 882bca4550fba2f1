// SPDX-License-Identifier: MIT
#include "Views/AppsModel.h"

#include "State/Totals.h"
#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/AppIconImages.h"
#include "Views/ItemId.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isMeasured(const RelatedFile &file)
{
    return file.size.has_value();
}

QString sizeText(const InstalledApp &app)
{
    if (!app.bundleSize && !app.detailed)
        return Text::lookup(u"Calculating…");
    const QString known = Format::bytes(Totals::sizeOf(app));
    const bool whole = app.bundleSize && std::ranges::all_of(app.relatedFiles, isMeasured);
    return whole ? known : Text::filled(u"%@+", {known});
}

QString summary(const InstalledApp &app)
{
    if (!app.relatedFiles.isEmpty())
        return Text::filled(u"Related Files · %@", {Format::bytes(Totals::relatedSize(app))});
    return app.detailed ? Text::lookup(u"No related files") : Text::lookup(u"Looking for related files…");
}

QString emptyText(const InstalledApp &app)
{
    return app.detailed ? Text::lookup(u"No related files found for this app.")
                        : Text::lookup(u"Looking for related files…");
}

QString sizeOrLock(const RelatedFile &file)
{
    return isMeasured(file) ? Format::bytes(*file.size) : Text::lookup(u"Full Disk Access required");
}

QString lockSymbol(const RelatedFile &file)
{
    return isMeasured(file) ? QString() : u"lock.fill"_s;
}

/// One text for each related file.
template <typename TextOf>
QStringList ofFiles(const AppEntry &entry, TextOf textOf)
{
    QStringList texts;
    for (const RelatedFile &file : entry.app.relatedFiles)
        texts.append(textOf(file));
    return texts;
}

} // namespace

QVariant AppsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const AppEntry &entry = recordAt(index);
    switch (role) {
    case ItemIdRole:
        return ItemId::of(entry.app.url);
    case NameRole:
        return entry.app.name;
    case VersionRole:
        return entry.app.version.value_or(QString());
    case PathRole:
        return entry.app.url.text();
    case IconRole:
        return entry.app.icon ? AppIconImages::addressOf(*entry.app.icon) : QString();
    case UnusedRole:
        return entry.unused;
    case SizeTextRole:
        return sizeText(entry.app);
    case SummaryRole:
        return summary(entry.app);
    case SelectedRole:
        return entry.selected;
    case ExpandedRole:
        return entry.expanded;
    case FileIdsRole:
        return ofFiles(entry, [](const RelatedFile &file) { return ItemId::of(file.url); });
    case FilePathsRole:
        return ofFiles(entry, [](const RelatedFile &file) { return file.url.text(); });
    case FileSizesRole:
        return ofFiles(entry, sizeOrLock);
    case FileSymbolsRole:
        return ofFiles(entry, lockSymbol);
    case EmptyTextRole:
        return emptyText(entry.app);
    default:
        return {};
    }
}

QHash<int, QByteArray> AppsModel::roleNames() const
{
    return {{ItemIdRole, "itemId"},       {NameRole, "name"},
            {VersionRole, "version"},     {PathRole, "path"},
            {IconRole, "iconSource"},     {UnusedRole, "unused"},
            {SizeTextRole, "sizeText"},   {SummaryRole, "summary"},
            {SelectedRole, "selected"},   {ExpandedRole, "expanded"},
            {FileIdsRole, "fileIds"},     {FilePathsRole, "filePaths"},
            {FileSizesRole, "fileSizes"}, {FileSymbolsRole, "fileSymbols"},
            {EmptyTextRole, "emptyText"}};
}
