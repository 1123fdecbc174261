#include "platform/foundation/NotificationCenter.h"

#include <gtest/gtest.h>

using platform::NotificationCenter;

TEST(NotificationCenter, callsThoseWhoListenForTheNameAndSenderInOrder)
{
    NotificationCenter center;
    const int one = 0;
    std::string calls;
    const auto any = center.addObserver("closed", nullptr, [&](const auto&) { calls += 'a'; });
    const auto fromOne = center.addObserver("closed", &one, [&](const auto&) { calls += 'b'; });
    const auto other = center.addObserver("opened", nullptr, [&](const auto&) { calls += 'c'; });
    center.post("closed", &one);
    center.post("closed", &calls);
    center.post("closed");
    EXPECT_EQ(calls, "abaa");
}

TEST(NotificationCenter, whoLeavesInsideAHandlerIsNotCalledAnyMore)
{
    NotificationCenter center;
    NotificationCenter::Observer second;
    const auto first = center.addObserver("closed", nullptr, [&](const auto&) { second.reset(); });
    second = center.addObserver("closed", nullptr, [](const auto&) { FAIL() << "it has left"; });
    center.post("closed");
}
