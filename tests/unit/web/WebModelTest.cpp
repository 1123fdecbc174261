#include "web/WebModel.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using platform::Data;
using velmaro::UserIdentity;
using velmaro::WebModel;

namespace {

constexpr auto key = "vl.user.identity";

struct WebModels : testing::Test {
    std::optional<UserIdentity> stored()
    {
        const auto data = platform.userDefaults().data(key);
        return data ? UserIdentity::decoded(*data) : std::nullopt;
    }

    simulated::SimulatedPlatform platform;
};

} // namespace

TEST_F(WebModels, ignoreAndKeepAnIdentityThatCannotBeRead)
{
    for (const auto& damaged : {simulated::SimulatedUserDefaults::Stored(Data{std::byte('{')}),
             simulated::SimulatedUserDefaults::Stored(std::string("text"))}) {
        platform.userDefaults().plant(key, damaged);
        EXPECT_FALSE(WebModel().user());
        EXPECT_EQ(platform.userDefaults().contents().at(key), damaged);
    }
}

TEST_F(WebModels, storeAndPublishTheUserOnlyWhenItChanges)
{
    const std::pair<std::optional<UserIdentity>, bool> steps[] = {
        {{}, false},
        {UserIdentity{"Zo\u00eb", "Moor"}, true},
        {UserIdentity{"Zoe\u0308", "Moor"}, false},
        {UserIdentity{"Zo\u00eb", "Lund"}, true},
        {{}, true},
    };
    WebModel model;
    int changes = 0;
    const ui::Observation observation([&] { model.user(); }, [&] { ++changes; });
    for (const auto& [identity, isChange] : steps) {
        changes = 0;
        model.setUser(identity);
        EXPECT_EQ(changes, isChange);
        EXPECT_EQ(model.user(), identity);
        EXPECT_EQ(stored(), identity);
    }
}
