#include "webview/WebViewTest.h"

#include <set>

namespace desktop {

using platform::Value;

class WebViewMessageTest : public WebViewTest {
protected:
    void SetUp() override
    {
        openView();
        ASSERT_TRUE(loads("/"));
    }
};

TEST_F(WebViewMessageTest, valuesOfEveryKindArrive)
{
    const std::pair<const char*, Value> table[] = {
        {"null", nullptr},
        {"false", false},
        {"-2.5e300", -2.5e300},
        {"'\\u00e9 \\u{1F697} \\u2028'", "\u00e9 \U0001F697 \u2028"},
        {"'a\\0b'", std::string("a\0b", 3)},
        {"'a\\ud800b'", "a\uFFFDb"},
        {"10n", nullptr},
        {"[1, 'two', [null]]", Value::Array{1, "two", Value::Array{nullptr}}},
        {"({a: 1, b: {c: 'd'}, '': undefined})",
            Value::Object{{"a", 1}, {"b", Value::Object{{"c", "d"}}}, {"", nullptr}}},
        {"(() => { const o = {a: 1}; o.self = o; o.list = [o]; return o; })()", // inside itself
            Value::Object{{"a", 1}, {"self", nullptr}, {"list", Value::Array{nullptr}}}},
        {"(() => { const o = {x: 1}; return [o, o]; })()", // found twice
            Value::Array{Value::Object{{"x", 1}}, Value::Object{{"x", 1}}}},
    };
    for (const auto& [expression, value] : table)
        EXPECT_EQ(valueOf(expression), value) << expression;
    const auto value = valueOf("({html: '\\u00e9'.repeat(64 << 20)})");
    ASSERT_TRUE(value.member("html"));
    EXPECT_EQ(value.member("html")->string()->size(), 128u << 20);
    EXPECT_TRUE(std::isnan(*valueOf("NaN").number()));
}

TEST_F(WebViewMessageTest, hugeAndTangledObjectsEndInTime)
{
    const std::pair<const char*, std::size_t> table[] = {
        {"(() => { let o = 'core'; for (let i = 0; i < 10000; ++i) o = {o};"
         " return {o, page: 'kept'}; })()",
            2},
        {"({list: {deep: {list: new Array(2e5).fill({})}}, more: {}, page: 'kept'})", 3},
        {"(() => { const o = {}; for (let i = 0; i < 2e5; ++i) o['m' + i] = i;"
         " o.page = 'kept'; return o; })()",
            200'001},
    };
    for (const auto& [message, members] : table) {
        const auto value = valueOf(message);
        ASSERT_TRUE(value.member("page")) << message;
        EXPECT_EQ(*value.member("page"), "kept") << message;
        EXPECT_EQ(value.object()->size(), members) << message;
    }
    valueOf("(() => { let o = {}; for (let i = 0; i < 60; ++i) o = [o, o]; return o; })()");
    EXPECT_EQ(valueOf("new Array(1e6)").array()->size(), 100'000u);
}

TEST_F(WebViewMessageTest, framesOfAllKindsPostAlike)
{
    const auto post = [](const std::string& what) {
        return "<script>webkit.messageHandlers.probe.postMessage('" + what + "')</script>";
    };
    server.pages["/frame"] = {.body = post("frame")};
    server.pages["/frames"] = {.body = "<title>Frames</title>" + post("page")
            + "<iframe src='/frame'></iframe>" + "<iframe srcdoc=\"" + post("srcdoc")
            + "\"></iframe>" + "<iframe sandbox='allow-scripts' srcdoc=\"" + post("sandboxed")
            + "\"></iframe>"};
    ASSERT_TRUE(loads("/frames", "Frames"));
    ASSERT_TRUE(until([&] { return probe->messages.size() == 4; }));
    std::set<std::string> posted;
    for (const auto& message : probe->messages)
        posted.insert(*message.body.string());
    EXPECT_EQ(posted, (std::set<std::string>{"frame", "page", "sandboxed", "srcdoc"}));
}

} // namespace desktop
