#include "service/DemoService.h"
#include "service/ImportedTable.h"

#include <gtest/gtest.h>

namespace demo {

namespace {

using nlohmann::json;

class DemoServiceTest : public testing::Test {
protected:
    Answer ask(const char* method, const std::string& path, const std::string& body = {},
        std::map<std::string, std::string> headers = {})
    {
        return service_.answer({
            .method = method,
            .host = "velmaro.localhost",
            .port = 8443,
            .path = path,
            .query = {},
            .headers = std::move(headers),
            .body = body,
        });
    }

private:
    RequestLog log_;
    DemoService service_{log_, false};
};

TEST_F(DemoServiceTest, anyNameThatSignsInComesBackInThePage)
{
    const json user = {{"firstname", "</script><!-- Zo\u00eb.;, =%41"}, {"lastname", "'\"\\"}};
    std::string cookie;
    for (const auto& [name, value] : ask("POST", "/online/api/sign-in", user.dump()).headers) {
        if (name == "Set-Cookie")
            cookie = value.substr(0, value.find(';'));
    }
    const auto page = ask("GET", "/online", {}, {{"cookie", "other=1; " + cookie}}).body;
    const auto start = page.find("var currentUser = ") + 18;
    EXPECT_EQ(json::parse(page.substr(start, page.find(";\n", start) - start)), user);
}

TEST_F(DemoServiceTest, recordsThatDoNotFitAreRefusedAndChangeNothing)
{
    const auto before = ask("GET", "/online/api/fuel").body;
    for (const json& record :
        {json{{"vehicle", "Pebble"}}, json{{"vehicle", "Pebble"}, {"litres", -1}, {"total", 1}}})
        EXPECT_EQ(ask("POST", "/online/api/fuel", record.dump()).status, 422u) << record;
    EXPECT_EQ(ask("GET", "/online/api/fuel").body, before);

    const json record = {{"vehicle", "Pebble"}, {"litres", "31.5"}, {"total", 54}};
    EXPECT_EQ(json::parse(ask("POST", "/online/api/fuel", record.dump()).body)["litres"], 31.5);
}

TEST(ImportedTableTest, cellsMayBeQuotedAndRowsMayBeShort)
{
    const std::pair<const char*, json> cases[] = {
        {"\xEF\xBB\xBF"
         "a;b\n1,5;2\r\n",
            {{{"a", "1,5"}, {"b", "2"}}}},
        {"a,b\n\"x,\"\"y\"\"\n\",\n", {{{"a", "x,\"y\"\n"}, {"b", ""}}}},
        {"a,b\n1\n\n1,2,3", {{{"a", "1"}}, {{"a", "1"}, {"b", "2"}}}},
    };
    for (const auto& [text, rows] : cases)
        EXPECT_EQ(json(importedTable(text, 10)), rows) << text;
}

} // namespace

} // namespace demo
