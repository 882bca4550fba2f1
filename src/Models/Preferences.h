// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

/// Which appearance the window takes. Stored by its value.
enum class AppearanceOption { system = 0, light = 1, dark = 2 };

/// The option stored as `raw`; `system` for any other number.
[[nodiscard]] AppearanceOption appearanceFromRaw(int raw);

/// The interface language, in the order of the picker.
enum class AppLanguage { system, en, ja, ko, zhHans, zhHant, de, fr, es, it, tr, th };

[[nodiscard]] QList<AppLanguage> allLanguages();
/// The text under which a language is stored; for all but `system` also its localization code ("zh-Hans").
[[nodiscard]] QString rawValue(AppLanguage language);
/// The language stored as `raw`; `system` for any other text.
[[nodiscard]] AppLanguage languageFromRaw(QStringView raw);

/// The pages of the window, in the order of the sidebar.
enum class Page { overview, uninstaller, duplicates, largeFiles, junk, startup, settings };
