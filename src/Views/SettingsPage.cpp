// SPDX-License-Identifier: MIT
#include "Views/SettingsPage.h"

#include "State/AppState.h"
#include "Support/LanguageManager.h"
#include "Support/Text.h"
#include "Views/ItemId.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFeedbackSubject = "Brisko%20Feedback"_L1;

} // namespace

MakersAddresses builtInAddresses()
{
    return {.privacyPolicy = QUrl(QStringLiteral(BRISKO_PRIVACY_URL)),
            .termsOfService = QUrl(QStringLiteral(BRISKO_TERMS_URL)),
            .feedback = QStringLiteral(BRISKO_FEEDBACK_ADDRESS)};
}

QVariant LanguagesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LanguageEntry &entry = recordAt(index);
    switch (role) {
    case LanguageIdRole:
        return rawValue(entry.language);
    case NameRole:
        return entry.name;
    case ChosenRole:
        return entry.chosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> LanguagesModel::roleNames() const
{
    return {{LanguageIdRole, "languageId"}, {NameRole, "name"}, {ChosenRole, "chosen"}};
}

SettingsPage::SettingsPage(AppState &state, MakersAddresses addresses, QObject *parent)
    : PageModel(state, parent)
    , m_addresses(std::move(addresses))
{
    connect(&state, &AppState::languageChanged, this, &SettingsPage::takeLanguages);
    connect(&state, &AppState::duplicateFoldersChanged, this, &SettingsPage::takeFolders);
    connect(&state, &AppState::appearanceChanged, this, &SettingsPage::refresh);
    connect(&state, &AppState::isCheckingForUpdatesChanged, this, &SettingsPage::refresh);
    takeLanguages();
    takeFolders();
}

void SettingsPage::takeLanguages()
{
    QList<LanguageEntry> entries;
    for (const AppLanguage language : allLanguages()) {
        entries.append({.language = language,
                        .name = LanguageManager::nativeName(language),
                        .chosen = language == state().language()});
    }
    m_languages.setRecords(std::move(entries));
    refresh();
}

void SettingsPage::takeFolders()
{
    m_folders.setRecords(state().duplicateFolders());
}

void SettingsPage::refresh()
{
    const bool checking = state().isCheckingForUpdates();
    show(m_view,
         View{.appearance = static_cast<Appearance>(state().appearance()),
              .version = Text::filled(u"Brisko %@", {AppState::version()}),
              .updateButton = checking ? Text::lookup(u"Checking for updates…") : Text::lookup(u"Check for Updates"),
              .checking = checking});
}

void SettingsPage::chooseLanguage(const QString &languageId)
{
    const QList<AppLanguage> all = allLanguages();
    const auto language =
        std::ranges::find_if(all, [&languageId](AppLanguage each) { return rawValue(each) == languageId; });
    if (language != all.end() && *language != state().language())
        state().setLanguage(*language);
}

void SettingsPage::chooseAppearance(Appearance appearance)
{
    state().setAppearance(appearanceFromRaw(appearance));
}

void SettingsPage::addFolder()
{
    if (!m_picking)
        detach(pickFolder(this));
}

QCoro::Task<> SettingsPage::pickFolder(QPointer<SettingsPage> self)
{
    self->m_picking = true;
    const AccessContext context = self->state().accessContext();
    const std::optional<FileURL> folder =
        co_await AccessStore::pickFolder(context, Text::lookup(u"Choose a folder to scan for duplicate files."));
    if (!self)
        co_return;
    self->m_picking = false;
    if (folder)
        self->state().addDuplicateFolder(*folder);
}

void SettingsPage::removeFolder(const QString &itemId)
{
    const std::optional<FileURL> folder = ItemId::toURL(itemId);
    if (folder && m_folders.rowOf(*folder) >= 0)
        state().removeDuplicateFolder(*folder);
}

void SettingsPage::checkForUpdates()
{
    if (!m_view.checking)
        detach(state().checkForUpdates(false));
}

void SettingsPage::openPrivacyPolicy() const
{
    open(m_addresses.privacyPolicy);
}

void SettingsPage::openTermsOfService() const
{
    open(m_addresses.termsOfService);
}

void SettingsPage::writeToMaker() const
{
    open(QUrl(u"mailto:"_s + m_addresses.feedback + u"?subject="_s + kFeedbackSubject));
}

void SettingsPage::open(const QUrl &address) const
{
    state().accessContext().platform->workspace->open(address);
}
