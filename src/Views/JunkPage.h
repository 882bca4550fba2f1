// SPDX-License-Identifier: MIT
#pragma once

#include "Models/Junk.h"
#include "Views/JunkCategoriesModel.h"
#include "Views/PageModel.h"
#include "Views/SelectionSet.h"

#include <QAbstractItemModel>
#include <QtQmlIntegration>

class ItemActions;

/// The page of the junk cleaner: the categories found, which of them are ticked, and cleaning them. Main thread.
class JunkPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(QAbstractItemModel *categories READ categories CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyHint READ emptyHint NOTIFY changed FINAL)
    Q_PROPERTY(QString status READ status NOTIFY changed FINAL)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed FINAL)
    Q_PROPERTY(bool removing READ isRemoving NOTIFY changed FINAL)
    Q_PROPERTY(bool canScan READ canScan NOTIFY changed FINAL)
    Q_PROPERTY(bool canClean READ canClean NOTIFY changed FINAL)
    Q_PROPERTY(bool needsAccess READ needsAccess NOTIFY changed FINAL)

public:
    /// `state` and `actions` outlive the page.
    JunkPage(AppState &state, const ItemActions &actions, QObject *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *categories() { return &m_categories; }
    [[nodiscard]] const QString &subtitle() const { return m_view.subtitle; }
    [[nodiscard]] const QString &emptyTitle() const { return m_view.emptyTitle; }
    [[nodiscard]] const QString &emptyHint() const { return m_view.emptyHint; }
    [[nodiscard]] const QString &status() const { return m_view.status; }
    [[nodiscard]] bool isEmpty() const { return m_view.empty; }
    [[nodiscard]] bool isLoading() const { return m_view.loading; }
    [[nodiscard]] bool isRemoving() const { return m_view.removing; }
    [[nodiscard]] bool canScan() const { return !m_view.loading; }
    [[nodiscard]] bool canClean() const { return m_view.canClean; }
    [[nodiscard]] bool needsAccess() const { return m_view.needsAccess; }

    /// The page came into sight: the first time, with nothing listed, it scans at once.
    Q_INVOKABLE void appeared();
    Q_INVOKABLE void scan();
    Q_INVOKABLE void stopScan();
    Q_INVOKABLE void toggle(const QString &itemId);
    Q_INVOKABLE void toggleExpanded(const QString &itemId);
    /// Asks whether the ticked categories shall be cleaned.
    Q_INVOKABLE void clean();
    Q_INVOKABLE void openAccessSettings();
    Q_INVOKABLE void showInFileManager(const QString &fileId);
    Q_INVOKABLE void copyPath(const QString &fileId);

private:
    struct View {
        QString subtitle;
        QString emptyTitle;
        QString emptyHint;
        QString status;
        bool empty = true;
        bool loading = false;
        bool removing = false;
        bool canClean = false;
        bool needsAccess = false;
        friend bool operator==(const View &, const View &) = default;
    };
    void takeCategories();
    void refresh();
    [[nodiscard]] QString subtitleText() const;
    [[nodiscard]] static QString statusText(const QList<JunkCategory> &selected);
    [[nodiscard]] QList<JunkCategory> selectedCategories() const;
    [[nodiscard]] const JunkCategory *find(const QString &itemId) const;
    /// A file of the list by its name in QML.
    [[nodiscard]] std::optional<FileURL> listedFile(const QString &fileId) const;

    const ItemActions &m_actions;
    SelectionSet<QUuid> m_selection;
    JunkCategoriesModel m_categories{m_selection};
    bool m_scanned = false;
    View m_view;
};
