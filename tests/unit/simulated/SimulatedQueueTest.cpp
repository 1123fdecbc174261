#include "platform/simulated/SimulatedQueue.h"

#include "FailureRecorder.h"

#include <gtest/gtest.h>

using simulated::SimulatedQueue;

TEST(SimulatedQueue, runsInTheOrderOfTimeThenOfQueueing)
{
    SimulatedQueue queue;
    std::string order;
    queue.asyncAfter(0.2, [&] { order += 'd'; });
    queue.asyncAfter(0.1, [&] { order += 'b'; });
    queue.asyncAfter(0.1, [&] {
        order += 'c';
        EXPECT_DOUBLE_EQ(queue.now(), 0.1);
    });
    queue.async([&] { order += 'a'; });

    queue.runUntilIdle();
    EXPECT_EQ(order, "a");
    queue.advance(0.15);
    EXPECT_EQ(order, "abc");
    queue.advance(0.05);
    EXPECT_EQ(order, "abcd");
}

TEST(SimulatedQueue, isIdleWhileNothingIsDue)
{
    SimulatedQueue queue;
    std::string order;
    queue.asyncWhenIdle([&] {
        order += 'c';
        queue.async([&] { order += 'd'; });
    });
    queue.asyncWhenIdle([&] { order += 'e'; });
    queue.async([&] { queue.async([&] { order += 'b'; }); });
    queue.async([&] { order += 'a'; });
    queue.asyncAfter(0.1, [&] { order += 'f'; });
    queue.advance(1);
    EXPECT_EQ(order, "abcdef");
}

TEST(SimulatedQueue, complainsOfATaskThatNeverEnds)
{
    FailureRecorder failures;
    SimulatedQueue queue;
    std::function<void()> again = [&] { queue.async(again); };
    queue.async(again);
    queue.runUntilIdle();
    EXPECT_EQ(failures.messages.size(), 1u);
}
