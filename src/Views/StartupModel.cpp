// SPDX-License-Identifier: MIT
#include "Views/StartupModel.h"

#include "State/Confirmations.h"
#include "Support/Text.h"
#include "Views/ItemId.h"

QVariant StartupModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const StartupItem &item = recordAt(index).item;
    switch (role) {
    case ItemIdRole:
        return ItemId::of(item.path);
    case NameRole:
        return Confirmations::displayName(item);
    case TypeLabelRole:
        return Text::lookup(rawValue(item.type));
    case PathRole:
        return item.path.text();
    case SwitchedOnRole:
        return item.isEnabled;
    case ToggleTextRole:
        return item.isEnabled ? Text::lookup(u"Disable") : Text::lookup(u"Enable");
    case CanToggleRole:
        return item.isUserLevel;
    case CanRemoveRole:
        return item.isUserLevel && !recordAt(index).removing;
    case ToggleTipRole:
        return item.isUserLevel ? QString() : Text::lookup(u"System-level items cannot be modified");
    case RemoveTipRole:
        return item.isUserLevel ? QString() : Text::lookup(u"System-level items cannot be removed");
    default:
        return {};
    }
}

QHash<int, QByteArray> StartupModel::roleNames() const
{
    return {{ItemIdRole, "itemId"},         {NameRole, "name"},
            {TypeLabelRole, "typeLabel"},   {PathRole, "path"},
            {SwitchedOnRole, "switchedOn"}, {ToggleTextRole, "toggleText"},
            {CanToggleRole, "canToggle"},   {CanRemoveRole, "canRemove"},
            {ToggleTipRole, "toggleTip"},   {RemoveTipRole, "removeTip"}};
}
