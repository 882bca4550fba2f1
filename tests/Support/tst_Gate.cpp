// SPDX-License-Identifier: MIT
#include "Support/Gate.h"

#include <QCoro/QCoroTask>
#include <QList>

#include <gtest/gtest.h>

#include <optional>

namespace {

QCoro::Task<> visit(Gate gate, int who, QList<int> *order, std::optional<Gate::Pass> *keep)
{
    Gate::Pass pass = co_await gate.enter();
    order->append(who);
    if (keep)
        keep->emplace(std::move(pass));
}

TEST(Gate, letsOneThroughAtATimeInTheOrderTheyCame)
{
    const Gate gate;
    QList<int> order;
    std::optional<Gate::Pass> first;
    const QCoro::Task<> a = visit(gate, 1, &order, &first);
    const QCoro::Task<> b = visit(gate, 2, &order, nullptr);
    const QCoro::Task<> c = visit(gate, 3, &order, nullptr);
    EXPECT_EQ(order, (QList<int>{1}));
    first.reset();
    EXPECT_EQ(order, (QList<int>{1, 2, 3}));
    EXPECT_TRUE(a.isReady() && b.isReady() && c.isReady());
}

TEST(Gate, outlivesItsOwner)
{
    QList<int> order;
    std::optional<Gate::Pass> first;
    std::optional<QCoro::Task<>> waiting;
    {
        const Gate gate;
        const QCoro::Task<> a = visit(gate, 1, &order, &first);
        waiting.emplace(visit(gate, 2, &order, nullptr));
    }
    first.reset();
    EXPECT_EQ(order, (QList<int>{1, 2}));
}

} // namespace
