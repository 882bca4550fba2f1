// SPDX-License-Identifier: MIT
#include "App/BriskoApp.h"
#include "App/Display.h"
#include "CommandLine/CommandLine.h"

int main(int argc, char **argv)
{
    const QList<QByteArray> arguments = CommandLine::argumentsOf(argc, argv);
    if (!arguments.isEmpty())
        return CommandLine::run(arguments, makePlatform);
    if (!Display::isReachable())
        return CommandLine::explainNoWindow();
    return BriskoApp::run(argc, argv, {.platform = makePlatform, .appearance = makeDesktopAppearance});
}
