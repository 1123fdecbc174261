#include "platform/simulated/SimulatedQueue.h"

#include "FailureRecorder.h"

#include <gtest/gtest.h>
#include <thread>

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

TEST(SimulatedQueue, whatATaskQueuesRunsInTheSameGoWhenItIsDue)
{
    SimulatedQueue queue;
    int runs = 0;
    queue.async([&] {
        queue.async([&] { ++runs; });
        queue.asyncAfter(1, [&] { ++runs; });
    });
    queue.runUntilIdle();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(queue.pendingCount(), 1u);
}

TEST(SimulatedQueue, otherThreadsMayQueue)
{
    SimulatedQueue queue;
    int runs = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 100; ++j)
                queue.async([&] { ++runs; });
        });
    }
    for (auto& thread : threads)
        thread.join();
    queue.runUntilIdle();
    EXPECT_EQ(runs, 400);
}

TEST(SimulatedQueue, dropsTasksThatQueueMoreOnTheirWayOut)
{
    struct QueuesWhenGone {
        SimulatedQueue& queue;
        ~QueuesWhenGone()
        {
            queue.async([] {});
        }
    };
    SimulatedQueue queue;
    queue.async([guard = std::make_shared<QueuesWhenGone>(QueuesWhenGone{queue})] { FAIL(); });
    queue.drop();
    EXPECT_EQ(queue.pendingCount(), 1u);
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
