// SPDX-License-Identifier: MIT
#pragma once

#include "Components/ShadowImages.h"
#include "Theme/Theme.h"

#include <QAccessible>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickView>
#include <QRegularExpression>
#include <QTest>

#include <memory>

/// A few lines of QML in a window of 400 x 300, with nothing around them. Any warning of QML fails the test.
class ComponentWindow
{
public:
    explicit ComponentWindow(bool dark = false)
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QQmlEngine &engine = *m_view.engine();
        engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine.addImageProvider(QStringLiteral("shadow"), new ShadowImages);
        QQmlComponent first(&engine);
        first.setData("import QtQml\nimport Brisko.Theme\nQtObject {}", {});
        const std::unique_ptr<QObject> object(first.create());
        theme = engine.singletonInstance<Theme *>(qmlTypeId("Brisko.Theme", 1, 0, "Theme"));
        theme->setReducedMotion(true);
        theme->setDark(dark);
        m_view.setColor(theme->backgroundBottom());
        m_view.resize(400, 300);
    }
    ~ComponentWindow() { root.reset(); }

    /// Shows one item, which is `root` from then on, away from the window's edges. False when it cannot.
    [[nodiscard]] bool show(const QString &qml)
    {
        const QString imports = QStringLiteral("import QtQuick\nimport QtQuick.Templates as T\nimport Brisko.Theme\n"
                                               "import Brisko.Painted\nimport Brisko.Components\n");
        QQmlComponent component(m_view.engine());
        component.setData((imports + qml).toUtf8(), QUrl(QStringLiteral("qrc:/qt/qml/Brisko/Components/Test.qml")));
        root.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!root) {
            qCritical("%s", qPrintable(component.errorString()));
            return false;
        }
        root->setPosition({60, 60});
        root->setParentItem(m_view.contentItem());
        m_view.show();
        m_view.requestActivate();
        QAccessible::setActive(true); // the templates tell their roles from then on
        return QTest::qWaitForWindowActive(&m_view) && away();
    }
    [[nodiscard]] QQuickView &view() { return m_view; }

    /// A property, of a chain such as "background.color".
    [[nodiscard]] static QVariant value(QObject *object, const char *path)
    {
        for (const QByteArray &name : QByteArray(path).split('.')) {
            if (name == QByteArray(path).split('.').last())
                return object ? object->property(name) : QVariant();
            object = object ? object->property(name).value<QObject *>() : nullptr;
        }
        return {};
    }
    [[nodiscard]] QVariant value(const char *path) const { return value(root.get(), path); }
    [[nodiscard]] QColor colour(const char *path) const { return value(path).value<QColor>(); }
    [[nodiscard]] double number(const char *path) const { return value(path).toDouble(); }

    /// Everything below an item that has such a property.
    [[nodiscard]] static QList<QQuickItem *> having(QQuickItem *item, const char *property)
    {
        QList<QQuickItem *> found;
        for (QQuickItem *child : item->childItems()) {
            if (child->property(property).isValid())
                found.append(child);
            found.append(having(child, property));
        }
        return found;
    }
    [[nodiscard]] static QQuickItem *named(QQuickItem *item, const QString &name)
    {
        if (item->objectName() == name)
            return item;
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = named(child, name))
                return found;
        }
        return nullptr;
    }

    [[nodiscard]] QPoint centre(const QQuickItem *item = nullptr) const
    {
        const QQuickItem *target = item ? item : root.get();
        return target->mapToScene({target->width() / 2, target->height() / 2}).toPoint();
    }
    /// Moves the pointer to where nothing is.
    bool away()
    {
        QTest::mouseMove(&m_view, {395, 295});
        return true;
    }
    void hover(const QQuickItem *item = nullptr)
    {
        QTest::mouseMove(&m_view, centre(item) - QPoint(1, 0));
        QTest::mouseMove(&m_view, centre(item));
    }
    void click(const QQuickItem *item = nullptr) { QTest::mouseClick(&m_view, Qt::LeftButton, {}, centre(item)); }
    void press(Qt::Key key) { QTest::keyClick(&m_view, key); }
    /// Presses or toggles as a screen reader does.
    void assist(const QString &action, QQuickItem *item = nullptr)
    {
        QAccessibleInterface *face = accessible(item);
        QVERIFY(face && face->actionInterface());
        face->actionInterface()->doAction(action);
    }
    [[nodiscard]] QAccessibleInterface *accessible(QQuickItem *item = nullptr) const
    {
        return QAccessible::queryAccessibleInterface(item ? item : root.get());
    }
    [[nodiscard]] QImage picture() { return m_view.grabWindow(); }

    Theme *theme = nullptr;
    std::unique_ptr<QQuickItem> root;

private:
    QQuickView m_view;
};
