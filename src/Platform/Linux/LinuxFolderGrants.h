// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FolderGrants.h"

/// Grants for a desktop without consent of its own: a record of which folder was chosen, by its path and identity. A
/// folder that another has taken the place of is stale.
class LinuxFolderGrants : public FolderGrants
{
public:
    [[nodiscard]] std::expected<QByteArray, std::error_code> makeGrant(const FileURL &folder) const override;
    /// Absent for what is no record of ours and for a folder that is not there now.
    [[nodiscard]] std::optional<Resolved> resolve(const QByteArray &grant) const override;
    [[nodiscard]] bool startAccessing(const FileURL &folder) const override;
    [[nodiscard]] bool needsConsent() const override { return false; }
};
