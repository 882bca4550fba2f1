// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHashFunctions>
#include <QString>

#include <compare>
#include <optional>

/// The identity of a file or folder: the exact bytes of an absolute path, cleaned by text alone (no `.`, `..`, doubled
/// or trailing slash). Names on disk need not be UTF-8, and links are not resolved. Cheap to copy; any thread.
class FileURL
{
public:
    /// No path at all; `isEmpty()` is true. Only for fields that are filled later.
    FileURL() = default;

    /// The URL of an absolute path; absent for a relative or empty path and for one that holds a NUL byte.
    [[nodiscard]] static std::optional<FileURL> fromPath(QByteArrayView absolutePath);
    /// As `fromPath`, with a relative path taken from `base`.
    [[nodiscard]] static std::optional<FileURL> fromPath(QByteArrayView path, const FileURL &base);
    /// The URL of a percent-encoded `file:` URL without a host ("file:///home/me/a%20b").
    [[nodiscard]] static std::optional<FileURL> fromEncoded(QByteArrayView fileUrl);
    /// A path that is known to be absolute and clean, such as one put together by a walk: no check is made.
    [[nodiscard]] static FileURL fromCleanPath(QByteArray path);
    [[nodiscard]] static FileURL root();

    [[nodiscard]] bool isEmpty() const { return m_path.isEmpty(); }
    /// The path's exact bytes, as the operating system takes them.
    [[nodiscard]] const QByteArray &path() const { return m_path; }
    /// The path as text for people: bytes that are not UTF-8 appear as replacement characters.
    [[nodiscard]] QString text() const;
    /// `file://` and the percent-encoded bytes; the inverse of `fromEncoded`.
    [[nodiscard]] QByteArray encoded() const;

    /// The last path component ("/" for the root).
    [[nodiscard]] QByteArray name() const;
    /// The last path component as text for people.
    [[nodiscard]] QString nameText() const;
    /// What follows the last dot of the name, without the dot; empty for "a", ".a" and "a.".
    [[nodiscard]] QByteArray extension() const;
    /// The folder that holds this one; the root is its own parent.
    [[nodiscard]] FileURL parent() const;
    /// The item `name` inside this folder. `name` is one component as read from a folder; no check is made.
    [[nodiscard]] FileURL child(QByteArrayView name) const;
    /// The item at a relative path of one or more components, cleaned.
    [[nodiscard]] FileURL appending(QByteArrayView relativePath) const;
    /// Whether this lies somewhere below `folder` (a folder does not lie below itself).
    [[nodiscard]] bool isBelow(const FileURL &folder) const;

    friend bool operator==(const FileURL &, const FileURL &) = default;
    /// Orders by bytes.
    friend std::strong_ordering operator<=>(const FileURL &a, const FileURL &b);
    friend size_t qHash(const FileURL &url, size_t seed = 0) { return qHash(url.m_path, seed); }

private:
    QByteArray m_path;
};
