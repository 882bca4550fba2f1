// SPDX-License-Identifier: MIT
#include "Models/Preferences.h"

using namespace Qt::StringLiterals;

AppearanceOption appearanceFromRaw(int raw)
{
    switch (raw) {
    case 1:
        return AppearanceOption::light;
    case 2:
        return AppearanceOption::dark;
    default:
        return AppearanceOption::system;
    }
}

QList<AppLanguage> allLanguages()
{
    using enum AppLanguage;
    return {system, en, ja, ko, zhHans, zhHant, de, fr, es, it, tr, th};
}

QString rawValue(AppLanguage language)
{
    switch (language) {
    case AppLanguage::system:
        return u"system"_s;
    case AppLanguage::en:
        return u"en"_s;
    case AppLanguage::ja:
        return u"ja"_s;
    case AppLanguage::ko:
        return u"ko"_s;
    case AppLanguage::zhHans:
        return u"zh-Hans"_s;
    case AppLanguage::zhHant:
        return u"zh-Hant"_s;
    case AppLanguage::de:
        return u"de"_s;
    case AppLanguage::fr:
        return u"fr"_s;
    case AppLanguage::es:
        return u"es"_s;
    case AppLanguage::it:
        return u"it"_s;
    case AppLanguage::tr:
        return u"tr"_s;
    case AppLanguage::th:
        return u"th"_s;
    }
    Q_UNREACHABLE();
}

AppLanguage languageFromRaw(QStringView raw)
{
    for (const AppLanguage language : allLanguages()) {
        if (rawValue(language) == raw)
            return language;
    }
    return AppLanguage::system;
}
