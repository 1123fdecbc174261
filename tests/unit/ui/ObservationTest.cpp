#include "platform/ui/Published.h"

#include <gtest/gtest.h>

using ui::Observation;
using ui::Published;

TEST(Observation, hearsOfWritesToWhatWasReadOncePerWrite)
{
    Published<int> readField = 1;
    Published<int> otherField = 1;
    int changes = 0;
    const Observation observation([&] { readField(), readField(); }, [&] { ++changes; });

    otherField = 2;
    EXPECT_EQ(changes, 0);
    readField = 2;
    readField = 2; // writing always notifies
    readField.mutate([](int& value) { value += 5; });
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(readField(), 7);
}

TEST(Observation, nestedReadersKeepTheirReadsApart)
{
    Published<int> outerField = 1;
    Published<int> innerField = 1;
    std::unique_ptr<Observation> inner;
    int innerChanges = 0;
    int outerChanges = 0;
    const Observation outer(
        [&] {
            inner = std::make_unique<Observation>([&] { innerField(); }, [&] { ++innerChanges; });
            outerField();
        },
        [&] { ++outerChanges; });

    innerField = 2;
    EXPECT_EQ(innerChanges, 1);
    EXPECT_EQ(outerChanges, 0);
    outerField = 2;
    EXPECT_EQ(outerChanges, 1);
}

TEST(Observation, fieldAndObserverMayGoInEitherOrder)
{
    auto field = std::make_unique<Published<int>>(1);
    auto early = std::make_unique<Observation>([&] { (*field)(); }, [] { FAIL(); });
    const auto late = std::make_unique<Observation>([&] { (*field)(); }, [] {});
    early.reset();
    *field = 2;
    field.reset();
}

TEST(Observation, anObserverMayTakeAnotherAwayDuringANotification)
{
    Published<int> field = 1;
    std::unique_ptr<Observation> second;
    const Observation first([&] { field(); }, [&] { second.reset(); });
    second = std::make_unique<Observation>([&] { field(); }, [] { FAIL() << "it had gone"; });
    field = 2;
}
