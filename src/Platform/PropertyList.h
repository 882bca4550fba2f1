// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QHash>
#include <QString>

#include <expected>
#include <optional>
#include <system_error>
#include <variant>

/// The texts and booleans at the top of a property list; values of other types are left out.
struct PropertyDictionary {
    QHash<QString, std::variant<bool, QString>> values;

    [[nodiscard]] std::optional<QString> text(const QString &key) const
    {
        const auto found = values.constFind(key);
        if (found == values.cend() || !std::holds_alternative<QString>(*found))
            return std::nullopt;
        return std::get<QString>(*found);
    }
    [[nodiscard]] std::optional<bool> boolean(const QString &key) const
    {
        const auto found = values.constFind(key);
        if (found == values.cend() || !std::holds_alternative<bool>(*found))
            return std::nullopt;
        return std::get<bool>(*found);
    }
};

/// Property lists, XML and binary. Any thread.
class PropertyList
{
public:
    virtual ~PropertyList() = default;
    /// Reads a file whose top is a dictionary; an error for whatever is not.
    [[nodiscard]] virtual std::expected<PropertyDictionary, std::error_code> read(const FileURL &file) const = 0;
    /// Sets one boolean at the top and writes the file atomically, in its own format and with its own permissions;
    /// every other key and type stays. A link is refused.
    [[nodiscard]] virtual std::expected<void, std::error_code> setBoolean(const FileURL &file, const QString &key,
                                                                          bool value) const = 0;
};
