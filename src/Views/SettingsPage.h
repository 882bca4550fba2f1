// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Preferences.h"
#include "Views/FoldersModel.h"
#include "Views/PageModel.h"
#include "Views/RecordListModel.h"

#include <QAbstractItemModel>
#include <QCoro/QCoroTask>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <QtQmlIntegration>

/// Where the maker can be reached.
struct MakersAddresses {
    QUrl privacyPolicy;
    QUrl termsOfService;
    QString feedback; // a mail address
};

/// The addresses that the program was built with.
[[nodiscard]] MakersAddresses builtInAddresses();

/// A language as the picker shows it.
struct LanguageEntry {
    AppLanguage language = AppLanguage::system;
    QString name;
    bool chosen = false;
    friend bool operator==(const LanguageEntry &, const LanguageEntry &) = default;
};

[[nodiscard]] inline AppLanguage languageOf(const LanguageEntry &entry)
{
    return entry.language;
}

/// The languages of the picker. Main thread.
class LanguagesModel : public RecordListModel<LanguageEntry, languageOf>
{
    Q_OBJECT

public:
    enum Role { LanguageIdRole = Qt::UserRole + 1, NameRole, ChosenRole };

    using RecordListModel::RecordListModel;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

/// The page of the settings; every control writes straight into the state. Main thread.
class SettingsPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(QAbstractItemModel *languages READ languages CONSTANT FINAL)
    Q_PROPERTY(Appearance appearance READ appearance NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractItemModel *duplicateFolders READ duplicateFolders CONSTANT FINAL)
    Q_PROPERTY(QString version READ version NOTIFY changed FINAL)
    Q_PROPERTY(QString updateButton READ updateButton NOTIFY changed FINAL)
    Q_PROPERTY(bool checkingForUpdates READ checkingForUpdates NOTIFY changed FINAL)

public:
    /// The appearances, as QML names them.
    enum Appearance { System, Light, Dark };
    Q_ENUM(Appearance)
    static_assert(int(System) == int(AppearanceOption::system) && int(Light) == int(AppearanceOption::light) &&
                  int(Dark) == int(AppearanceOption::dark));

    explicit SettingsPage(AppState &state, MakersAddresses addresses = builtInAddresses(), QObject *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *languages() { return &m_languages; }
    [[nodiscard]] Appearance appearance() const { return m_view.appearance; }
    [[nodiscard]] QAbstractItemModel *duplicateFolders() { return &m_folders; }
    [[nodiscard]] const QString &version() const { return m_view.version; }
    [[nodiscard]] const QString &updateButton() const { return m_view.updateButton; }
    [[nodiscard]] bool checkingForUpdates() const { return m_view.checking; }

    Q_INVOKABLE void chooseLanguage(const QString &languageId);
    Q_INVOKABLE void chooseAppearance(SettingsPage::Appearance appearance);
    /// Lets the user choose a folder, and adds it.
    Q_INVOKABLE void addFolder();
    Q_INVOKABLE void removeFolder(const QString &itemId);
    Q_INVOKABLE void checkForUpdates();
    Q_INVOKABLE void openPrivacyPolicy() const;
    Q_INVOKABLE void openTermsOfService() const;
    /// Begins a mail to the maker.
    Q_INVOKABLE void writeToMaker() const;

private:
    struct View {
        Appearance appearance = System;
        QString version;
        QString updateButton;
        bool checking = false;
        friend bool operator==(const View &, const View &) = default;
    };
    static QCoro::Task<> pickFolder(QPointer<SettingsPage> self);
    void takeLanguages();
    void takeFolders();
    void refresh();
    void open(const QUrl &address) const;

    MakersAddresses m_addresses;
    LanguagesModel m_languages;
    FoldersModel m_folders;
    bool m_picking = false;
    View m_view;
};
