// SPDX-License-Identifier: MIT
#include "Services/WorkQueue.h"

#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <vector>

namespace {

TEST(WorkQueue, RunsOnThreadsOfItsNamedPoolAndNoMoreThanAllowed)
{
    for (int threads = 2; threads <= 6; ++threads) {
        std::mutex mutex;
        std::set<QThread *> used;
        std::set<QString> names;
        std::atomic<int> now = 0;
        std::atomic<int> most = 0;
        WorkQueue queue(QStringLiteral("a.name"), threads);
        EXPECT_EQ(queue.pool().objectName(), u"a.name");
        EXPECT_EQ(queue.pool().maxThreadCount(), threads);
        for (int piece = 0; piece < 500; ++piece) {
            queue.add([&] {
                const int current = ++now;
                const std::lock_guard lock(mutex);
                most = std::max(most.load(), current);
                used.insert(QThread::currentThread());
                names.insert(QThread::currentThread()->objectName());
                --now;
            });
        }
        queue.waitUntilIdle();
        EXPECT_LE(used.size(), static_cast<size_t>(threads));
        EXPECT_LE(most, threads);
        EXPECT_EQ(names, (std::set<QString>{QStringLiteral("a.name")}));
    }
}

TEST(WorkQueue, IsIdleOnlyWhenWorkThatWorkAddedIsDone)
{
    WorkQueue queue(QStringLiteral("a.name"), 3);
    std::atomic<int> done = 0;
    std::function<void(int)> grow = [&](int depth) {
        ++done;
        for (int child = 0; depth > 0 && child < 2; ++child)
            queue.add([&grow, depth] { grow(depth - 1); });
    };
    queue.add([&] { grow(9); });
    queue.waitUntilIdle();
    EXPECT_EQ(done, 1'023);
    queue.add([&] { ++done; });
    queue.waitUntilIdle();
    EXPECT_EQ(done, 1'024);
}

TEST(WorkQueue, WhatIsAddedFirstComesBeforeWhatWaits)
{
    WorkQueue queue(QStringLiteral("a.name"), 1);
    std::vector<int> order;
    queue.add([&] {
        queue.add([&] { order.push_back(2); });
        queue.addFirst([&] { order.push_back(1); });
    });
    queue.waitUntilIdle();
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
}

TEST(WorkQueue, AnEmptyQueueIsIdleAndEnds)
{
    WorkQueue queue(QStringLiteral("a.name"), 2);
    queue.waitUntilIdle();
}

} // namespace
