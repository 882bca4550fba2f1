// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <memory>

namespace CommandLine {

/// The arguments after the program's name, as the bytes that they are.
[[nodiscard]] QList<QByteArray> argumentsOf(int count, char **values);

/// Carries out one command line, from its reading to the exit status that is returned. Makes the application object, so
/// that it serves a whole process. The platform is made only for what needs one.
[[nodiscard]] int run(const QList<QByteArray> &arguments,
                      const std::function<std::shared_ptr<const Platform>()> &platform);

/// What a start without a command comes to where there is no window to open: a line that says what to do instead.
[[nodiscard]] int explainNoWindow();
/// Says on standard error why the part that draws cannot be loaded, in the system's words; answers the exit status.
[[nodiscard]] int explainMissingWindow(const char *reason);

} // namespace CommandLine
