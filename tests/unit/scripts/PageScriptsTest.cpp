#include "web/PageScripts.h"
#include "ScriptEngine.h"

#include <gtest/gtest.h>
#include <random>

using platform::Value;
namespace PageScripts = velmaro::PageScripts;

namespace {

using Call = Value::Array; // a function's name and what it was given

// What `calls` holds in a page whose functions were called like this.
Value noted(std::initializer_list<Call> calls)
{
    Value::Array all;
    for (const auto& call : calls)
        all.push_back(Value(call));
    return all;
}

// Notes every call, and notices when anything else than the page's own functions was reached.
constexpr auto pageWithShowPage = R"js(
    var calls = [];
    var intruded = 0;
    var location = { href: '' };
    function showPage(...route) { calls.push(['showPage', ...route]); }
    function viewDriveDetail(...id) { calls.push(['viewDriveDetail', ...id]); }
    function addFuel(...none) { calls.push(['addFuel', ...none]); throw new Error('swallowed'); }
)js";

constexpr auto barePage = R"js(
    var calls = [];
    var intruded = 0;
    var location = { href: '' };
    function viewDriveDetail(...id) { calls.push(['viewDriveDetail', ...id]); }
)js";

// Pieces that would end a literal, a statement or a comment, or run code where one of them did.
const std::vector<std::string> hostilePieces = {"'", "\"", "`", "\\", "\n", "\r", "\u2028", ");",
    "intruded=1", ";intruded=1;", "//", "/*", "*/", "${intruded=1}", "}", "{", "#", "+", "x27",
    "u{27}", "<!--", "-->", "</script>", "fuel", "\u00e9", "\\x27", "-intruded++-"};

std::string hostileText(std::mt19937& engine)
{
    std::string text;
    for (auto count = engine() % 9; count > 0; --count)
        text += hostilePieces[engine() % hostilePieces.size()];
    return text;
}

bool hasLineBreak(const std::string& text)
{
    return text.find_first_of("\n\r") != text.npos;
}

// Clears what the page has noted.
constexpr auto forget = "calls = []; intruded = 0; location = { href: '' };";

} // namespace

TEST(PageScripts, showARouteThroughThePagesOwnFunctionElseByItsAddress)
{
    const std::pair<const char*, const char*> routes[] = {
        {"drives", "drives"}, {"o'brien", "obrien"}, {"\u00e9t\u00e9\"", "\u00e9t\u00e9\""}};
    for (const auto& [route, shown] : routes) {
        ScriptEngine page(pageWithShowPage);
        page.evaluate(PageScripts::showRoute(route));
        EXPECT_EQ(page.value("calls"), noted({Call{"showPage", shown}}));
        EXPECT_EQ(page.value("location.href"), Value(""));

        ScriptEngine bare(barePage);
        bare.evaluate(PageScripts::showRoute(route));
        EXPECT_EQ(bare.value("location.href"), Value(std::string("/online#") + shown));

        page.evaluate(forget);
        page.evaluate(PageScripts::showRouteAndCall(route, "add'Fuel'"));
        EXPECT_EQ(page.exception(), "");
        EXPECT_EQ(page.value("calls"), noted({Call{"showPage", shown}, Call{"addFuel"}}));
    }
}

TEST(PageScripts, noArgumentBreaksOutOfItsString)
{
    ScriptEngine page(pageWithShowPage);
    std::mt19937 engine(20'240'607);
    int arrived = 0;
    for (int i = 0; i < 1000; ++i) {
        const auto argument = hostileText(engine);
        page.evaluate(forget);
        page.evaluate(PageScripts::showRouteAndCall("drives", "viewDriveDetail", argument));

        // A line break ends the literal too early: the engine refuses the whole script.
        const auto expected = hasLineBreak(argument)
            ? noted({})
            : noted({Call{"showPage", "drives"}, Call{"viewDriveDetail", argument}});
        ASSERT_EQ(page.value("calls"), expected) << argument;
        ASSERT_EQ(page.exception(), hasLineBreak(argument) ? "SyntaxError" : "") << argument;
        ASSERT_EQ(page.value("intruded"), Value(0)) << argument;
        arrived += !hasLineBreak(argument);
    }
    EXPECT_GT(arrived, 200);
}

TEST(PageScripts, noRouteRunsAnythingButThePagesOwnFunction)
{
    std::mt19937 engine(20'240'607);
    int shown = 0;
    for (const auto* functions : {pageWithShowPage, barePage}) {
        ScriptEngine page(functions);
        for (int i = 0; i < 1000; ++i) {
            page.evaluate(forget);
            page.evaluate(PageScripts::showRouteAndCall(hostileText(engine), "noFunction", "a"));
            ASSERT_EQ(page.value("intruded"), Value(0));
            const bool hasRun = page.exception().empty();
            ASSERT_EQ(page.exception(), hasRun ? "" : "SyntaxError");
            ASSERT_EQ(page.value("calls.length + location.href.startsWith('/online#')"),
                Value(hasRun ? 1 : 0));
            shown += hasRun;
        }
    }
    EXPECT_GT(shown, 200);
}

TEST(PageScripts, reloadOnThePageThatIsShown)
{
    struct Case {
        std::string currentPage;
        std::string hash;
        std::string hashAfter;
    };
    const Case cases[] = {
        {"var _currentPage = 'fuel';", "#drives", "fuel"},
        {"var _currentPage = 'fuel';", "#fuel", "#fuel"},
        {"var _currentPage = '';", "#drives", "#drives"},
        {"", "#drives", "#drives"},
        {"Object.defineProperty(globalThis, '_currentPage', { get() { throw 1; } });", "#drives",
            "#drives"},
    };
    for (const auto& [currentPage, hash, hashAfter] : cases) {
        ScriptEngine page("var reloads = 0; var location = { hash: '" + hash
            + "', reload() { ++reloads; } };" + currentPage);
        page.evaluate(PageScripts::reloadKeepingRoute());
        EXPECT_EQ(page.value("reloads"), Value(1)) << currentPage;
        EXPECT_EQ(page.value("location.hash"), Value(hashAfter)) << currentPage;
    }
}

TEST(PageScripts, anImportedTextArrivesUnchanged)
{
    const std::string texts[] = {"", "a,\"b\"\r\n\\", "</script>", "\u2028\u2029\u0085", "Zo\u00eb",
        "\U0001F697", std::string("a\0b\x01\x1f\x7f", 6), "\ufeff", "it's ${1} `"};
    for (const auto& text : texts) {
        ScriptEngine page("var calls = [];"
                          "function impLoadTextFromNative(...given) { calls.push(given); }"
                          "function showPage(...route) { calls.push(route); }");
        page.evaluate(PageScripts::importText(text, text));
        EXPECT_EQ(page.value("calls"), noted({{Value(text), Value(text)}}));
    }
}

TEST(PageScripts, aFileForAnotherPageOnlyShowsTheImportPage)
{
    constexpr auto notes = "var calls = [];"
                           "function alert(...said) { calls.push(said); }";
    ScriptEngine page(std::string(notes) + "function showPage(...route) { calls.push(route); }");
    page.evaluate(PageScripts::importText("a.csv", "text"));
    EXPECT_EQ(page.value("calls"),
        noted({{"import"},
            {"Open the Import page, pick what you're importing, then drop the file again."}}));

    ScriptEngine bare(notes);
    bare.evaluate(PageScripts::importText("a.csv", "\xff"));
    EXPECT_EQ(bare.value("calls"), noted({}));
    EXPECT_EQ(bare.exception(), "");
}
