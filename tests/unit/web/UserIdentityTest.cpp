#include "web/UserIdentity.h"

#include <gtest/gtest.h>

using platform::Data;
using velmaro::UserIdentity;

namespace {

Data dataOf(std::string_view text)
{
    const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
    return Data(bytes, bytes + text.size());
}

} // namespace

TEST(UserIdentity, needsBothNamesAsTexts)
{
    const std::optional<UserIdentity> none;
    const std::pair<const char*, std::optional<UserIdentity>> cases[] = {
        {R"( { "lastname" : "", "other": [], "firstname" : "Zo\u00eb" } )",
            UserIdentity{"Zo\u00eb", ""}},
        {R"({"firstname":"Ada"})", none},
        {R"({"firstname":5,"lastname":"Moor"})", none},
        {"null", none},
        {"", none},
    };
    for (const auto& [json, identity] : cases)
        EXPECT_EQ(UserIdentity::decoded(dataOf(json)), identity) << json;
}

TEST(UserIdentity, comesBackFromItsStoredForm)
{
    const UserIdentity identity{"A\"d\\a", "\n\u2028\U0001F697"};
    EXPECT_EQ(UserIdentity::decoded(*identity.encoded()), identity);
    EXPECT_FALSE((UserIdentity{"\xff", ""}.encoded()));
}
