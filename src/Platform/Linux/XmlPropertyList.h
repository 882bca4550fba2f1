// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// A look at the raw text of an XML property list.
namespace XmlPropertyList {

/// Whether the list keeps to the limits. One whose depth cannot be told for sure, such as with declarations or
/// attributes of its own, does not.
[[nodiscard]] bool isHarmless(QByteArrayView xml);

/// The list with the boolean under `key` of the top dictionary set and every other byte kept, comments and layout
/// included; absent when that place cannot be found. What comes out is to be checked by reading it. `key` needs no
/// escaping.
[[nodiscard]] std::optional<QByteArray> withBoolean(QByteArrayView xml, QByteArrayView key, bool value);

} // namespace XmlPropertyList
