// SPDX-License-Identifier: MIT
#pragma once

#include "Components/ShadowImages.h"
#include "Theme/Theme.h"
#include "Views/AppIconImages.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>
#include <QVariantMap>

/// One page in a window of the smallest size that the program's window leaves it. Any warning of QML fails the test.
class ViewWindow
{
public:
    ViewWindow(const QString &file, QObject *page)
        : ViewWindow(file, {{QStringLiteral("page"), QVariant::fromValue(page)}})
    {
    }
    ViewWindow(const QString &file, const QVariantMap &properties)
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QQmlEngine &engine = *m_view.engine();
        engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine.addImageProvider(QStringLiteral("shadow"), new ShadowImages);
        engine.addImageProvider(QStringLiteral("appicon"), new AppIconImages);
        // A type of the module is known to the engine once something has imported it.
        QQmlComponent first(&engine);
        first.setData("import QtQml\nimport Brisko.Theme\nQtObject {}", {});
        const std::unique_ptr<QObject> object(first.create());
        theme = engine.singletonInstance<Theme *>(qmlTypeId("Brisko.Theme", 1, 0, "Theme"));
        theme->setReducedMotion(true);
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.setColor(theme->backgroundBottom());
        m_view.setInitialProperties(properties);
        m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brisko/Views/") + file));
        m_view.resize(756, 652);
        m_view.show();
        m_view.requestActivate();
    }
    /// Whether the page is in sight and takes keys.
    [[nodiscard]] bool isReady()
    {
        return m_view.status() == QQuickView::Ready && QTest::qWaitForWindowActive(&m_view);
    }
    [[nodiscard]] QQuickView &view() { return m_view; }

    /// The items of an object name that are in sight, from top to bottom.
    [[nodiscard]] QList<QQuickItem *> all(const QString &name) const
    {
        QList<QQuickItem *> found;
        collect(m_view.contentItem(), name, found);
        std::ranges::sort(found, {}, [](const QQuickItem *item) { return item->mapToScene({}).y(); });
        return found;
    }
    [[nodiscard]] QQuickItem *one(const QString &name) const { return all(name).value(0); }
    [[nodiscard]] QString text(const QString &name) const
    {
        const QQuickItem *item = one(name);
        return item ? item->property("text").toString() : QString();
    }
    void click(const QQuickItem *item, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPointF centre = item->mapToScene({item->width() / 2, item->height() / 2});
        QTest::mouseClick(&m_view, button, {}, centre.toPoint());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&m_view, key, modifiers); }
    /// Moves the keyboard forward until the item named so has it; false when it never does.
    [[nodiscard]] bool tabTo(const QString &name)
    {
        constexpr int kMostStops = 40;
        for (int stop = 0; stop < kMostStops; ++stop) {
            press(Qt::Key_Tab);
            for (const QQuickItem *item = m_view.activeFocusItem(); item; item = item->parentItem()) {
                if (item->objectName() == name)
                    return true;
            }
        }
        return false;
    }

    Theme *theme = nullptr;

private:
    static void collect(QQuickItem *item, const QString &name, QList<QQuickItem *> &found)
    {
        if (!item->isVisible())
            return;
        if (item->objectName() == name && item->window()->geometry().height() > item->mapToScene({}).y() &&
            item->mapToScene({0, item->height()}).y() > 0)
            found.append(item);
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            collect(child, name, found);
    }

    QQuickView m_view;
};
