// SPDX-License-Identifier: MIT
#include "Support/LanguageManager.h"

#include "Support/LanguageSnapshot.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>

#include <atomic>
#include <map>
#include <mutex>
#include <tuple>

using namespace Qt::StringLiterals;

// The linker drops the self-registration of resources that lie in a static library. The macro that replaces it
// declares a function and so cannot stand in a namespace.
static void registerTables()
{
    static std::once_flag once;
    std::call_once(once, [] { Q_INIT_RESOURCE(localization); });
}

namespace {

QString tablePath(AppLanguage language)
{
    return u":/localization/%1.lproj/Brisko.qm"_s.arg(rawValue(language));
}

/// English is its own table.
bool hasTexts(AppLanguage language)
{
    return language == AppLanguage::en || QFile::exists(tablePath(language));
}

QString localeIdentifierOf(AppLanguage language, const QString &systemIdentifier)
{
    switch (language) {
    case AppLanguage::system:
        return systemIdentifier;
    case AppLanguage::en:
        return u"en_US"_s;
    case AppLanguage::ja:
        return u"ja_JP"_s;
    case AppLanguage::ko:
        return u"ko_KR"_s;
    case AppLanguage::zhHans:
        return u"zh_Hans_CN"_s;
    case AppLanguage::zhHant:
        return u"zh_Hant_TW"_s;
    case AppLanguage::de:
        return u"de_DE"_s;
    case AppLanguage::fr:
        return u"fr_FR"_s;
    case AppLanguage::es:
        return u"es_ES"_s;
    case AppLanguage::it:
        return u"it_IT"_s;
    case AppLanguage::tr:
        return u"tr_TR"_s;
    case AppLanguage::th:
        return u"th_TH"_s;
    }
    Q_UNREACHABLE();
}

/// What the system says of its own language, the part of a snapshot's identity that can change while we run.
struct SystemChoice {
    QString identifier;
    AppLanguage texts = AppLanguage::en;
};

SystemChoice systemChoice()
{
    const QLocale system = QLocale::system();
    // "C" and "POSIX" stand for no language at all; people who work in them read American English.
    if (system.language() == QLocale::C)
        return {.identifier = u"en_US"_s, .texts = AppLanguage::en};
    return {.identifier = system.name(), .texts = LanguageManager::preferredLanguage(system.uiLanguages())};
}

std::unique_ptr<const QTranslator> loadTable(AppLanguage language)
{
    if (language == AppLanguage::en)
        return nullptr;
    auto table = std::make_unique<QTranslator>();
    if (!table->load(tablePath(language)))
        return nullptr;
    return table;
}

std::unique_ptr<const LanguageSnapshot> makeSnapshot(AppLanguage language, const SystemChoice &system)
{
    auto made = std::make_unique<LanguageSnapshot>();
    made->language = language;
    made->shown = language == AppLanguage::system ? system.texts : language;
    made->localeIdentifier = localeIdentifierOf(language, system.identifier);
    made->locale = QLocale(made->localeIdentifier);
    made->table = loadTable(made->shown);
    return made;
}

/// Every snapshot made so far, and which one holds. Never destroyed: threads may look texts up until the very end.
struct Snapshots {
    std::atomic<const LanguageSnapshot *> active{nullptr};
    QMutex mutex; // guards `all`
    std::map<std::tuple<AppLanguage, QString, AppLanguage>, std::unique_ptr<const LanguageSnapshot>> all;

    const LanguageSnapshot *of(AppLanguage language)
    {
        registerTables();
        // A chosen language does not depend on the system's.
        const SystemChoice system = language == AppLanguage::system ? systemChoice() : SystemChoice{};
        const QMutexLocker lock(&mutex);
        std::unique_ptr<const LanguageSnapshot> &kept = all[{language, system.identifier, system.texts}];
        if (!kept)
            kept = makeSnapshot(language, system);
        return kept.get();
    }
};

Snapshots &snapshots()
{
    static auto *const kept = new Snapshots;
    return *kept;
}

} // namespace

QString LanguageSnapshot::text(QStringView english) const
{
    if (!table)
        return english.toString();
    const QString found = table->translate("Brisko", english.toUtf8().constData());
    return found.isEmpty() ? english.toString() : found;
}

const LanguageSnapshot &languageSnapshot()
{
    Snapshots &kept = snapshots();
    if (const LanguageSnapshot *active = kept.active.load(std::memory_order_acquire))
        return *active;
    // Before the first choice the system's language holds; a choice made meanwhile on another thread wins.
    const LanguageSnapshot *first = kept.of(AppLanguage::system);
    const LanguageSnapshot *expected = nullptr;
    return kept.active.compare_exchange_strong(expected, first) ? *first : *expected;
}

void LanguageManager::activate(UserDefaults &defaults)
{
    apply(languageFromRaw(defaults.text(DefaultsKey::appLanguage).value_or(u"system"_s)), defaults);
}

void LanguageManager::apply(AppLanguage language, UserDefaults &defaults)
{
    defaults.setText(DefaultsKey::appLanguage, rawValue(language));
    snapshots().active.store(snapshots().of(language), std::memory_order_release);
    if (language == AppLanguage::system)
        defaults.remove(DefaultsKey::appleLanguages);
    else
        defaults.setTextList(DefaultsKey::appleLanguages, {rawValue(language)});
}

std::optional<AppLanguage> LanguageManager::languageOfCode(const QString &code)
{
    const QLocale locale(code);
    switch (locale.language()) {
    case QLocale::English:
        return AppLanguage::en;
    case QLocale::Japanese:
        return AppLanguage::ja;
    case QLocale::Korean:
        return AppLanguage::ko;
    case QLocale::Chinese:
        return locale.script() == QLocale::TraditionalHanScript ? AppLanguage::zhHant : AppLanguage::zhHans;
    case QLocale::German:
        return AppLanguage::de;
    case QLocale::French:
        return AppLanguage::fr;
    case QLocale::Spanish:
        return AppLanguage::es;
    case QLocale::Italian:
        return AppLanguage::it;
    case QLocale::Turkish:
        return AppLanguage::tr;
    case QLocale::Thai:
        return AppLanguage::th;
    default:
        return std::nullopt;
    }
}

AppLanguage LanguageManager::preferredLanguage(const QStringList &systemLanguages)
{
    registerTables();
    for (const QString &code : systemLanguages) {
        if (const auto language = languageOfCode(code); language && hasTexts(*language))
            return *language;
    }
    return AppLanguage::en;
}

AppLanguage LanguageManager::current()
{
    return languageSnapshot().language;
}

QString LanguageManager::localeIdentifier()
{
    return languageSnapshot().localeIdentifier;
}

QLocale LanguageManager::locale()
{
    return languageSnapshot().locale;
}

AppLanguage LanguageManager::shownLanguage()
{
    return languageSnapshot().shown;
}

QString LanguageManager::localizedString(QStringView english)
{
    return languageSnapshot().text(english);
}

QString LanguageManager::nativeName(AppLanguage language)
{
    switch (language) {
    case AppLanguage::system:
        return Text::lookup(u"System");
    case AppLanguage::en:
        return u"English"_s;
    case AppLanguage::ja:
        return u"日本語"_s;
    case AppLanguage::ko:
        return u"한국어"_s;
    case AppLanguage::zhHans:
        return u"简体中文"_s;
    case AppLanguage::zhHant:
        return u"繁體中文"_s;
    case AppLanguage::de:
        return u"Deutsch"_s;
    case AppLanguage::fr:
        return u"Français"_s;
    case AppLanguage::es:
        return u"Español"_s;
    case AppLanguage::it:
        return u"Italiano"_s;
    case AppLanguage::tr:
        return u"Türkçe"_s;
    case AppLanguage::th:
        return u"ไทย"_s;
    }
    Q_UNREACHABLE();
}
