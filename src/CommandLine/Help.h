// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace CommandLine {

/// The help of a command, of a group of them, or, for no words, of the whole program. English in every language.
[[nodiscard]] QByteArray helpText(QByteArrayView words);

} // namespace CommandLine
