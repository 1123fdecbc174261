// Whole stories of a user, told again and again with one more operation of the world failing, and
// with all of them failing from then on.

#include "reliability/UserSession.h"

#include <gtest/gtest.h>
#include <set>

using Settings = UserSession::Settings;
using Stored = Settings::mapped_type;

namespace {

struct Story {
    const char* name;
    std::vector<const char*> steps;
};

const Story stories[] = {
    {"first day", {"load the page", "sign in", "finish the tour", "report the route", "zoom in"}},
    {"tabs",
        {"load the page", "open a tab", "load the page", "report the route", "drag a tab",
            "close the tab", "reopen a tab", "next tab", "restore or not"}},
    {"links", {"load the page", "sign in", "open a link", "notify", "click the notification"}},
    {"files", {"load the page", "download", "download", "drop a file"}},
    {"reports", {"load the page", "save a report", "print a report", "save a report"}},
    {"places", {"load the page", "sign in", "pick a place"}},
    {"search", {"load the page", "find", "find", "close the find bar"}},
    {"goodbye", {"load the page", "sign in", "open a tab", "log out", "sign out", "clear all"}},
};

// Contents of whole files, by the ends of their names.
const std::map<std::string, std::string> wholeFiles = {
    {"pdf", "%P"}, {"vlarchive", "whole archive"}, {"csv", "a,b"}};

Settings startingSettings()
{
    return {
        {"vl.open.routes", std::vector<std::string>{"drives", "fuel"}},
        {"vl.open.routes.active", std::int64_t(1)},
        {"vl.onboarding.shown", true},
    };
}

// One telling, and what there is at its end.
struct Telling {
    explicit Telling(const Story& story, simulated::Faults::Plan plan = {})
    {
        session.platform.faults().follow(std::move(plan));
        session.platform.userDefaults().whenChanged([this] { noteSettings(); });
        noteSettings();
        for (const auto* step : story.steps) {
            session.take(UserSession::step(step));
            flaw = flaw.empty() && !session.flaw().empty()
                ? std::string(step) + ": " + session.flaw()
                : flaw;
        }
        if (flaw.empty())
            flaw = session.leak();
        routes = session.routesToSave();
        settings = session.end();
        files = session.platform.fileManager().files;
        operations = session.platform.faults().operations();
    }

    void noteSettings()
    {
        for (const auto& [key, value] : session.platform.userDefaults().contents())
            values[key].insert(value);
    }

    UserSession session{startingSettings()};
    std::string flaw;
    std::vector<std::string> routes; // in the end
    std::map<std::string, std::set<Stored>> values; // all that were ever stored
    Settings settings; // in the end
    std::map<std::string, std::string> files;
    int operations = 0;
};

// Files and settings are old or new, and never anything between.
void expectWholeThings(const Telling& telling, const Telling& good)
{
    for (const auto& [path, contents] : telling.files) {
        EXPECT_EQ(contents, wholeFiles.at(path.substr(path.rfind('.') + 1))) << path;
    }
    for (const auto& [key, value] : telling.settings) {
        const auto& routes = telling.routes;
        if (key == "vl.open.routes" && value == Stored(routes))
            continue;
        EXPECT_TRUE(good.values.contains(key) && good.values.at(key).contains(value)) << key;
    }
}

// The next run opens, whatever was stored, and can be used.
void expectGoodLaunch(const Telling& telling)
{
    UserSession next(telling.settings);
    next.take(UserSession::step("open a tab"));
    EXPECT_EQ(next.flaw(), "");
}

} // namespace

TEST(Stories, endWellWhateverFails)
{
    int told = 0;
    for (const auto& story : stories) {
        const Telling good(story);
        ASSERT_EQ(good.flaw, "") << story.name;
        const int operations = good.operations;
        EXPECT_GT(operations, 0) << story.name;
        for (int first = 1; first <= operations; ++first) {
            for (const bool goesOn : {false, true}) {
                SCOPED_TRACE(std::string(story.name) + ", operation " + std::to_string(first)
                    + (goesOn ? " and all after it fail" : " fails"));
                const Telling telling(story, [=](int operation) {
                    return goesOn ? operation >= first : operation == first;
                });
                EXPECT_EQ(telling.flaw, "");
                expectWholeThings(telling, good);
                expectGoodLaunch(telling);
                ++told;
            }
        }
    }
    RecordProperty("told", told);
}
