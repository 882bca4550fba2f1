// SPDX-License-Identifier: MIT
#include "App/BriskoApp.h"

#include "App/ActivationService.h"
#include "App/AppDelegate.h"
#include "App/DialogFolderPanel.h"
#include "App/SingleInstance.h"
#include "Components/BrandLogo.h"
#include "State/SettingsFile.h"
#include "Support/UserDefaults.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QIcon applicationIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(side, side);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        BrandLogo::draw(&painter, QRectF(0, 0, side, side));
        icon.addPixmap(picture);
    }
    return icon;
}

Motion wantedMotion()
{
    return qEnvironmentVariable("BRISKO_REDUCED_MOTION") == "1"_L1 ? Motion::reduced : Motion::asTheDesktop;
}

/// The window's life, from its launch to the request to quit.
int live(const BriskoApp::Makers &makers, SingleInstance &instance)
{
    const std::shared_ptr<const Platform> platform = makers.platform();
    const std::unique_ptr<DesktopAppearance> desktop = makers.appearance();
    UserDefaults defaults(SettingsFile::path(*platform->places));
    DialogFolderPanel panel;
    TaskPools pools;
    WindowEnvironment environment;
    environment.state.platform = platform;
    environment.state.defaults = &defaults;
    environment.state.panel = &panel;
    environment.state.pools = &pools;
    environment.desktop = desktop.get();
    environment.schedule = [](std::chrono::milliseconds delay, const std::function<void()> &action) {
        QTimer::singleShot(delay, qApp, action);
    };
    environment.motion = wantedMotion();
    AppDelegate delegate(environment);
    delegate.applicationDidFinishLaunching();
    panel.setOwner(delegate.window());

    ActivationService service;
    QObject::connect(&service, &ActivationService::activated, &delegate, &AppDelegate::activate);
    QObject::connect(&instance, &SingleInstance::activated, &delegate, &AppDelegate::activate);
    service.publish(); // launchers start the program once more where there is no bus
    return QApplication::exec();
}

} // namespace

int BriskoApp::run(int argc, char **argv, const Makers &makers)
{
    QQuickWindow::setDefaultAlphaBuffer(true);
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Brisko"_s);
    QApplication::setDesktopFileName(u"com.brisko.Brisko"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(applicationIcon());

    SingleInstance instance(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    if (!instance.begin()) {
        if (instance.handOver(qgetenv("XDG_ACTIVATION_TOKEN")))
            return 0;
        qCritical("brisko: another Brisko is running and does not answer");
        return 1;
    }
    return live(makers, instance);
}
