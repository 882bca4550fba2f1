// SPDX-License-Identifier: MIT
#pragma once

class QQmlEngine;
class Texts;
class Theme;
class Typo;

/// The program's own QML modules, which are linked into it. Main thread.
namespace QmlModules {

/// The objects that all QML of one engine shares.
struct Shared {
    Theme *theme = nullptr;
    Texts *texts = nullptr;
    Typo *typo = nullptr;
};

/// Makes the modules and what draws their images known to an engine, and answers the objects that it owns then.
Shared prepare(QQmlEngine &engine);

} // namespace QmlModules
