#include "platform/gtk/foundation/GtkDispatchQueue.h"

#include "harness/MainLoop.h"

#include <glib.h>
#include <gtest/gtest.h>
#include <numeric>
#include <thread>

namespace gtk {

using desktop::runWaitingEvents;
using desktop::until;

TEST(GtkDispatchQueue, idleTasksWaitForTheEndOfTheStartAndForAllOthers)
{
    GtkDispatchQueue queue;
    std::string order;
    queue.asyncWhenIdle([&] {
        order += 'c';
        queue.asyncWhenIdle([&] { order += 'e'; });
        queue.async([&] { order += 'd'; });
    });
    queue.async([&] { order += 'a'; });
    runWaitingEvents();
    EXPECT_EQ(order, "a");

    queue.endStart();
    queue.async([&] { order += 'b'; });
    runWaitingEvents();
    EXPECT_EQ(order.substr(0, 3), "abc");
    EXPECT_EQ(order.size(), 5u);
}

TEST(GtkDispatchQueue, tasksOfAnotherThreadRunOnThisOneInTheirOrderAndLaterOnesNeverEarly)
{
    GtkDispatchQueue queue;
    constexpr int count = 1000;
    std::vector<int> order, expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    bool isOnMainThread = true;
    const auto mainThread = std::this_thread::get_id();
    std::thread other([&] {
        for (int i = 0; i < count; ++i) {
            queue.async([&, i] {
                isOnMainThread = isOnMainThread && std::this_thread::get_id() == mainThread;
                order.push_back(i);
            });
        }
    });
    const auto start = g_get_monotonic_time();
    gint64 pause = 0;
    queue.asyncAfter(0.1, [&] { pause = g_get_monotonic_time() - start; });
    EXPECT_TRUE(until([&] { return order.size() == count && pause > 0; }));
    other.join();
    EXPECT_EQ(order, expected);
    EXPECT_TRUE(isOnMainThread);
    EXPECT_GE(pause, G_USEC_PER_SEC / 10);
}

TEST(GtkDispatchQueue, tasksGoOnWhileOneOfThemWaitsInALoopOfItsOwn)
{
    GtkDispatchQueue queue;
    bool isAlertClosed = false;
    bool hasReturned = false;
    queue.async([&] {
        EXPECT_TRUE(until([&] { return isAlertClosed; }));
        hasReturned = true;
    });
    queue.async([&] { isAlertClosed = true; });
    EXPECT_TRUE(until([&] { return hasReturned; }));
}

} // namespace gtk
