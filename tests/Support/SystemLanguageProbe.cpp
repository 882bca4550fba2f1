// SPDX-License-Identifier: MIT
// Says on standard output what the program makes of the language that its environment names. The system's language is
// read once in a process, so that each question needs one of its own.
#include "Support/LanguageManager.h"
#include "Support/Text.h"
#include "Theme/Format.h"

#include <cstdio>

using namespace Qt::StringLiterals;

int main()
{
    const QStringList answer{rawValue(LanguageManager::shownLanguage()),
                             LanguageManager::localeIdentifier(),
                             Text::lookup(u"Trash"),
                             Text::format(u"%lld"_s, {qint64{12'500}}),
                             Format::bytes(1'200'000),
                             Format::date(QDateTime(QDate(2024, 3, 5), QTime(12, 0)))};
    std::fputs(answer.join(u'|').toUtf8().constData(), stdout);
}
