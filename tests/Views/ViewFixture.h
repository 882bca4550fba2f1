// SPDX-License-Identifier: MIT
#pragma once

#include "Components/ShadowImages.h"
#include "Support/NotificationCenter.h"
#include "Theme/Texts.h"
#include "Theme/Theme.h"
#include "Views/AppIconImages.h"
#include "Views/PageFixture.h"
#include "Views/PageModels.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>
#include <QVariantMap>

#include <memory>

/// A page in a window of its own, over page models and a state of fakes. Nothing moves, so that no test waits for it.
class ViewFixture : public PageFixture
{
public:
    ViewFixture()
        : models(withFeed(), notifications,
                 {.copyText = [this](const QString &text) { copied.append(text); }, .terminate = [this] { ++quits; }})
    {
        QQmlEngine *engine = view.engine();
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine->addImageProvider(QStringLiteral("shadow"), new ShadowImages);
        engine->addImageProvider(QStringLiteral("appicon"), new AppIconImages);
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.resize(756, 652);
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    }
    ~ViewFixture() { view.setSource({}); } // before the models that it shows

    /// Shows `name`.qml with these properties, and makes its window the active one.
    void show(const QString &name, const QVariantMap &properties)
    {
        view.setInitialProperties(properties);
        view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brisko/Views/%1.qml").arg(name)));
        QVERIFY2(view.status() == QQuickView::Ready, qPrintable(view.errors().value(0).toString()));
        theme()->setReducedMotion(true);
        view.show();
        view.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&view));
    }
    void showPage(const QString &name, QObject *page)
    {
        show(name, {{QStringLiteral("page"), QVariant::fromValue(page)}});
    }
    [[nodiscard]] Theme *theme() const
    {
        return view.engine()->singletonInstance<Theme *>(qmlTypeId("Brisko.Theme", 1, 0, "Theme"));
    }
    [[nodiscard]] Texts *texts() const
    {
        return view.engine()->singletonInstance<Texts *>(qmlTypeId("Brisko.Theme", 1, 0, "Texts"));
    }

    /// The items of that name that can be seen, from the first to the last child.
    [[nodiscard]] QList<QQuickItem *> all(const QString &objectName) const
    {
        QList<QQuickItem *> found;
        gather(view.contentItem(), objectName, found);
        return found;
    }
    [[nodiscard]] QQuickItem *item(const QString &objectName) const { return all(objectName).value(0); }
    [[nodiscard]] QString text(const QString &objectName) const
    {
        const QQuickItem *found = item(objectName);
        return found ? found->property("text").toString() : QString();
    }
    void click(QQuickItem *target, Qt::MouseButton button = Qt::LeftButton)
    {
        QVERIFY(target);
        const QPointF middle = target->mapToScene(target->boundingRect().center());
        QTest::mouseClick(&view, button, {}, middle.toPoint());
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view, Qt::Key(key), modifiers); }
    /// Keeps a picture of the window where BRISKO_TEST_PICTURES names a folder, for people to look at.
    void picture(const QString &name)
    {
        const QString folder = qEnvironmentVariable("BRISKO_TEST_PICTURES");
        if (folder.isEmpty())
            return;
        view.setColor(theme()->backgroundBottom());
        QVERIFY(view.grabWindow().save(folder + u'/' + name + QStringLiteral(".png")));
    }

    QUrl feed{QStringLiteral("http://127.0.0.1:1/appcast.json")}; // where updates are looked for
    NotificationCenter notifications;
    int quits = 0;
    PageModels models;
    QQuickView view;

private:
    AppState &withFeed()
    {
        appcastURL = [this] { return std::expected<QUrl, QString>(feed); };
        return make();
    }
    static void gather(QQuickItem *from, const QString &objectName, QList<QQuickItem *> &found)
    {
        if (!from->isVisible())
            return;
        if (from->objectName() == objectName)
            found.append(from);
        for (QQuickItem *child : from->childItems())
            gather(child, objectName, found);
    }
};
