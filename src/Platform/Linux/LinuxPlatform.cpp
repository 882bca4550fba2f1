// SPDX-License-Identifier: MIT
#include "Platform/HostFacts.h"
#include "Platform/Linux/LinuxFolderGrants.h"
#include "Platform/Linux/LinuxPlaces.h"
#include "Platform/Linux/LinuxPropertyList.h"
#include "Platform/Linux/LinuxSystemFigures.h"
#include "Platform/Linux/LinuxTrashCan.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Platform/Platform.h"

std::shared_ptr<const Platform> makePlatform()
{
    auto platform = std::make_shared<Platform>();
    platform->places = std::make_unique<LinuxPlaces>(HostFacts::ofThisProcess());
    platform->trashCan = std::make_unique<LinuxTrashCan>(TrashEnvironment::ofDesktop(*platform->places));
    platform->systemFigures = std::make_unique<LinuxSystemFigures>();
    platform->propertyList = std::make_unique<LinuxPropertyList>();
    platform->workspace = std::make_unique<LinuxWorkspace>();
    platform->folderGrants = std::make_unique<LinuxFolderGrants>();
    return platform;
}
