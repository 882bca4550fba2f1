// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"
#include "Platform/Linux/TrashFolder.h"
#include "Platform/MountPoints.h"
#include "Platform/TrashCan.h"

#include <QList>

#include <functional>
#include <optional>

class Places;

/// What the Trash needs to know of its surroundings.
struct TrashEnvironment {
    std::optional<FileURL> homeTrash; // absent without a usable home: then nothing is moved
    uid_t user = 0;
    std::function<QList<MountPoints::Mount>()> mounts; // asked once in each run of removals
    qint64 copyLimit = qint64{1} << 30;                // bytes; the most that is copied from another file system
    Renames renames = Renames::exclusive;

    /// The surroundings of the user who runs the program, from XDG_DATA_HOME and the kernel.
    [[nodiscard]] static TrashEnvironment ofDesktop(const Places &places);
};

/// The Trash folders that the desktop's file managers and trash tools share: one in the home folder, one at the top of
/// each other mount. Items are moved by renaming; from memory file systems, and where no Trash folder can be had, small
/// ones are copied into the home folder's Trash.
class LinuxTrashCan : public TrashCan
{
public:
    explicit LinuxTrashCan(TrashEnvironment environment);
    [[nodiscard]] std::unique_ptr<TrashBatch> begin() const override;

private:
    TrashEnvironment m_environment;
};
