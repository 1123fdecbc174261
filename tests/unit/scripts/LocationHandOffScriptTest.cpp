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

TEST(LocationHandOffScript, hostileLabelsArriveUnchanged)
{
    const std::string labels[] = {
        "",
        "\\'; shown.push('injected'); //",
        "\"quoted\" `${shown.push('injected')}` </script>",
        "line\u2028separator\u2029paragraph",
        "Caf\u00e9 \u2014 \u6771\u4eac \U0001F697",
    };
    for (const auto& label : labels) {
        ScriptEngine page(pageWithShowPage);
        page.evaluate(LocationScripts::handOffLocation(StationKind::traffic, {1, 2, label}));
        EXPECT_EQ(page.exception(), "") << label;
        EXPECT_EQ(page.value("window.__vlOverrideLocation.label"), Value(label));
        EXPECT_EQ(page.value("shown"), Value(Value::Array{"traffic"})) << label;
    }
}

TEST(LocationHandOffScript, numbersArriveUnchanged)
{
    for (const double number : {0.0, -179.99999999999997, 5e-05, 1e300}) {
        ScriptEngine page(pageWithShowPage);
        page.evaluate(LocationScripts::handOffLocation(StationKind::gas, {number, -number, "x"}));
        EXPECT_EQ(page.value("window.__vlOverrideLocation.lat"), Value(number));
        EXPECT_EQ(page.value("window.__vlOverrideLocation.lng"), Value(-number));
    }
}

TEST(LocationHandOffScript, aPageWithoutShowPageIsSentToTheRoute)
{
    ScriptEngine page(barePage);
    page.evaluate(LocationScripts::handOffLocation(StationKind::evstations, {1, 2, "x"}));
    EXPECT_EQ(page.value("location.href"), Value("/online#evstations"));
    EXPECT_EQ(page.value("Object.keys(window.__vlOverrideLocation)"),
        Value(Value::Array{"lat", "lng", "label"}));
}

} // namespace velmaro
