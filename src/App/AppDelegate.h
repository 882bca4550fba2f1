// SPDX-License-Identifier: MIT
#pragma once

#include "App/Compositing.h"
#include "App/GlassWindow.h"
#include "App/PanelWindow.h"
#include "App/QmlModules.h"
#include "App/StatusItem.h"
#include "App/TrayHost.h"
#include "App/WindowConfigurator.h"
#include "State/AppState.h"
#include "Support/NotificationCenter.h"
#include "Support/Scheduler.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

#include <functional>
#include <memory>

class PageModels;

/// What the window runs over. The pointers outlive the delegate.
struct WindowEnvironment {
    AppEnvironment state;
    const DesktopAppearance *desktop = nullptr;
    Scheduler schedule;
    Motion motion = Motion::asTheDesktop;
    std::function<bool()> isComposited = Compositing::isActive;
    std::function<bool()> hasTrayHost = TrayHost::isPresent;
    QUrl rootView{QStringLiteral("qrc:/qt/qml/Brisko/App/RootView.qml")};
    QUrl panelRoot{QStringLiteral("qrc:/qt/qml/Brisko/App/PanelRoot.qml")};
};

/// The steps of a launch, in their order.
enum class LaunchStep {
    activateLanguage,
    buildRootView,
    createWindow,
    configureWindow,
    hostRootView,
    showWindow,
    storeWindow,
    applyAppearance,
    removeDefaultSettingsMenuItem,
    setUpStatusItem,
    setUpReopenObserver,
    scheduleUpdateCheck
};

/// Owns the state, the window and the status item for as long as the process lives, and does what the desktop and the
/// user ask of the program as a whole. Closing the window only hides it; nothing but a request to quit ends the
/// program. Main thread.
class AppDelegate final : public QObject
{
    Q_OBJECT

public:
    explicit AppDelegate(WindowEnvironment environment, QObject *parent = nullptr);
    ~AppDelegate() override;

    /// The launch sequence, to be run once.
    void applicationDidFinishLaunching();

    /// Shows the settings page in the window, in front.
    void showSettings();
    void handleOpenMainWindow();
    void handleClosePopover();
    /// Hides the window and answers no, so that it is never closed.
    [[nodiscard]] bool windowShouldClose();
    void toggleStatusPopover();
    /// A launcher or a second start asks for the program: `activationToken` is what the display lets it to the front
    /// by.
    void activate(const QByteArray &activationToken);

    [[nodiscard]] AppState &state() { return m_state; }
    [[nodiscard]] NotificationCenter &notifications() { return m_notifications; }
    /// Absent until the launch has made them.
    [[nodiscard]] PageModels *pages() const { return m_pages.get(); }
    /// Absent until the launch has made it.
    [[nodiscard]] GlassWindow *window() const { return m_window.get(); }
    [[nodiscard]] StatusItem *statusItem() const { return m_statusItem.get(); }
    [[nodiscard]] PanelWindow &statusPopover() { return *m_statusPopover; }

Q_SIGNALS:
    void launchStepDone(LaunchStep step);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void activateLanguage();
    void buildRootView();
    void createWindow();
    void configureWindow();
    void hostRootView();
    void showWindow();
    void storeWindow();
    void applyAppearance();
    void removeDefaultSettingsMenuItem();
    void setUpStatusItem();
    void setUpReopenObserver();
    void scheduleUpdateCheck();

    void followLanguage();
    void saySettingsWereDamaged();
    void becameActive();
    WindowEnvironment m_environment;
    AppState m_state;
    NotificationCenter m_notifications;
    // What is drawn goes first: windows before their engine, the engine before the models that it shows.
    std::unique_ptr<PageModels> m_pages;
    QQmlEngine m_engine;
    QmlModules::Shared m_shared;
    std::unique_ptr<WindowConfigurator> m_configurator;
    std::unique_ptr<GlassWindow> m_newWindow; // until the launch stores it
    std::unique_ptr<GlassWindow> m_window;
    std::unique_ptr<PanelWindow> m_statusPopover;
    std::unique_ptr<StatusItem> m_statusItem;
};
