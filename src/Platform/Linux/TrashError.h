// SPDX-License-Identifier: MIT
#pragma once

#include <system_error>

/// Why an item was not moved to the Trash where the system has no words of its own.
enum class TrashError { tooLargeToCopy = 1 };

/// Its texts are in the interface language of the moment.
[[nodiscard]] const std::error_category &trashErrorCategory();
[[nodiscard]] std::error_code make_error_code(TrashError error);

template <>
struct std::is_error_code_enum<TrashError> : std::true_type {
};
