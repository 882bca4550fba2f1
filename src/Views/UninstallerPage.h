// SPDX-License-Identifier: MIT
#pragma once

#include "Views/AppsModel.h"
#include "Views/PageModel.h"
#include "Views/SelectionSet.h"

#include <QAbstractItemModel>
#include <QCoro/QCoroTask>
#include <QPointer>
#include <QUuid>
#include <QtQmlIntegration>

#include <optional>

class ItemActions;

/// The page that lists applications and moves chosen ones to the Trash, with what belongs to them. Main thread.
class UninstallerPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(QAbstractItemModel *apps READ apps CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString listDescription READ listDescription NOTIFY changed FINAL)
    Q_PROPERTY(bool loading READ loading NOTIFY changed FINAL)
    /// What the running scan is doing; empty while none of applications runs.
    Q_PROPERTY(QString scanDetail READ scanDetail NOTIFY changed FINAL)
    Q_PROPERTY(bool needsFullDiskAccess READ needsFullDiskAccess NOTIFY changed FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(bool canScan READ canScan NOTIFY changed FINAL)
    Q_PROPERTY(QString footer READ footer NOTIFY changed FINAL)
    Q_PROPERTY(bool canRemove READ canRemove NOTIFY changed FINAL)
    Q_PROPERTY(bool removing READ removing NOTIFY changed FINAL)

public:
    /// `actions` outlives the page.
    UninstallerPage(AppState &state, const ItemActions &actions, QObject *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *apps() { return &m_apps; }
    [[nodiscard]] const QString &subtitle() const { return m_view.subtitle; }
    [[nodiscard]] const QString &listDescription() const { return m_view.listDescription; }
    [[nodiscard]] bool loading() const { return m_view.loading; }
    [[nodiscard]] const QString &scanDetail() const { return m_view.scanDetail; }
    [[nodiscard]] bool needsFullDiskAccess() const { return m_view.needsFullDiskAccess; }
    [[nodiscard]] bool isEmpty() const { return m_view.isEmpty; }
    [[nodiscard]] bool canScan() const { return m_view.canScan; }
    [[nodiscard]] const QString &footer() const { return m_view.footer; }
    [[nodiscard]] bool canRemove() const { return m_view.canRemove; }
    [[nodiscard]] bool removing() const { return m_view.removing; }

    Q_INVOKABLE void toggle(const QString &itemId);
    Q_INVOKABLE void toggleExpanded(const QString &itemId);
    Q_INVOKABLE void scan();
    Q_INVOKABLE void stopScan();
    Q_INVOKABLE void openAccessSettings();
    /// Makes sure that applications may be moved, then asks.
    Q_INVOKABLE void remove();
    /// Of an application or one of its related files.
    Q_INVOKABLE void showInFileManager(const QString &itemId) const;
    Q_INVOKABLE void copyPath(const QString &itemId) const;

private:
    struct View {
        QString subtitle;
        QString listDescription;
        bool loading = false;
        QString scanDetail;
        bool needsFullDiskAccess = false;
        bool isEmpty = true;
        bool canScan = true;
        QString footer;
        bool canRemove = false;
        bool removing = false;
        friend bool operator==(const View &, const View &) = default;
    };
    static QCoro::Task<> runRemove(QPointer<UninstallerPage> self);

    void takeApps();
    void follow();
    void refresh();
    void retranslate();
    void ask(const QList<InstalledApp> &apps);
    void askAgainWhenChanged();
    void clearSelection();
    [[nodiscard]] QList<InstalledApp> selectedApps() const;
    [[nodiscard]] std::optional<FileURL> appOf(const QString &itemId) const;
    [[nodiscard]] std::optional<FileURL> itemOf(const QString &itemId) const;

    const ItemActions *m_actions;
    AppsModel m_apps;
    SelectionSet<FileURL> m_selected;
    SelectionSet<FileURL> m_expanded;
    bool m_asking = false;           // for access
    std::optional<QUuid> m_question; // the confirmation that is about `m_questioned`
    QList<InstalledApp> m_questioned;
    View m_view;
};
