// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>

#include <expected>
#include <optional>
#include <system_error>

/// Lasting permission to read a folder, kept between runs as a record whose content only the platform knows.
class FolderGrants
{
public:
    struct Resolved {
        FileURL folder;
        bool isStale = false; // a fresh record should be stored
    };

    virtual ~FolderGrants() = default;
    [[nodiscard]] virtual std::expected<QByteArray, std::error_code> makeGrant(const FileURL &folder) const = 0;
    [[nodiscard]] virtual std::optional<Resolved> resolve(const QByteArray &grant) const = 0;
    /// Begins using a granted folder, for the rest of the process; whether it can be read now.
    [[nodiscard]] virtual bool startAccessing(const FileURL &folder) const = 0;
    /// Whether this platform wants the user asked before a folder that exists and can be read is used.
    [[nodiscard]] virtual bool needsConsent() const = 0;
};
