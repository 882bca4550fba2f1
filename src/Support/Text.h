// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>
#include <variant>

/// Texts that people read. The English text is the key of its translation. Any thread.
namespace Text {

/// What fills one placeholder: `%@` takes a text, `%lld` a number, written with the language's grouping.
using Argument = std::variant<QString, qint64>;

/// The text in the interface language.
[[nodiscard]] QString lookup(QStringView english);

/// The text in the interface language with its placeholders filled in order: `%@`, `%lld`, `%%`, and the numbered
/// forms `%1$@` and `%2$lld`, with which a translation reorders them. A placeholder without an argument of its kind
/// stays as it is.
[[nodiscard]] QString filled(QStringView english, std::initializer_list<Argument> arguments);

/// Fills a format that has already been looked up.
[[nodiscard]] QString format(const QString &localized, std::initializer_list<Argument> arguments);

} // namespace Text
