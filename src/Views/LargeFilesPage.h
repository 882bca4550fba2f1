// SPDX-License-Identifier: MIT
#pragma once

#include "Views/FoldersModel.h"
#include "Views/LargeFilesModel.h"
#include "Views/PageModel.h"
#include "Views/SelectionSet.h"
#include "Views/ThresholdsModel.h"

#include <QAbstractItemModel>
#include <QCoro/QCoroTask>
#include <QPointer>
#include <QtQmlIntegration>

#include <array>

class ItemActions;

/// The page of the large-file finder: folders, threshold, the files found and moving the ticked ones to the Trash.
/// Main thread.
class LargeFilesPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(QAbstractItemModel *files READ files CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *folders READ folders CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *thresholds READ thresholds CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyHint READ emptyHint NOTIFY changed FINAL)
    Q_PROPERTY(QString status READ status NOTIFY changed FINAL)
    Q_PROPERTY(QString threshold READ threshold NOTIFY changed FINAL)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(bool hasFolders READ hasFolders NOTIFY changed FINAL)
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed FINAL)
    Q_PROPERTY(bool removing READ isRemoving NOTIFY changed FINAL)
    Q_PROPERTY(bool canScan READ canScan NOTIFY changed FINAL)
    Q_PROPERTY(bool canRemove READ canRemove NOTIFY changed FINAL)

public:
    static constexpr std::array kPresets = {10, 50, 100, 200, 500, 1024}; // in megabytes of 1,048,576 bytes

    /// `state` and `actions` outlive the page.
    LargeFilesPage(AppState &state, const ItemActions &actions, QObject *parent = nullptr);

    [[nodiscard]] QAbstractItemModel *files() { return &m_files; }
    [[nodiscard]] QAbstractItemModel *folders() { return &m_folders; }
    [[nodiscard]] QAbstractItemModel *thresholds() { return &m_thresholds; }
    [[nodiscard]] const QString &subtitle() const { return m_view.subtitle; }
    [[nodiscard]] const QString &emptyTitle() const { return m_view.emptyTitle; }
    [[nodiscard]] const QString &emptyHint() const { return m_view.emptyHint; }
    [[nodiscard]] const QString &status() const { return m_view.status; }
    /// "≥ 100 MB".
    [[nodiscard]] const QString &threshold() const { return m_view.threshold; }
    [[nodiscard]] bool isEmpty() const { return m_view.empty; }
    [[nodiscard]] bool hasFolders() const { return m_view.hasFolders; }
    [[nodiscard]] bool isLoading() const { return m_view.loading; }
    [[nodiscard]] bool isRemoving() const { return m_view.removing; }
    [[nodiscard]] bool canScan() const { return !m_view.loading; }
    [[nodiscard]] bool canRemove() const { return m_view.canRemove; }
    [[nodiscard]] qint64 minSizeBytes() const { return qint64(m_minSizeMB) * 1024 * 1024; }

    /// The page came into sight: the first time, with nothing listed, it scans at once.
    Q_INVOKABLE void appeared();
    Q_INVOKABLE void scan();
    Q_INVOKABLE void stopScan();
    /// Sets the threshold to one of the presets; once a scan was made from here, scans again.
    Q_INVOKABLE void applyThreshold(int megabytes);
    Q_INVOKABLE void addFolder();
    Q_INVOKABLE void removeFolder(const QString &itemId);
    Q_INVOKABLE void toggle(const QString &itemId);
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
        QString threshold;
        bool empty = true;
        bool hasFolders = false;
        bool loading = false;
        bool removing = false;
        bool canRemove = false;
        friend bool operator==(const View &, const View &) = default;
    };
    static QCoro::Task<> pickFolder(QPointer<AppState> state);
    void takeFiles();
    void takeFolders();
    void takeThresholds();
    void takeLanguage();
    void refresh();
    [[nodiscard]] QString subtitleText() const;
    [[nodiscard]] static QString statusText(const QList<LargeFile> &selected);
    /// The ticked files, in the order of the list.
    [[nodiscard]] QList<LargeFile> selectedFiles() const;
    [[nodiscard]] std::optional<FileURL> listedFile(const QString &itemId) const;

    const ItemActions &m_actions;
    SelectionSet<FileURL> m_selection;
    LargeFilesModel m_files{m_selection};
    FoldersModel m_folders;
    ThresholdsModel m_thresholds;
    int m_minSizeMB = 100;
    bool m_scanned = false;
    View m_view;
};
