// SPDX-License-Identifier: MIT
#include "Support/Tasks.h"

#include <algorithm>
#include <utility>

TaskPools::TaskPools()
{
    // Applications are measured all at once and mostly wait for the disk: more threads than processors pay.
    userInitiated.setMaxThreadCount(std::max(6, QThread::idealThreadCount()));
    userInitiated.setObjectName(QStringLiteral("user-initiated"));
    utility.setMaxThreadCount(2);
    utility.setThreadPriority(QThread::LowPriority);
    utility.setObjectName(QStringLiteral("utility"));
}

void TasksDetail::dieOfException(std::exception_ptr exception)
{
    try {
        std::rethrow_exception(std::move(exception));
    } catch (const std::exception &error) {
        qFatal("A task ended with an exception: %s", error.what());
    } catch (...) {
        qFatal("A task ended with an exception of an unknown kind");
    }
}
