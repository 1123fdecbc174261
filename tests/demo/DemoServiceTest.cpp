#include "service/DemoService.h"
#include "data/Gazetteer.h"
#include "service/ImportedTable.h"

#include <gtest/gtest.h>

namespace demo {

namespace {

using nlohmann::json;

class DemoServiceTest : public testing::Test {
protected:
    Answer get(const std::string& path, const std::string& query = {},
        std::map<std::string, std::string> headers = {})
    {
        return service_.answer({
            .method = "GET",
            .host = "velmaro.localhost",
            .port = 8443,
            .path = path,
            .query = query,
            .headers = std::move(headers),
        });
    }

    Answer post(const std::string& path, const json& body)
    {
        return service_.answer({
            .method = "POST",
            .host = "velmaro.localhost",
            .port = 8443,
            .path = path,
            .query = {},
            .body = body.dump(),
        });
    }

    static std::string header(const Answer& answer, std::string_view wanted)
    {
        for (const auto& [name, value] : answer.headers) {
            if (name == wanted)
                return value;
        }
        return {};
    }

    /// What the page of a freshly signed-in user holds as its current user.
    json userInPageAfterSigningIn(const json& names)
    {
        const std::string cookie = header(post("/online/api/sign-in", names), "Set-Cookie");
        const std::string page =
            get("/online", {}, {{"cookie", "other=1; " + cookie.substr(0, cookie.find(';'))}}).body;
        constexpr std::string_view start = "var currentUser = ";
        const auto from = page.find(start) + start.size();
        return json::parse(page.substr(from, page.find(";\n", from) - from));
    }

private:
    RequestLog log_;
    DemoService service_{log_, false};
};

TEST_F(DemoServiceTest, anyNameThatSignsInComesBackInThePage)
{
    const json users[] = {
        {{"firstname", "Robin"}, {"lastname", "Alder"}},
        {{"firstname", "</script><!--"}, {"lastname", "'\"\\"}},
        {{"firstname", "Zoë.;, =%41"}, {"lastname", "\u2028"}},
        {{"firstname", ""}, {"lastname", "Only"}},
    };
    for (const auto& user : users)
        EXPECT_EQ(userInPageAfterSigningIn(user), user);
}

TEST_F(DemoServiceTest, aKnownTagGetsNoBodyAndAnotherUserGetsAnotherTag)
{
    const Answer first = get("/online");
    const std::string tag = header(first, "ETag");
    ASSERT_EQ(first.status, 200u);

    const Answer again = get("/online", {}, {{"if-none-match", tag}});
    EXPECT_EQ(again.status, 304u);
    EXPECT_TRUE(again.body.empty());

    const Answer signedIn =
        get("/online", {}, {{"if-none-match", tag}, {"cookie", "velmaro_session=Robin.Alder"}});
    EXPECT_EQ(signedIn.status, 200u);
    EXPECT_NE(header(signedIn, "ETag"), tag);

    const Answer compressed =
        get("/online", {}, {{"if-none-match", tag}, {"accept-encoding", "br, gzip"}});
    EXPECT_EQ(compressed.status, 200u);
    EXPECT_LT(compressed.body.size(), first.body.size() / 2);
}

TEST_F(DemoServiceTest, recordsThatDoNotFitAreRefusedAndChangeNothing)
{
    const json unfit[] = {
        {{"vehicle", "Pebble"}},
        {{"vehicle", "Pebble"}, {"litres", "many"}, {"total", 1}},
        {{"vehicle", "Pebble"}, {"litres", -1}, {"total", 1}},
        {{"vehicle", json::array()}, {"litres", 1}, {"total", 1}},
        {{"vehicle", "Pebble"}, {"litres", 1}, {"total", 1}, {"date", "2026-13-01"}},
    };
    const json before = json::parse(get("/online/api/fuel").body);
    for (const auto& record : unfit)
        EXPECT_EQ(post("/online/api/fuel", record).status, 422u) << record;
    EXPECT_EQ(json::parse(get("/online/api/fuel").body), before);

    const Answer added =
        post("/online/api/fuel", {{"vehicle", "Pebble"}, {"litres", "31.5"}, {"total", 54}});
    EXPECT_EQ(added.status, 201u);
    EXPECT_EQ(json::parse(added.body)["litres"], 31.5);
}

TEST_F(DemoServiceTest, theGeocoderFindsPlacesByTheBeginningsOfTheirWords)
{
    const auto firstName = [&](const std::string& query) -> std::string {
        const json features = json::parse(get("/api", query).body)["features"];
        if (features.empty())
            return "";
        const json& properties = features[0]["properties"];
        return properties.contains("name") ? properties["name"].get<std::string>()
                                           : properties["street"].get<std::string>() + " "
                + properties["housenumber"].get<std::string>();
    };
    const std::pair<const char*, const char*> cases[] = {
        {"q=Lighth+mus", "Lighthouse Museum"},
        {"q=cafe+morrow", "Café Morrow"},
        {"q=QUAYSIDE+12b", "Quayside 12b"},
        {"q=joe%27s", "Joe's Diner"},
        {"q=nothing+of+the+kind", ""},
    };
    for (const auto& [query, name] : cases)
        EXPECT_EQ(firstName(query), name) << query;
    for (const Place& place : placesOfValue("station")) {
        const std::string here = "&lat=" + std::to_string(place.latitude())
            + "&lon=" + std::to_string(place.longitude());
        EXPECT_EQ(firstName("q=station&limit=1" + here), place.name);
    }
    for (const char* query : {"", "q=", "q=%20", "q=%FF"})
        EXPECT_EQ(get("/api", query).status, 400u) << query;
}

TEST(ImportedTableTest, cellsMayBeQuotedAndRowsMayBeShort)
{
    const std::pair<const char*, json> cases[] = {
        {"a,b\n1,2\r\n3,4", {{{"a", "1"}, {"b", "2"}}, {{"a", "3"}, {"b", "4"}}}},
        {"\xEF\xBB\xBF"
         "a;b\n1,5;2\n",
            {{{"a", "1,5"}, {"b", "2"}}}},
        {"a,b\n\"x,\"\"y\"\"\n\",\n", {{{"a", "x,\"y\"\n"}, {"b", ""}}}},
        {"a,b\n1\n\n1,2,3", {{{"a", "1"}}, {{"a", "1"}, {"b", "2"}}}},
        {"a\n\"never closed", {{{"a", "never closed"}}}},
        {"", json::array()},
    };
    for (const auto& [text, rows] : cases)
        EXPECT_EQ(json(importedTable(text, 10)), rows) << text;
}

} // namespace

} // namespace demo
