// SPDX-License-Identifier: MIT
#pragma once

#include "Views/DuplicatesModel.h"
#include "Views/FoldersModel.h"
#include "Views/PageModel.h"
#include "Views/SelectionSet.h"

#include <QAbstractItemModel>
#include <QCoro/QCoroTask>
#include <QPointer>
#include <QtQmlIntegration>

class ItemActions;

/// The page of the duplicate finder: folders, the groups found and moving the ticked copies to the Trash. One copy of
/// each group always stays unticked. Main thread.
class DuplicatesPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(QAbstractItemModel *groups READ groups CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *folders READ folders CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyHint READ emptyHint NOTIFY changed FINAL)
    Q_PROPERTY(QString status READ status NOTIFY changed FINAL)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(bool hasFolders READ hasFolders NOTIFY changed FINAL)
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed FINAL)
    Q_PROPERTY(bool removing READ isRemoving NOTIFY changed FINAL)
    Q_PROPERTY(bool canScan READ canScan NOTIFY changed FINAL)
    Q_PROPERTY(bool canRemove READ canRemove NOTIFY changed FINAL)

public:
    /// `state` and `actions` outlive the page.
    DuplicatesPage(AppState &state, const ItemActions &actions, QObject *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *groups() { return &m_groups; }
    [[nodiscard]] QAbstractItemModel *folders() { return &m_folders; }
    [[nodiscard]] const QString &subtitle() const { return m_view.subtitle; }
    [[nodiscard]] const QString &emptyTitle() const { return m_view.emptyTitle; }
    [[nodiscard]] const QString &emptyHint() const { return m_view.emptyHint; }
    [[nodiscard]] const QString &status() const { return m_view.status; }
    [[nodiscard]] bool isEmpty() const { return m_view.empty; }
    [[nodiscard]] bool hasFolders() const { return m_view.hasFolders; }
    [[nodiscard]] bool isLoading() const { return m_view.loading; }
    [[nodiscard]] bool isRemoving() const { return m_view.removing; }
    [[nodiscard]] bool canScan() const { return !m_view.loading; }
    [[nodiscard]] bool canRemove() const { return m_view.canRemove; }

    Q_INVOKABLE void scan();
    Q_INVOKABLE void stopScan();
    Q_INVOKABLE void addFolder();
    Q_INVOKABLE void removeFolder(const QString &itemId);
    /// Ticks a file, unless it is the last unticked copy of its group, or takes its tick away.
    Q_INVOKABLE void toggle(const QString &itemId);
    Q_INVOKABLE void toggleCollapsed(const QString &groupId);
    /// Ticks every file of a group but the first.
    Q_INVOKABLE void keepFirst(const QString &groupId);
    /// Asks whether the ticked files shall go.
    Q_INVOKABLE void remove();
    Q_INVOKABLE void showInFileManager(const QString &itemId);
    Q_INVOKABLE void copyPath(const QString &itemId);

private:
    struct View {
        QString subtitle;
        QString emptyTitle;
        QString emptyHint;
        QString status;
        bool empty = true;
        bool hasFolders = false;
        bool loading = false;
        bool removing = false;
        bool canRemove = false;
        friend bool operator==(const View &, const View &) = default;
    };
    static QCoro::Task<> pickFolder(QPointer<AppState> state);
    void takeGroups();
    void takeFolders();
    void takeSelection();
    void refresh();
    void removeConfirmed(const QSet<FileURL> &selected);
    [[nodiscard]] QString subtitleText() const;
    [[nodiscard]] QString statusText() const;
    [[nodiscard]] std::optional<FileURL> listedFile(const QString &itemId) const;

    const ItemActions &m_actions;
    SelectionSet<FileURL> m_selection;
    QList<DuplicateFile> m_selectedFiles; // of the selection, in the order of the list
    DuplicatesModel m_groups{m_selection};
    FoldersModel m_folders;
    View m_view;
};
