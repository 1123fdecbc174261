// The script that hands a place to a page, run by the engine that runs pages.

#include "ScriptEngine.h"
#include "web/LocationScripts.h"

#include <gtest/gtest.h>
#include <limits>

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
        "Current Location",
        "Joe's Diner",
        "\\",
        "\\'",
        "'; shown.push('injected'); '",
        "\\'; shown.push('injected'); //",
        "\"quoted\" `${shown.push('injected')}` </script>",
        "line\u2028separator\u2029paragraph",
        "tab\tbell\a",
        "Caf\u00e9 \u2014 \u6771\u4eac \U0001F697",
        "\\u0027\\x27\\n",
    };
    for (const auto& label : labels) {
        ScriptEngine page(pageWithShowPage);
        page.evaluate(LocationScripts::handOffLocation(StationKind::traffic, {1, 2, label}));
        EXPECT_EQ(page.exception(), "") << label;
        EXPECT_EQ(page.value("window.__vlOverrideLocation.label"), Value(label));
        EXPECT_EQ(page.value("shown"), Value(Value::Array{"traffic"})) << label;
    }
}

TEST(LocationHandOffScript, aLabelWithALineBreakDoesNothingToThePage)
{
    for (const auto* label : {"two\nlines", "two\rlines", "'\n; shown.push('injected'); '"}) {
        ScriptEngine page(pageWithShowPage);
        page.evaluate(LocationScripts::handOffLocation(StationKind::gas, {1, 2, label}));
        EXPECT_EQ(page.exception(), "SyntaxError");
        EXPECT_EQ(page.value("typeof window.__vlOverrideLocation"), Value("undefined"));
        EXPECT_EQ(page.value("shown"), Value(Value::Array{}));
    }
}

TEST(LocationHandOffScript, numbersArriveUnchanged)
{
    for (const double number : {0.0, 8.0, -179.99999999999997, 48.858844, 0.1 + 0.2, 5e-05,
             -1.2345e-200, std::numeric_limits<double>::denorm_min(), 1e300}) {
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
