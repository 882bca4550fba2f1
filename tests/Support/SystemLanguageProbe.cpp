// SPDX-License-Identifier: MIT
// Says on standard output what the program makes of the language that its environment names. The system's language is
// read once in a process, so that each question needs one of its own.
#include "Support/LanguageManager.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"
#include "Theme/Format.h"

#include <QTemporaryDir>

#include <cstdio>
#include <tuple>

using namespace Qt::StringLiterals;

/// The macro declares a function of the global namespace where it stands.
static void dropTables()
{
    Q_CLEANUP_RESOURCE(localization);
}

namespace {

/// Has a program without its tables choose a language; answers what it shows and what it stored.
QStringList chosenWithoutTables()
{
    std::ignore = LanguageManager::shownLanguage(); // the tables are found by now
    dropTables();
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"Brisko.conf"_s));
    LanguageManager::apply(AppLanguage::ko, defaults);
    return {rawValue(LanguageManager::shownLanguage()), LanguageManager::localeIdentifier(), Text::lookup(u"Trash"),
            defaults.text(DefaultsKey::appLanguage).value_or(QString()),
            defaults.textList(DefaultsKey::appleLanguages).join(u',')};
}

} // namespace

int main(int count, char **values)
{
    if (count == 2 && values[1] == QByteArrayView("--without-tables")) {
        std::fputs(chosenWithoutTables().join(u'|').toUtf8().constData(), stdout);
        return 0;
    }
    const QStringList answer{rawValue(LanguageManager::shownLanguage()),
                             LanguageManager::localeIdentifier(),
                             Text::lookup(u"Trash"),
                             Text::format(u"%lld"_s, {qint64{12'500}}),
                             Format::bytes(1'200'000),
                             Format::date(QDateTime(QDate(2024, 3, 5), QTime(12, 0)))};
    std::fputs(answer.join(u'|').toUtf8().constData(), stdout);
}
