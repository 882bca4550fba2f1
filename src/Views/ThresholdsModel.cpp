// SPDX-License-Identifier: MIT
#include "Views/ThresholdsModel.h"

#include "Support/Text.h"

QString ThresholdsModel::labelOf(int megabytes)
{
    return megabytes >= 1024 ? Text::lookup(u"1 GB") : Text::filled(u"%lld MB", {qint64(megabytes)});
}

QVariant ThresholdsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Threshold &threshold = recordAt(index);
    switch (role) {
    case MegabytesRole:
        return threshold.megabytes;
    case LabelRole:
        return labelOf(threshold.megabytes);
    case ChosenRole:
        return threshold.chosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> ThresholdsModel::roleNames() const
{
    return {{MegabytesRole, "megabytes"}, {LabelRole, "label"}, {ChosenRole, "chosen"}};
}
