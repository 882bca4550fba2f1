// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QFile>
#include <QProcess>

#include <stdexcept>

/// Runs a tool to its end and answers what it printed; throws, with what it complained about, when it failed.
inline QByteArray runTool(const char *program, const QByteArrayList &arguments,
                          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
                          const QByteArray &input = {})
{
    QStringList list;
    for (const QByteArray &argument : arguments)
        list.append(QFile::decodeName(argument));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QString::fromLatin1(program), list);
    process.write(input);
    process.closeWriteChannel();
    constexpr int limit = 120'000; // ms
    if (!process.waitForFinished(limit) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error(program + (' ' + process.readAllStandardError().toStdString()));
    return process.readAllStandardOutput();
}
