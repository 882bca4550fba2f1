// SPDX-License-Identifier: MIT
#pragma once

#include "Views/RecordListModel.h"

#include <QList>

/// A size from which a file counts as large, and whether it is the present one.
struct Threshold {
    int megabytes = 0; // of 1,048,576 bytes
    bool chosen = false;
    friend bool operator==(const Threshold &, const Threshold &) = default;
};

namespace ThresholdsModelDetail {
[[nodiscard]] inline int keyOf(const Threshold &threshold)
{
    return threshold.megabytes;
}
} // namespace ThresholdsModelDetail

/// The thresholds to choose from. Main thread.
class ThresholdsModel : public RecordListModel<Threshold, ThresholdsModelDetail::keyOf>
{
public:
    enum Role { MegabytesRole = Qt::UserRole + 1, LabelRole, ChosenRole };

    using RecordListModel::RecordListModel;

    /// "100 MB", "1 GB".
    [[nodiscard]] static QString labelOf(int megabytes);

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};
