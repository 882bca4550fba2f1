// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Descriptor.h"

#include <QByteArray>

#include <expected>
#include <system_error>

/// Where copies are made inside a Trash folder before they become items of it, so that a copy that was interrupted
/// never looks like one. What such an interruption left behind is removed by the next stage. Used on one thread.
class CopyStage
{
public:
    [[nodiscard]] static std::expected<CopyStage, std::error_code> in(int trashRoot);
    CopyStage(CopyStage &&) noexcept = default;
    CopyStage &operator=(CopyStage &&) noexcept = default;
    ~CopyStage();

    [[nodiscard]] int folder() const { return m_folder.get(); }
    /// A name that is not taken here.
    [[nodiscard]] QByteArray newName();

private:
    CopyStage(Descriptor root, Descriptor folder);
    Descriptor m_root;
    Descriptor m_folder;
    int m_number = 0;
};
