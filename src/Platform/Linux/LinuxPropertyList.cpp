// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxPropertyList.h"

#include "Platform/FileSystem.h"
#include "Platform/Linux/BinaryPropertyList.h"
#include "Platform/Linux/PropertyListLimits.h"
#include "Platform/Linux/XmlPropertyList.h"
#include "Platform/ReplaceFile.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <type_traits>

namespace {

using PropertyListLimits::kMaxBytes;

struct FreeNode {
    void operator()(plist_t node) const { plist_free(node); }
};
struct FreeMemory {
    void operator()(void *memory) const { std::free(memory); } // NOLINT: libplist allocates with malloc
};
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, FreeNode>;
template <typename T>
using Memory = std::unique_ptr<T, FreeMemory>;

std::unexpected<std::error_code> failure(std::errc why)
{
    return std::unexpected(std::make_error_code(why));
}

std::expected<QByteArray, std::error_code> contentOf(const FileURL &file)
{
    auto content = FileSystem::read(file, kMaxBytes + 1);
    if (content && content->size() > kMaxBytes)
        return failure(std::errc::file_too_large);
    return content;
}

/// The list whose top is a dictionary; null for whatever is none.
Node parsed(const QByteArray &content)
{
    plist_t top = nullptr;
    const auto size = static_cast<uint32_t>(content.size());
    // Each format by its own function: the one that guesses knows further formats, for which we have no limits.
    if (BinaryPropertyList::isOne(content)) {
        if (BinaryPropertyList::isHarmless(content))
            plist_from_bin(content.constData(), size, &top);
    } else if (XmlPropertyList::isHarmless(content)) {
        plist_from_xml(content.constData(), size, &top);
    }
    Node node(top);
    return node && plist_get_node_type(node.get()) == PLIST_DICT ? std::move(node) : nullptr;
}

QByteArray written(plist_t list, bool asBinary)
{
    char *bytes = nullptr;
    uint32_t size = 0;
    if (asBinary)
        plist_to_bin(list, &bytes, &size);
    else
        plist_to_xml(list, &bytes, &size);
    const Memory<char> owner(bytes);
    return {bytes, static_cast<qsizetype>(size)};
}

/// Calls `each(key, value)` for every entry, until it answers false; whether it never did.
template <typename Each>
bool everyEntry(plist_t dictionary, const Each &each)
{
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(dictionary, &iterator);
    const Memory<void> owner(iterator);
    for (;;) {
        char *key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, iterator, &key, &value);
        const Memory<char> keyOwner(key);
        if (key == nullptr || value == nullptr)
            return true;
        if (!each(key, value))
            return false;
    }
}

/// Whether two lists hold the same, types included. As deep as the lists, which are bounded.
bool isSame(plist_t a, plist_t b)
{
    const plist_type type = plist_get_node_type(a);
    if (type != plist_get_node_type(b) || type == PLIST_NONE)
        return false;
    if (type == PLIST_DICT)
        return plist_dict_get_size(a) == plist_dict_get_size(b) && everyEntry(a, [b](const char *key, plist_t value) {
                   const plist_t other = plist_dict_get_item(b, key);
                   return other != nullptr && isSame(value, other);
               });
    if (type != PLIST_ARRAY)
        return plist_compare_node_value(a, b) != 0;
    const uint32_t size = plist_array_get_size(a);
    if (size != plist_array_get_size(b))
        return false;
    for (uint32_t i = 0; i < size; ++i)
        if (!isSame(plist_array_get_item(a, i), plist_array_get_item(b, i)))
            return false;
    return true;
}

/// The file's new content, read back and found to be `wanted`; absent when that cannot be had.
std::optional<QByteArray> contentFor(plist_t wanted, const QByteArray &old, const QByteArray &key, bool value)
{
    const bool isBinary = BinaryPropertyList::isOne(old);
    const auto holdsWanted = [wanted](const QByteArray &content) {
        const Node again = parsed(content);
        return again && isSame(wanted, again.get());
    };
    // What people wrote into an XML file, comments and layout, stays where it can.
    if (!isBinary)
        if (std::optional<QByteArray> edited = XmlPropertyList::withBoolean(old, key, value))
            if (holdsWanted(*edited))
                return edited;
    QByteArray content = written(wanted, isBinary);
    return holdsWanted(content) ? std::optional(std::move(content)) : std::nullopt;
}

std::optional<bool> booleanAt(plist_t dictionary, const QByteArray &key)
{
    const plist_t value = plist_dict_get_item(dictionary, key.constData());
    if (value == nullptr || plist_get_node_type(value) != PLIST_BOOLEAN)
        return std::nullopt;
    uint8_t isSet = 0;
    plist_get_bool_val(value, &isSet);
    return isSet != 0;
}

} // namespace

std::expected<PropertyDictionary, std::error_code> LinuxPropertyList::read(const FileURL &file) const
{
    const auto content = contentOf(file);
    if (!content)
        return std::unexpected(content.error());
    const Node list = parsed(*content);
    if (!list)
        return failure(std::errc::bad_message);
    PropertyDictionary result;
    everyEntry(list.get(), [&](const char *key, plist_t value) {
        const plist_type type = plist_get_node_type(value);
        if (type == PLIST_STRING) {
            uint64_t length = 0;
            const char *text = plist_get_string_ptr(value, &length);
            result.values.insert(QString::fromUtf8(key), QString::fromUtf8(text, static_cast<qsizetype>(length)));
        } else if (type == PLIST_BOOLEAN) {
            result.values.insert(QString::fromUtf8(key), booleanAt(list.get(), key).value_or(false));
        }
        return true;
    });
    return result;
}

std::expected<void, std::error_code> LinuxPropertyList::setBoolean(const FileURL &file, const QString &key,
                                                                   bool value) const
{
    const auto attributes = FileSystem::attributes(file);
    if (!attributes)
        return std::unexpected(attributes.error());
    const auto content = contentOf(file);
    if (!content)
        return std::unexpected(content.error());
    const Node list = parsed(*content);
    if (!list)
        return failure(std::errc::bad_message);
    const QByteArray name = key.toUtf8();
    if (booleanAt(list.get(), name) == value)
        return {};
    plist_dict_set_item(list.get(), name.constData(), plist_new_bool(value ? 1 : 0));
    const std::optional<QByteArray> changed = contentFor(list.get(), *content, name, value);
    if (!changed)
        return failure(std::errc::not_supported);
    return replaceFile(file, *changed, *attributes);
}
