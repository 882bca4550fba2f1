// SPDX-License-Identifier: MIT
#include "Views/JunkCategoriesModel.h"

#include "Support/Text.h"
#include "Theme/Format.h"
#include "Views/ItemId.h"

namespace {

QString detailOf(const JunkCategory &category)
{
    const qint64 count = category.files.size();
    const QString size = Format::bytes(category.totalSize);
    return count == 1 ? Text::filled(u"%lld file · %@", {count, size})
                      : Text::filled(u"%lld files · %@", {count, size});
}

/// What `textOf` says of each file that a card shows.
template <typename TextOf>
QStringList shownFiles(const JunkCategory &category, TextOf textOf)
{
    QStringList texts;
    for (const JunkFile &file : category.files.first(qMin(category.files.size(), JunkCategoriesModel::kFilesShown)))
        texts.append(textOf(file));
    return texts;
}

QString moreOf(const JunkCategory &category)
{
    const qint64 more = category.files.size() - JunkCategoriesModel::kFilesShown;
    return more > 0 ? Text::filled(u"… and %lld more", {more}) : QString();
}

} // namespace

JunkCategoriesModel::JunkCategoriesModel(const SelectionSet<QUuid> &selection, QObject *parent)
    : RecordListModel(parent)
    , m_selection(selection)
{
}

void JunkCategoriesModel::toggleExpanded(const QString &name)
{
    if (!m_expanded.remove(name))
        m_expanded.insert(name);
    touch(name, {ExpandedRole});
}

QVariant JunkCategoriesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const JunkCategory &category = recordAt(index);
    switch (role) {
    case ItemIdRole:
        return category.id.toString();
    case NameRole:
        return Text::lookup(category.name);
    case SymbolRole:
        return category.symbol;
    case DetailRole:
        return detailOf(category);
    case SelectedRole:
        return m_selection.contains(category.id);
    case ExpandedRole:
        return m_expanded.contains(category.name);
    case FileNamesRole:
        return shownFiles(category, [](const JunkFile &file) { return file.url.nameText(); });
    case FileSizesRole:
        return shownFiles(category, [](const JunkFile &file) { return Format::bytes(file.size); });
    case FilePathsRole:
        return shownFiles(category, [](const JunkFile &file) { return file.url.text(); });
    case FileIdsRole:
        return shownFiles(category, [](const JunkFile &file) { return ItemId::of(file.url); });
    case MoreRole:
        return moreOf(category);
    default:
        return {};
    }
}

QHash<int, QByteArray> JunkCategoriesModel::roleNames() const
{
    return {{ItemIdRole, "itemId"},
            {NameRole, "name"},
            {SymbolRole, "symbol"},
            {DetailRole, "detail"},
            {SelectedRole, "selected"},
            {ExpandedRole, "expanded"},
            {FileNamesRole, "fileNames"},
            {FileSizesRole, "fileSizes"},
            {FilePathsRole, "filePaths"},
            {FileIdsRole, "fileIds"},
            {MoreRole, "more"}};
}
