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
    for (const std::string damaged :
        {"{", "null", R"({"firstname":"Ada"})", R"({"firstname":5,"lastname":"Moor"})"}) {
        const auto* bytes = reinterpret_cast<const std::byte*>(damaged.data());
        const Data data(bytes, bytes + damaged.size());
        platform.userDefaults().plant(key, data);
        EXPECT_FALSE(WebModel().user()) << damaged;
        EXPECT_EQ(platform.userDefaults().data(key), data);
    }
}

TEST_F(WebModels, storeAndPublishTheUserOnlyWhenItChanges)
{
    const std::pair<std::optional<UserIdentity>, bool> steps[] = {
        {{}, false},
        {UserIdentity{"Zo\u00eb", "Moor"}, true},
        {UserIdentity{"Zoe\u0308", "Moor"}, false},
        {UserIdentity{"Zo\u00eb", "L\"u\\n\u2028d"}, true},
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
