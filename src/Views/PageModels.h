// SPDX-License-Identifier: MIT
#pragma once

#include "Views/DuplicatesPage.h"
#include "Views/Figures.h"
#include "Views/ItemActions.h"
#include "Views/JunkPage.h"
#include "Views/LargeFilesPage.h"
#include "Views/Navigation.h"
#include "Views/NoticesModel.h"
#include "Views/OverviewPage.h"
#include "Views/PanelModel.h"
#include "Views/SettingsPage.h"
#include "Views/StartupPage.h"
#include "Views/UninstallerPage.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <functional>

class AppState;
class NotificationCenter;

/// All page models, made once over the state: they live as long as the program, whatever page is shown. Main thread.
class PageModels : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Page models come from the program.")
    Q_PROPERTY(Navigation *navigation READ navigation CONSTANT FINAL)
    Q_PROPERTY(Figures *figures READ figures CONSTANT FINAL)
    Q_PROPERTY(OverviewPage *overview READ overview CONSTANT FINAL)
    Q_PROPERTY(UninstallerPage *uninstaller READ uninstaller CONSTANT FINAL)
    Q_PROPERTY(DuplicatesPage *duplicates READ duplicates CONSTANT FINAL)
    Q_PROPERTY(LargeFilesPage *largeFiles READ largeFiles CONSTANT FINAL)
    Q_PROPERTY(JunkPage *junk READ junk CONSTANT FINAL)
    Q_PROPERTY(StartupPage *startup READ startup CONSTANT FINAL)
    Q_PROPERTY(SettingsPage *settings READ settings CONSTANT FINAL)
    Q_PROPERTY(PanelModel *panel READ panel CONSTANT FINAL)
    Q_PROPERTY(NoticesModel *notices READ notices CONSTANT FINAL)

public:
    /// What lies outside pages and state.
    struct Surroundings {
        std::function<void(const QString &)> copyText; // to the clipboard
        std::function<void()> terminate;               // ends the program
    };

    /// `state` and `notifications` outlive the models.
    PageModels(AppState &state, NotificationCenter &notifications, const Surroundings &surroundings,
               QObject *parent = nullptr);

    [[nodiscard]] Navigation *navigation() { return &m_navigation; }
    [[nodiscard]] Figures *figures() { return &m_figures; }
    [[nodiscard]] OverviewPage *overview() { return &m_overview; }
    [[nodiscard]] UninstallerPage *uninstaller() { return &m_uninstaller; }
    [[nodiscard]] DuplicatesPage *duplicates() { return &m_duplicates; }
    [[nodiscard]] LargeFilesPage *largeFiles() { return &m_largeFiles; }
    [[nodiscard]] JunkPage *junk() { return &m_junk; }
    [[nodiscard]] StartupPage *startup() { return &m_startup; }
    [[nodiscard]] SettingsPage *settings() { return &m_settings; }
    [[nodiscard]] PanelModel *panel() { return &m_panel; }
    [[nodiscard]] NoticesModel *notices() { return &m_notices; }

private:
    ItemActions m_actions;
    Navigation m_navigation;
    Figures m_figures;
    OverviewPage m_overview;
    UninstallerPage m_uninstaller;
    DuplicatesPage m_duplicates;
    LargeFilesPage m_largeFiles;
    JunkPage m_junk;
    StartupPage m_startup;
    SettingsPage m_settings;
    PanelModel m_panel;
    NoticesModel m_notices;
};
