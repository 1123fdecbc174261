#include "web/UserScripts.h"
#include "ScriptEngine.h"

#include <gtest/gtest.h>

using platform::Value;
namespace UserScripts = velmaro::UserScripts;

namespace {

// A page whose clock is turned by `tick()`.
constexpr auto page = R"js(
    var posts = [];
    var ticks = [];
    function setInterval(action, milliseconds) { ticks.push([action, milliseconds]); }
    function tick() { ticks.forEach(([action]) => action()); }
    const authBridge = { postMessage(body) { posts.push(body); } };
    window.webkit = { messageHandlers: { authBridge } };
)js";

Value names(const char* first, const char* last)
{
    return Value::Object{{"firstname", first}, {"lastname", last}};
}

} // namespace

TEST(UserScripts, theSignInWatcherPostsOnceAndThenOnlyChanges)
{
    ScriptEngine engine(page);
    engine.evaluate(UserScripts::signInWatcher);
    engine.evaluate(UserScripts::signInWatcher); // does nothing more
    EXPECT_EQ(engine.value("posts"), Value(Value::Array{nullptr}));
    EXPECT_EQ(
        engine.value("ticks.map(([, milliseconds]) => milliseconds)"), Value(Value::Array{1000}));

    const std::pair<const char*, std::optional<Value>> steps[] = {
        {"currentUser = { firstname: 'Ada', lastname: 'Moor', other: 1 }", names("Ada", "Moor")},
        {"currentUser = { firstname: 'Ada', lastname: 'Moor' }", {}},
        {"currentUser.lastname = 'Lund'", names("Ada", "Lund")},
        {"currentUser = {}", names("", "")},
        {"Object.defineProperty(currentUser, 'firstname', { get() { throw 1; } })", {}},
        {"currentUser = null", Value()},
        {"currentUser = undefined", {}},
        {"window.webkit = undefined; currentUser = { firstname: 'Eve' }", {}},
    };
    for (const auto& [change, posted] : steps) {
        engine.evaluate("posts = [];" + std::string(change));
        engine.evaluate("tick()");
        EXPECT_EQ(engine.exception(), "") << change;
        EXPECT_EQ(engine.value("posts"), Value(posted ? Value::Array{*posted} : Value::Array{}))
            << change;
    }
}
