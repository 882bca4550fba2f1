// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// A look at the raw bytes of a binary property list.
namespace BinaryPropertyList {

/// Whether content is meant to be one, by its first bytes.
[[nodiscard]] bool isOne(QByteArrayView content);

/// Whether the list keeps to the limits when every shared object is written out, and its dictionaries have texts for
/// keys. One that leads outside of the file or holds itself does not.
[[nodiscard]] bool isHarmless(QByteArrayView content);

} // namespace BinaryPropertyList
