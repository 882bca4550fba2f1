// SPDX-License-Identifier: MIT
#pragma once

#include "Views/PageModel.h"
#include "Views/StartupModel.h"

#include <QAbstractItemModel>
#include <QtQmlIntegration>

class ItemActions;

/// The page that lists what starts with the session, and switches or removes the user's own items. Main thread.
class StartupPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(QAbstractItemModel *items READ items CONSTANT FINAL)
    /// The line below the title, and the footer's.
    Q_PROPERTY(QString status READ status NOTIFY changed FINAL)
    Q_PROPERTY(bool loading READ loading NOTIFY changed FINAL)
    /// What the running scan is doing; empty while none of startup items runs.
    Q_PROPERTY(QString scanDetail READ scanDetail NOTIFY changed FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(bool removing READ removing NOTIFY changed FINAL)

public:
    /// `actions` outlives the page.
    StartupPage(AppState &state, const ItemActions &actions, QObject *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *items() { return &m_items; }
    [[nodiscard]] const QString &status() const { return m_view.status; }
    [[nodiscard]] bool loading() const { return m_view.loading; }
    [[nodiscard]] const QString &scanDetail() const { return m_view.scanDetail; }
    [[nodiscard]] bool isEmpty() const { return m_view.isEmpty; }
    [[nodiscard]] bool removing() const { return m_view.removing; }

    /// Opening the page starts a scan, once.
    Q_INVOKABLE void appeared();
    Q_INVOKABLE void refreshItems();
    Q_INVOKABLE void stopScan();
    Q_INVOKABLE void toggle(const QString &itemId);
    /// Asks whether to remove an item.
    Q_INVOKABLE void remove(const QString &itemId);
    Q_INVOKABLE void showInFileManager(const QString &itemId) const;
    Q_INVOKABLE void copyPath(const QString &itemId) const;

private:
    struct View {
        QString status;
        bool loading = false;
        QString scanDetail;
        bool isEmpty = true;
        bool removing = false;
        friend bool operator==(const View &, const View &) = default;
    };
    void takeItems();
    void refresh();
    void retranslate();
    [[nodiscard]] const StartupItem *itemOf(const QString &itemId) const;

    const ItemActions *m_actions;
    StartupModel m_items;
    bool m_scanned = false;
    View m_view;
};
