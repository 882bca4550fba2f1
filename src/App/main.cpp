// SPDX-License-Identifier: MIT
#include "CommandLine/CommandLine.h"

int main(int argc, char **argv)
{
    const QList<QByteArray> arguments = CommandLine::argumentsOf(argc, argv);
    if (arguments.isEmpty())
        return CommandLine::explainNoWindow();
    return CommandLine::run(arguments, makePlatform);
}
