// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QSettings;

/// The program's settings store. Every change is on disk, written atomically, when the call returns; other processes'
/// changes to other keys are kept. A file that cannot be understood is moved beside as `NAME.broken-N` before anything
/// is written. A place that cannot be used at all (a file that may not be read, a folder in its stead, no way to move
/// a broken file) is left as it is, and values are then kept in memory alone. Main thread.
class UserDefaults
{
public:
    /// Opens the store at `file` (a path in the local encoding); the file need not exist, and its folder is made by
    /// the first write. File and folder are made for the user alone.
    explicit UserDefaults(const QString &file);
    ~UserDefaults();
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// The number under `key`; 0 when absent or no number.
    [[nodiscard]] int integer(const QString &key) const;
    /// The text under `key` (a number counts as its digits); absent when there is none or it is of another type.
    [[nodiscard]] std::optional<QString> text(const QString &key) const;
    /// The list under `key`; empty when absent. A text counts as a list of one.
    [[nodiscard]] QStringList textList(const QString &key) const;
    [[nodiscard]] std::optional<QByteArray> data(const QString &key) const;
    /// Whether anything is stored under `key`; an empty list is something.
    [[nodiscard]] bool contains(const QString &key) const;

    void setInteger(const QString &key, int value);
    void setText(const QString &key, const QString &value);
    void setTextList(const QString &key, const QStringList &value);
    void setData(const QString &key, const QByteArray &value);
    /// Removes this key alone, also where others begin with it and a slash.
    void remove(const QString &key);

    /// Where a corrupt settings file was put aside; absent when the file was sound.
    [[nodiscard]] std::optional<QString> brokenCopy() const { return m_brokenCopy; }
    /// Whether the file's place can be used; if not, values last only as long as this object.
    [[nodiscard]] bool isKept() const { return m_settings != nullptr; }

private:
    [[nodiscard]] QVariant value(const QString &key) const;
    void prepareChange();
    void store(const QString &key, const QVariant &value);
    void write();
    [[nodiscard]] bool makeUsable();

    QString m_file;
    std::unique_ptr<QSettings> m_settings; // absent when the file's place cannot be used
    QMap<QString, QVariant> m_memory;      // the values then
    std::optional<QString> m_brokenCopy;
};

/// The keys of the store, gathered so that no two features collide.
namespace DefaultsKey {
inline constexpr QLatin1StringView appearance{"appearance"};
inline constexpr QLatin1StringView appLanguage{"appLanguage"};
inline constexpr QLatin1StringView appleLanguages{"AppleLanguages"};
inline constexpr QLatin1StringView duplicateFolders{"duplicateFolders"};
inline constexpr QLatin1StringView largeFileFolders{"largeFileFolders"};
inline constexpr QLatin1StringView skippedUpdateVersion{"skippedUpdateVersion"};
inline constexpr QLatin1StringView bookmarkPrefix{"com.brisko.bookmark."};
} // namespace DefaultsKey
