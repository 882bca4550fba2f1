// SPDX-License-Identifier: MIT
// Says on standard output what the program makes of the language that its environment names. The system's language is
// read once in a process, so that each question needs one of its own.
#include "Support/LanguageManager.h"
#include "Support/Text.h"

#include <cstdio>

using namespace Qt::StringLiterals;

int main()
{
    const QString answer =
        u"%1|%2|%3|%4"_s.arg(rawValue(LanguageManager::shownLanguage()), LanguageManager::localeIdentifier(),
                             Text::lookup(u"Trash"), Text::format(u"%lld"_s, {qint64{12'500}}));
    std::fputs(answer.toUtf8().constData(), stdout);
}
