// SPDX-License-Identifier: MIT
#include "App/QmlModules.h"

#include "Components/ShadowImages.h"
#include "Theme/Texts.h"
#include "Theme/Theme.h"
#include "Theme/Typo.h"
#include "Views/AppIconImages.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>

#include <memory>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PagesPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ViewsPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_WindowPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_AppPlugin)

using namespace Qt::StringLiterals;

QmlModules::Shared QmlModules::prepare(QQmlEngine &engine)
{
    engine.addImportPath(u"qrc:/qt/qml"_s);
    // The engine's own from now on.
    engine.addImageProvider(u"shadow"_s, new ShadowImages);
    engine.addImageProvider(u"appicon"_s, new AppIconImages);

    // The module's types are known to the engine once something has imported it.
    QQmlComponent first(&engine);
    first.setData("import QtQml\nimport Brisko.Theme\nQtObject {}", {});
    const std::unique_ptr<QObject> object(first.create());
    if (!object)
        qFatal("brisko: the program was built without its own modules: %s", qPrintable(first.errorString()));
    const auto only = [&engine](const char *name) { return qmlTypeId("Brisko.Theme", 1, 0, name); };
    return {.theme = engine.singletonInstance<Theme *>(only("Theme")),
            .texts = engine.singletonInstance<Texts *>(only("Texts")),
            .typo = engine.singletonInstance<Typo *>(only("Typo"))};
}
