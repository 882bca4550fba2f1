// SPDX-License-Identifier: MIT
#include "Views/ItemActions.h"

#include "Platform/Platform.h"

ItemActions::ItemActions(std::shared_ptr<const Platform> platform, std::function<void(const QString &)> copyText,
                         QObject *parent)
    : QObject(parent)
    , m_platform(std::move(platform))
    , m_copyText(std::move(copyText))
{
}

void ItemActions::showInFileManager(const FileURL &item) const
{
    m_platform->workspace->showInFileManager(item);
}

void ItemActions::copyPath(const FileURL &item) const
{
    m_copyText(item.text());
}
