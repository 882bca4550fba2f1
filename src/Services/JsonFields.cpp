// SPDX-License-Identifier: MIT
#include "Services/JsonFields.h"

#include <cmath>
#include <limits>

using JsonFields::Json;

namespace {

const Json *valueOf(const Json &object, const char *key)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(key);
    return found == object.end() || found->is_null() ? nullptr : &*found;
}

} // namespace

std::optional<Json> JsonFields::parse(const QByteArray &text)
{
    Json document = Json::parse(text.cbegin(), text.cend(), nullptr, /*allow_exceptions=*/false);
    return document.is_discarded() ? std::nullopt : std::optional(std::move(document));
}

bool JsonFields::has(const Json &object, const char *key)
{
    return valueOf(object, key) != nullptr;
}

std::optional<QString> JsonFields::text(const Json &object, const char *key)
{
    const Json *value = valueOf(object, key);
    if (!value || !value->is_string())
        return std::nullopt;
    return QString::fromStdString(value->get_ref<const std::string &>());
}

std::optional<double> JsonFields::number(const Json &object, const char *key)
{
    const Json *value = valueOf(object, key);
    return value && value->is_number() ? std::optional(value->get<double>()) : std::nullopt;
}

std::optional<bool> JsonFields::boolean(const Json &object, const char *key)
{
    const Json *value = valueOf(object, key);
    return value && value->is_boolean() ? std::optional(value->get<bool>()) : std::nullopt;
}

std::optional<qint64> JsonFields::integer(const Json &object, const char *key)
{
    const Json *value = valueOf(object, key);
    if (!value || !value->is_number())
        return std::nullopt;
    if (value->is_number_unsigned()) {
        const auto number = value->get<quint64>();
        constexpr auto most = static_cast<quint64>(std::numeric_limits<qint64>::max());
        return number <= most ? std::optional(static_cast<qint64>(number)) : std::nullopt;
    }
    if (value->is_number_integer())
        return value->get<qint64>();
    // 5.0 is a whole number too. The bounds are powers of two, which a double holds exactly.
    const auto number = value->get<double>();
    if (std::trunc(number) != number || number < -0x1p63 || number >= 0x1p63)
        return std::nullopt;
    return static_cast<qint64>(number);
}
