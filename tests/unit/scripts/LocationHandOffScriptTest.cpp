// The script that hands a place to a page, run by the engine that runs pages.

#include "ScriptEngine.h"
#include "web/LocationScripts.h"

#include <gtest/gtest.h>

namespace velmaro {

namespace {

using platform::Value;

constexpr auto barePage = "var location = { href: '' }; var shown = [];";
constexpr auto pageWithShowPage = "var location = { href: '' }; var shown = [];"
                                  "function showPage(...route) { shown.push(...route); }";

} // namespace

TEST(LocationHandOffScript, hostileLabelsAndNumbersArriveUnchanged)
{
    const std::pair<std::string, double> places[] = {
        {"", 0},
        {"\\'; shown.push('injected'); //", -179.99999999999997},
        {"\"quoted\" `${shown.push('injected')}` </script>", 5e-05},
        {"line\u2028separator\u2029paragraph", 1e300},
        {"Caf\u00e9 \u2014 \u6771\u4eac \U0001F697", 1},
    };
    for (const auto& [label, number] : places) {
        ScriptEngine page(pageWithShowPage);
        page.evaluate(
            LocationScripts::handOffLocation(StationKind::traffic, {number, -number, label}));
        EXPECT_EQ(page.exception(), "") << label;
        EXPECT_EQ(page.value("window.__vlOverrideLocation"),
            Value(Value::Object{{"lat", number}, {"lng", -number}, {"label", label}}));
        EXPECT_EQ(page.value("shown"), Value(Value::Array{"traffic"})) << label;
    }
}

TEST(LocationHandOffScript, aPageWithoutShowPageIsSentToTheRoute)
{
    ScriptEngine page(barePage);
    page.evaluate(LocationScripts::handOffLocation(StationKind::evstations, {1, 2, "x"}));
    EXPECT_EQ(page.value("location.href"), Value("/online#evstations"));
}

} // namespace velmaro
