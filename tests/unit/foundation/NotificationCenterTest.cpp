#include "platform/foundation/NotificationCenter.h"

#include <gtest/gtest.h>

using platform::NotificationCenter;

TEST(NotificationCenter, callsThoseWhoListenForTheNameAndSenderInOrder)
{
    NotificationCenter center;
    const int one = 0;
    const int other = 0;
    std::string calls;
    const auto any = center.addObserver("closed", nullptr, [&](const auto&) { calls += 'a'; });
    const auto fromOne = center.addObserver("closed", &one, [&](const auto&) { calls += 'b'; });
    const auto unrelated =
        center.addObserver("opened", nullptr, [&](const auto&) { calls += 'c'; });

    center.post("closed", &one);
    EXPECT_EQ(calls, "ab");
    center.post("closed", &other);
    EXPECT_EQ(calls, "aba");
    center.post("closed");
    EXPECT_EQ(calls, "abaa");
}

TEST(NotificationCenter, whoLeavesInsideAHandlerIsNotCalledAnyMore)
{
    NotificationCenter center;
    int calls = 0;
    NotificationCenter::Observer second;
    NotificationCenter::Observer first = center.addObserver("closed", nullptr, [&](const auto&) {
        ++calls;
        first.reset();
        second.reset();
    });
    second = center.addObserver("closed", nullptr, [&](const auto&) { ++calls; });

    center.post("closed");
    center.post("closed");
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, whoRegistersInsideAHandlerHearsTheNextOne)
{
    NotificationCenter center;
    int calls = 0;
    std::vector<NotificationCenter::Observer> observers;
    observers.push_back(center.addObserver("closed", nullptr, [&](const auto&) {
        observers.push_back(center.addObserver("closed", nullptr, [&](const auto&) { ++calls; }));
    }));

    center.post("closed");
    EXPECT_EQ(calls, 0);
    center.post("closed");
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, aHandlerMayPost)
{
    NotificationCenter center;
    int calls = 0;
    const auto outer =
        center.addObserver("outer", nullptr, [&](const auto&) { center.post("inner"); });
    NotificationCenter::Observer inner = center.addObserver("inner", nullptr, [&](const auto&) {
        ++calls;
        inner.reset();
    });
    center.post("outer");
    center.post("outer");
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, anObserverMayOutliveIt)
{
    NotificationCenter::Observer observer;
    {
        NotificationCenter center;
        observer = center.addObserver("closed", nullptr, [](const auto&) {});
    }
    observer.reset();
}
