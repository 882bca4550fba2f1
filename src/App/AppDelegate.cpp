// SPDX-License-Identifier: MIT
#include "App/AppDelegate.h"

#include "State/SettingsFile.h"
#include "Support/LanguageManager.h"
#include "Support/Tasks.h"
#include "Support/UserDefaults.h"
#include "Theme/Texts.h"
#include "Theme/Theme.h"
#include "Theme/Typo.h"
#include "Views/PageModels.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Fills a view with what is part of the program: that it cannot be read is a fault in building it.
void load(QQuickView &view, const QUrl &source, const QVariantMap &properties)
{
    view.setInitialProperties(properties);
    view.setSource(source);
    if (view.status() == QQuickView::Ready)
        return;
    const QList<QQmlError> errors = view.errors();
    for (const QQmlError &error : errors)
        qCritical("brisko: %s", qPrintable(error.toString()));
    qFatal("brisko: the window cannot be drawn");
}

/// Command and comma, the keys for settings everywhere.
bool asksForSettings(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Comma && key.modifiers() == Qt::ControlModifier;
}

} // namespace

AppDelegate::AppDelegate(WindowEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_environment(std::move(environment))
    , m_state(m_environment.state)
    , m_statusPopover(std::make_unique<PanelWindow>(&m_engine, m_environment.isComposited))
{
    qGuiApp->installEventFilter(this);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    using Action = void (AppDelegate::*)();
    static constexpr std::array<std::pair<LaunchStep, Action>, 12> kLaunch{{
        {LaunchStep::activateLanguage, &AppDelegate::activateLanguage},
        {LaunchStep::buildRootView, &AppDelegate::buildRootView},
        {LaunchStep::createWindow, &AppDelegate::createWindow},
        {LaunchStep::configureWindow, &AppDelegate::configureWindow},
        {LaunchStep::hostRootView, &AppDelegate::hostRootView},
        {LaunchStep::showWindow, &AppDelegate::showWindow},
        {LaunchStep::storeWindow, &AppDelegate::storeWindow},
        {LaunchStep::applyAppearance, &AppDelegate::applyAppearance},
        {LaunchStep::removeDefaultSettingsMenuItem, &AppDelegate::removeDefaultSettingsMenuItem},
        {LaunchStep::setUpStatusItem, &AppDelegate::setUpStatusItem},
        {LaunchStep::setUpReopenObserver, &AppDelegate::setUpReopenObserver},
        {LaunchStep::scheduleUpdateCheck, &AppDelegate::scheduleUpdateCheck},
    }};
    for (const auto &[step, run] : kLaunch) {
        (this->*run)();
        Q_EMIT launchStepDone(step);
    }
    saySettingsWereDamaged();
}

void AppDelegate::activateLanguage()
{
    LanguageManager::activate(*m_environment.state.defaults);
}

void AppDelegate::buildRootView()
{
    m_shared = QmlModules::prepare(m_engine);
    m_configurator = std::make_unique<WindowConfigurator>(*m_shared.theme, *m_environment.desktop,
                                                          m_environment.schedule, m_environment.motion);
    m_pages = std::make_unique<PageModels>(
        m_state, m_notifications,
        PageModels::Surroundings{.copyText = [](const QString &text) { QGuiApplication::clipboard()->setText(text); },
                                 .terminate = [] { QCoreApplication::quit(); }});
    connect(&m_state, &AppState::languageChanged, this, &AppDelegate::followLanguage);
    followLanguage();
}

void AppDelegate::createWindow()
{
    m_newWindow = std::make_unique<GlassWindow>(&m_engine, m_environment.schedule, m_environment.isComposited);
}

void AppDelegate::configureWindow()
{
    m_configurator->configure(*m_newWindow, m_state.appearance());
    m_newWindow->setShouldClose([this] { return windowShouldClose(); });
    connect(m_newWindow.get(), &GlassWindow::appeared, &m_state, &AppState::startInitialScan);
}

void AppDelegate::hostRootView()
{
    load(*m_newWindow, m_environment.rootView,
         {{u"pages"_s, QVariant::fromValue(m_pages.get())}, {u"window"_s, QVariant::fromValue(m_newWindow.get())}});
}

void AppDelegate::showWindow()
{
    m_newWindow->centre();
    m_newWindow->makeKeyAndOrderFront();
}

void AppDelegate::storeWindow()
{
    m_window = std::move(m_newWindow);
}

void AppDelegate::applyAppearance()
{
    const auto apply = [this] { m_configurator->applyAppearance(m_state.appearance()); };
    connect(&m_state, &AppState::appearanceChanged, this, apply);
    apply();
}

void AppDelegate::removeDefaultSettingsMenuItem()
{
    // The toolkit makes no menu of its own here, so that its item needs no removing; the keys that come with that item
    // are the program's own.
    m_window->installEventFilter(this);
    m_statusPopover->installEventFilter(this);
}

void AppDelegate::setUpStatusItem()
{
    m_statusItem = std::make_unique<StatusItem>(m_environment.schedule, m_environment.hasTrayHost);
    connect(m_statusItem.get(), &StatusItem::activated, this, &AppDelegate::toggleStatusPopover);
    connect(&m_notifications, &NotificationCenter::posted, this, [this](const QString &name) {
        if (name == Notification::openMainWindow)
            handleOpenMainWindow();
        else if (name == Notification::closeMenuPopover)
            handleClosePopover();
    });
    m_statusItem->show();
}

void AppDelegate::setUpReopenObserver()
{
    // Later, when it is settled which window the activity is for.
    connect(
        qGuiApp, &QGuiApplication::applicationStateChanged, this,
        [this](Qt::ApplicationState now) {
            if (now == Qt::ApplicationActive)
                becameActive();
        },
        Qt::QueuedConnection);
}

void AppDelegate::scheduleUpdateCheck()
{
    m_environment.schedule(3s, [self = QPointer(this)] {
        if (self)
            detach(self->m_state.checkForUpdates(true));
    });
}

void AppDelegate::showSettings()
{
    m_state.setSelection(Page::settings);
    handleOpenMainWindow();
}

void AppDelegate::handleOpenMainWindow()
{
    if (m_window)
        m_window->makeKeyAndOrderFront();
}

void AppDelegate::handleClosePopover()
{
    m_statusPopover->performClose();
}

bool AppDelegate::windowShouldClose()
{
    if (m_window)
        m_window->hide();
    return false;
}

void AppDelegate::toggleStatusPopover()
{
    // Filled when it is first asked for: many a program's life passes without, and its start is not to wait for it.
    if (m_statusPopover->status() == QQuickView::Null)
        load(*m_statusPopover, m_environment.panelRoot, {{u"panel"_s, QVariant::fromValue(m_pages->panel())}});
    m_statusPopover->toggle(m_statusItem ? m_statusItem->geometry() : QRect());
}

void AppDelegate::activate(const QByteArray &activationToken)
{
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken); // where the toolkit looks for it
    handleOpenMainWindow();
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qGuiApp && event->type() == QEvent::Quit) {
        // The toolkit would ask every window to close first, and ours only hides.
        QCoreApplication::exit(0);
        return true;
    }
    const bool isOurs = watched == m_window.get() || watched == m_statusPopover.get();
    if (isOurs && event->type() == QEvent::KeyPress && asksForSettings(*static_cast<QKeyEvent *>(event))) {
        showSettings();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void AppDelegate::followLanguage()
{
    m_shared.texts->followLanguage();
    m_shared.typo->followLanguage();
}

void AppDelegate::saySettingsWereDamaged()
{
    if (const auto copy = m_environment.state.defaults->brokenCopy())
        m_state.showToast(u"exclamationmark.triangle.fill"_s, Tint::paused, SettingsFile::damageNotice(*copy));
}

void AppDelegate::becameActive()
{
    // The panel makes the program active too, without asking for the window.
    if (m_window && !m_window->isVisible() && !m_statusPopover->isVisible())
        m_window->makeKeyAndOrderFront();
}
