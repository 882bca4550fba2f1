// SPDX-License-Identifier: MIT
#include "Platform/Linux/WholeWrite.h"

#include "Platform/Linux/ItemStatus.h"

#include <unistd.h>

std::error_code writeWholeAndClose(Descriptor file, QByteArrayView text)
{
    while (!text.isEmpty()) {
        const ssize_t written = ::write(file.get(), text.data(), static_cast<size_t>(text.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return written < 0 ? lastError() : std::make_error_code(std::errc::no_space_on_device);
        text = text.sliced(written);
    }
    return ::close(file.release()) == 0 ? std::error_code() : lastError();
}
