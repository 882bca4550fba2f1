// SPDX-License-Identifier: MIT
#pragma once

#include "Views/Figures.h"
#include "Views/Navigation.h"
#include "Views/PageModel.h"

#include <QtQmlIntegration>

/// The first page: the figures at a glance, and the way to each cleaning page. Main thread.
class OverviewPage final : public PageModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The page comes from the program.")
    Q_PROPERTY(Figures *figures READ figures CONSTANT FINAL)
    Q_PROPERTY(bool scanning READ scanning NOTIFY changed FINAL)
    Q_PROPERTY(bool appsLoading READ appsLoading NOTIFY changed FINAL)
    Q_PROPERTY(bool duplicatesLoading READ duplicatesLoading NOTIFY changed FINAL)
    Q_PROPERTY(bool largeFilesLoading READ largeFilesLoading NOTIFY changed FINAL)
    Q_PROPERTY(bool junkLoading READ junkLoading NOTIFY changed FINAL)
    /// Whether any of these scans runs, and what it is doing.
    Q_PROPERTY(bool loading READ loading NOTIFY changed FINAL)
    Q_PROPERTY(QString scanDetail READ scanDetail NOTIFY changed FINAL)

public:
    /// `figures` outlives the page.
    OverviewPage(AppState &state, Figures &figures, QObject *parent = nullptr);

    [[nodiscard]] Figures *figures() const { return m_figures; }
    [[nodiscard]] bool scanning() const { return m_view.scanning; }
    [[nodiscard]] bool appsLoading() const { return m_view.apps; }
    [[nodiscard]] bool duplicatesLoading() const { return m_view.duplicates; }
    [[nodiscard]] bool largeFilesLoading() const { return m_view.largeFiles; }
    [[nodiscard]] bool junkLoading() const { return m_view.junk; }
    [[nodiscard]] bool loading() const { return m_view.apps || m_view.duplicates || m_view.largeFiles || m_view.junk; }
    [[nodiscard]] const QString &scanDetail() const { return m_view.detail; }

    /// Leads to a page.
    Q_INVOKABLE void open(Navigation::Target page);
    Q_INVOKABLE void stopScan();

private:
    struct View {
        bool scanning = false;
        bool apps = false;
        bool duplicates = false;
        bool largeFiles = false;
        bool junk = false;
        QString detail;
        friend bool operator==(const View &, const View &) = default;
    };
    void refresh();

    Figures *m_figures;
    View m_view;
};
