// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QTest>

/// Fails the test function on every warning but those of a platform without a display, which can neither raise a window
/// nor cut its shape nor show a status item.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(
        "^(?!This plugin does not support|QObject::connect: No such signal QPlatformNativeInterface::systemTray)")));
}
