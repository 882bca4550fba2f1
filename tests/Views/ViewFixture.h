// SPDX-License-Identifier: MIT
#pragma once

#include "Support/NotificationCenter.h"
#include "Theme/Texts.h"
#include "Views/PageFixture.h"
#include "Views/PageModels.h"
#include "Views/ViewWindow.h"

#include <QTest>

#include <memory>

/// A page in a window, over the page models of a program and a state of fakes.
class ViewFixture : public PageFixture
{
public:
    ViewFixture()
        : models(withFeed(), notifications,
                 {.copyText = [this](const QString &text) { copied.append(text); }, .terminate = [this] { ++quits; }})
    {
    }

    /// Shows `name`.qml with these properties in place of whatever was shown.
    void show(const QString &name, const QVariantMap &properties)
    {
        window = std::make_unique<ViewWindow>(name + QStringLiteral(".qml"), properties);
        QVERIFY(window->isReady());
    }
    void showPage(const QString &name, QObject *page)
    {
        show(name, {{QStringLiteral("page"), QVariant::fromValue(page)}});
    }
    [[nodiscard]] QList<QQuickItem *> all(const QString &name) const { return window->all(name); }
    [[nodiscard]] QQuickItem *item(const QString &name) const { return window->one(name); }
    [[nodiscard]] QString text(const QString &name) const { return window->text(name); }
    void click(const QQuickItem *target, Qt::MouseButton button = Qt::LeftButton)
    {
        QVERIFY(target);
        window->click(target, button);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { window->press(key, modifiers); }
    /// Keeps a picture of the window where BRISKO_TEST_PICTURES names a folder, for people to look at.
    void picture(const QString &name)
    {
        window->view().setColor(window->theme->backgroundBottom());
        const QString folder = qEnvironmentVariable("BRISKO_TEST_PICTURES");
        if (!folder.isEmpty())
            QVERIFY(window->view().grabWindow().save(folder + u'/' + name + QStringLiteral(".png")));
    }

    QUrl feed{QStringLiteral("http://127.0.0.1:1/appcast.json")}; // where updates are looked for
    NotificationCenter notifications;
    int quits = 0;
    PageModels models;
    std::unique_ptr<ViewWindow> window; // goes before the models that it shows

private:
    AppState &withFeed()
    {
        appcastURL = [this] { return std::expected<QUrl, QString>(feed); };
        return make();
    }
};
