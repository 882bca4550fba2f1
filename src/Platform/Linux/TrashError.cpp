// SPDX-License-Identifier: MIT
#include "Platform/Linux/TrashError.h"

#include "Support/Text.h"

namespace {

class Category final : public std::error_category
{
public:
    [[nodiscard]] const char *name() const noexcept override { return "Trash"; }
    [[nodiscard]] std::string message(int value) const override
    {
        switch (static_cast<TrashError>(value)) {
        case TrashError::tooLargeToCopy:
            return Text::lookup(u"Too large to copy to the Trash from another disk.").toStdString();
        }
        return std::generic_category().message(value);
    }
};

} // namespace

const std::error_category &trashErrorCategory()
{
    static const Category category;
    return category;
}

std::error_code make_error_code(TrashError error)
{
    return {static_cast<int>(error), trashErrorCategory()};
}
