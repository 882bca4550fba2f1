// SPDX-License-Identifier: MIT
#include "Support/Tasks.h"

#include <QtConcurrent>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

QCoro::Task<> count(int *counter)
{
    ++*counter;
    co_return;
}

QCoro::Task<int> fail()
{
    throw std::runtime_error("the disk is made of cheese");
    co_return 1;
}

QCoro::Task<> failOddly()
{
    throw 7;
    co_return;
}

TEST(Detach, runsTheTask)
{
    int runs = 0;
    detach(count(&runs));
    EXPECT_EQ(runs, 1);
}

TEST(DetachDeathTest, isLoudAboutAnException)
{
    EXPECT_DEATH(detach(fail()), "the disk is made of cheese");
    EXPECT_DEATH(detach(failOddly()), "unknown kind");
}

TEST(TaskHandle, cancelsTheTaskBeforeWhenItHoldsAnother)
{
    TaskHandle handle;
    const CancelToken first = handle.renew();
    EXPECT_TRUE(handle.holds(first));
    EXPECT_FALSE(first.isCancelled());
    const CancelToken second = handle.renew();
    EXPECT_TRUE(first.isCancelled());
    EXPECT_FALSE(second.isCancelled());
    EXPECT_FALSE(handle.holds(first));
    EXPECT_TRUE(handle.holds(second));
}

TEST(TaskHandle, cancelsWhatItHoldsAndThenHoldsNothing)
{
    TaskHandle handle;
    handle.cancel();
    const CancelToken token = handle.renew();
    handle.cancel();
    EXPECT_TRUE(token.isCancelled());
    EXPECT_FALSE(handle.holds(token));
}

TEST(TaskHandle, cancelsItsTaskWhenItGoes)
{
    std::optional<TaskHandle> handle(std::in_place);
    const CancelToken token = handle->renew();
    handle.reset();
    EXPECT_TRUE(token.isCancelled());
}

TEST(CancelToken, isSharedByItsCopies)
{
    const CancelToken token;
    const CancelToken copy = token;
    EXPECT_TRUE(copy.isSameAs(token));
    EXPECT_FALSE(CancelToken().isSameAs(token));
    copy.cancel();
    EXPECT_TRUE(token.isCancelled());
}

TEST(CancelToken, isNoticedByWorkOnAnotherThread)
{
    TaskPools pools;
    const CancelToken token;
    const QFuture<int> work = QtConcurrent::run(&pools.userInitiated, [token] {
        int rounds = 0;
        while (!token.isCancelled())
            ++rounds;
        return rounds;
    });
    token.cancel();
    EXPECT_GE(work.result(), 0);
}

TEST(TaskPools, haveRoomForWorkThatWaits)
{
    const TaskPools pools;
    EXPECT_GE(pools.userInitiated.maxThreadCount(), 6);
    EXPECT_GE(pools.utility.maxThreadCount(), 1);
    EXPECT_LT(pools.utility.threadPriority(), QThread::NormalPriority);
}

} // namespace
