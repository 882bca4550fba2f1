// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QSettings;

/// The program's settings store. Every change is on disk, written atomically, when the call returns. A file that
/// cannot be understood is moved beside as `NAME.broken-N` before anything is written. Main thread.
class UserDefaults
{
public:
    /// Opens the store at `file` (a path in the local encoding); the file need not exist, and its folder is made by
    /// the first write.
    explicit UserDefaults(const QString &file);
    ~UserDefaults();
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// The number under `key`; 0 when absent or no number.
    [[nodiscard]] int integer(const QString &key) const;
    /// The text under `key`; absent when there is none or it is of another type.
    [[nodiscard]] std::optional<QString> text(const QString &key) const;
    /// The list under `key`; empty when absent.
    [[nodiscard]] QStringList textList(const QString &key) const;
    [[nodiscard]] std::optional<QByteArray> data(const QString &key) const;
    [[nodiscard]] bool contains(const QString &key) const;

    void setInteger(const QString &key, int value);
    void setText(const QString &key, const QString &value);
    void setTextList(const QString &key, const QStringList &value);
    void setData(const QString &key, const QByteArray &value);
    void remove(const QString &key);

    /// Where a corrupt settings file was put aside on opening; absent when the file was sound.
    [[nodiscard]] std::optional<QString> brokenCopy() const { return m_brokenCopy; }

private:
    std::unique_ptr<QSettings> m_settings;
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
