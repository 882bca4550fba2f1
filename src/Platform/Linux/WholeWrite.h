// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Descriptor.h"

#include <QByteArrayView>

#include <system_error>

/// Writes all of a text to a file and closes it, which is when some file systems tell that there was no room.
[[nodiscard]] std::error_code writeWholeAndClose(Descriptor file, QByteArrayView text);
