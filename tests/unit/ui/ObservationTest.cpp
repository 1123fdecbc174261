#include "platform/ui/Published.h"

#include <gtest/gtest.h>

using ui::Observation;
using ui::Published;

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
            outerField(), outerField();
        },
        [&] { ++outerChanges; });

    innerField = 2;
    EXPECT_EQ(innerChanges, 1);
    EXPECT_EQ(outerChanges, 0);
    outerField = 2;
    EXPECT_EQ(outerChanges, 1);
}

TEST(Observation, anObserverMayTakeAnotherAwayDuringANotification)
{
    Published<int> field = 1;
    std::unique_ptr<Observation> second;
    const Observation first([&] { field(); }, [&] { second.reset(); });
    second = std::make_unique<Observation>([&] { field(); }, [] { FAIL() << "it had gone"; });
    field = 2;
}
