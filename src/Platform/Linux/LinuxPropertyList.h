// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PropertyList.h"

/// Property lists through libplist. Only regular files of at most 16 MiB are read, never through a link.
class LinuxPropertyList : public PropertyList
{
public:
    [[nodiscard]] std::expected<PropertyDictionary, std::error_code> read(const FileURL &file) const override;
    /// Nothing is written when the boolean has that value already.
    [[nodiscard]] std::expected<void, std::error_code> setBoolean(const FileURL &file, const QString &key,
                                                                  bool value) const override;
};
