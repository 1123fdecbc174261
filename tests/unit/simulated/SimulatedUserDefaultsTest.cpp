#include "platform/simulated/SimulatedUserDefaults.h"

#include <gtest/gtest.h>

using platform::Data;
using simulated::SimulatedUserDefaults;
using Strings = std::vector<std::string>;

TEST(SimulatedUserDefaults, aValueOfAnotherTypeCountsAsAbsent)
{
    const SimulatedUserDefaults::Stored values[] = {
        true, std::int64_t(3), 2.9, std::string("3"), Strings{"3"}, Data{std::byte(3)}};
    const std::int64_t integers[] = {0, 3, 2, 0, 0, 0};
    const bool booleans[] = {true, true, true, false, false, false};

    simulated::Faults faults;
    for (std::size_t i = 0; i < std::size(values); ++i) {
        SimulatedUserDefaults defaults(faults);
        defaults.plant("key", values[i]);
        EXPECT_TRUE(defaults.contains("key"));
        EXPECT_EQ(defaults.integer("key"), integers[i]) << i;
        EXPECT_EQ(defaults.boolean("key"), booleans[i]) << i;
        EXPECT_EQ(defaults.stringArray("key").has_value(), i == 4) << i;
        EXPECT_EQ(defaults.data("key").has_value(), i == 5) << i;
    }
}

TEST(SimulatedUserDefaults, recordsWritesAndKeepsWhatWasThereWhenTheyFail)
{
    simulated::Faults faults;
    SimulatedUserDefaults defaults(faults);
    defaults.setInteger("index", 1);
    faults.follow([](int) { return true; });
    defaults.setInteger("index", 2);
    defaults.removeObject("index");

    EXPECT_EQ(defaults.integer("index"), 1);
    EXPECT_EQ(defaults.writes(), (Strings{"index", "index", "index"}));
}
