// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FolderGrants.h"
#include "Platform/Places.h"
#include "Platform/PropertyList.h"
#include "Platform/SystemFigures.h"
#include "Platform/TrashCan.h"
#include "Platform/Workspace.h"

#include <memory>

/// All that the operating system does for the program. `main` makes one and hands it down as a shared pointer to
/// const, so that work in flight keeps it alive.
struct Platform {
    std::unique_ptr<Places> places;
    std::unique_ptr<TrashCan> trashCan;
    std::unique_ptr<SystemFigures> systemFigures;
    std::unique_ptr<PropertyList> propertyList;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<FolderGrants> folderGrants;
};

/// The platform of the system that the program was built for; defined by the folder that the build picked.
[[nodiscard]] std::shared_ptr<const Platform> makePlatform();
