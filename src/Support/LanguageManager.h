// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Preferences.h"

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

class UserDefaults;

/// Which language every text is looked up in. Two process-wide values, the active table and the current language,
/// are one immutable snapshot behind an atomic pointer: the main thread switches, any thread looks up.
namespace LanguageManager {

/// Reads the stored language (absent or unknown: `system`) and applies it. First thing at start; main thread.
void activate(UserDefaults &defaults);

/// Stores `language`, makes its table the active one (the system's own choice for `system`, English where a language
/// has no table) and stores or removes the list that tells the platform the language of its own texts. Main thread.
void apply(AppLanguage language, UserDefaults &defaults);

/// The language last applied; `system` before that. Any thread.
[[nodiscard]] AppLanguage current();
/// The identifier of the locale that formats are filled with, e.g. "zh_Hans_CN"; for `system` the system locale's own
/// ("C" and "POSIX" count as "en_US"). Any thread.
[[nodiscard]] QString localeIdentifier();
[[nodiscard]] QLocale locale();
/// The language whose texts and unit names are shown: never `system`; English where the system's own has no table.
/// Any thread.
[[nodiscard]] AppLanguage shownLanguage();
/// The active table's text for an English one; the English text itself where there is none. Any thread.
[[nodiscard]] QString localizedString(QStringView english);
/// The language of ours that a system's code ("zh-HK", "de_AT") stands for; absent for any other. Any thread.
[[nodiscard]] std::optional<AppLanguage> languageOfCode(const QString &code);
/// Of a system's languages ("de-AT", "zh-HK"), best first, the first that there are texts in; English when there is
/// none. Any thread.
[[nodiscard]] AppLanguage preferredLanguage(const QStringList &systemLanguages);
/// The language's name in itself; only `system` is translated.
[[nodiscard]] QString nativeName(AppLanguage language);

} // namespace LanguageManager
