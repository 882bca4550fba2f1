// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Preferences.h"
#include "Views/PageModel.h"
#include "Views/RecordListModel.h"

#include <QAbstractItemModel>
#include <QString>
#include <QtQmlIntegration>

#include <utility>

/// A page as the sidebar shows it.
struct PageEntry {
    Page page = Page::overview;
    QString title;
    QString symbol;
    friend bool operator==(const PageEntry &, const PageEntry &) = default;
};

[[nodiscard]] inline int pageOf(const PageEntry &entry)
{
    return std::to_underlying(entry.page);
}

/// The pages in the order of the sidebar. Main thread.
class PagesModel : public RecordListModel<PageEntry, pageOf>
{
    Q_OBJECT

public:
    enum Role { PageRole = Qt::UserRole + 1, TitleRole, SymbolRole };

    using RecordListModel::RecordListModel;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

/// Which page is shown, and which there are. Main thread.
class Navigation final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The pages come from the program.")
    Q_PROPERTY(Target current READ current NOTIFY changed FINAL)
    Q_PROPERTY(QString currentTitle READ currentTitle NOTIFY changed FINAL)
    /// The interface language; a page is made anew when it changes.
    Q_PROPERTY(QString language READ language NOTIFY changed FINAL)
    /// Roles `page` (a number to call `select` with), `title`, `symbol`.
    Q_PROPERTY(QAbstractItemModel *pages READ pages CONSTANT FINAL)

public:
    /// The pages, as QML names them.
    enum Target { Overview, Uninstaller, Duplicates, LargeFiles, Junk, Startup, Settings };
    Q_ENUM(Target)
    static_assert(int(Overview) == int(::Page::overview) && int(Uninstaller) == int(::Page::uninstaller) &&
                  int(Duplicates) == int(::Page::duplicates) && int(LargeFiles) == int(::Page::largeFiles) &&
                  int(Junk) == int(::Page::junk) && int(Startup) == int(::Page::startup) &&
                  int(Settings) == int(::Page::settings));

    explicit Navigation(AppState &state, QObject *parent = nullptr);

    [[nodiscard]] Target current() const { return m_view.current; }
    [[nodiscard]] const QString &currentTitle() const { return m_view.title; }
    [[nodiscard]] const QString &language() const { return m_view.language; }
    [[nodiscard]] QAbstractItemModel *pages() { return &m_pages; }

    /// Shows a page.
    Q_INVOKABLE void select(Navigation::Target page);

private:
    struct View {
        Target current = Overview;
        QString title;
        QString language;
        friend bool operator==(const View &, const View &) = default;
    };
    void refresh();

    PagesModel m_pages;
    View m_view;
};
