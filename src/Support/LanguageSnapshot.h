// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Preferences.h"

#include <QLocale>
#include <QString>
#include <QStringView>
#include <QTranslator>

#include <memory>

/// One choice of language, complete and unchanging: a text and the numbers put into it come from the same one, also
/// while another thread switches. Snapshots live as long as the process, one for each choice, so that their address
/// can serve as a key.
struct LanguageSnapshot {
    AppLanguage language = AppLanguage::system; // as chosen
    AppLanguage shown = AppLanguage::en;        // whose texts and unit names are shown
    QString localeIdentifier;
    QLocale locale;
    std::unique_ptr<const QTranslator> table; // absent: the English texts themselves

    /// The table's text for an English one; the English text itself where there is none. Any thread.
    [[nodiscard]] QString text(QStringView english) const;
};

/// The snapshot of the moment. Any thread.
[[nodiscard]] const LanguageSnapshot &languageSnapshot();
