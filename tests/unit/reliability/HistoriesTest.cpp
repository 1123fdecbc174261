// Long histories of everything that can happen, in any order, while every tenth operation of the
// world fails. VELMARO_HISTORIES tells how many, VELMARO_HISTORY repeats the one with that seed.

#include "reliability/UserSession.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

namespace {

using Routes = std::vector<std::string>;

constexpr int usualCount = 40;
constexpr int stepsInHistory = 120;

// What has happened, for the report of a flaw.
struct History {
    explicit History(unsigned seed)
        : seed(seed)
        , random(seed)
    {
    }

    // Lives through one history over as many runs of the program as it takes. False at a flaw.
    bool happens()
    {
        UserSession::Settings stored;
        for (int run = 0; taken < stepsInHistory; ++run) {
            UserSession session(stored, static_cast<unsigned>(random()));
            if (!isAsSaved(session))
                return false;
            std::mt19937 chance(static_cast<unsigned>(random()));
            session.platform.faults().follow([&](int) { return chance() % 10 == 0; });
            while (taken < stepsInHistory && !session.hasEnded()) {
                if (random() % 50 == 0)
                    break;
                if (!takesStep(session))
                    return false;
            }
            session.platform.faults().follow({});
            if (!session.hasEnded()) {
                if (const auto leak = session.leak(); !leak.empty())
                    return fails(leak);
                saved = {session.routesToSave()};
            }
            stored = session.end();
        }
        return true;
    }

    bool takesStep(UserSession& session)
    {
        const auto& steps = UserSession::steps();
        const auto& step = steps[random() % steps.size()];
        story += std::string("\n  ") + step.name;
        ++taken;
        // Saved by a step that ends the program, unless that write fails; then what was there
        // before stays, or nothing after all data were cleared.
        saved = {session.routesToSave(), restored, {}};
        session.take(step);
        const auto flaw = session.flaw();
        return flaw.empty() || fails(flaw);
    }

    bool isAsSaved(UserSession& session)
    {
        story += "\n start";
        restored = session.routesToSave();
        return saved.contains(restored) || fails("other tabs came back than were saved");
    }

    bool fails(const std::string& flaw)
    {
        ADD_FAILURE() << flaw << "; VELMARO_HISTORY=" << seed << " repeats it:" << story;
        return false;
    }

    const unsigned seed;
    std::mt19937 random;
    int taken = 0;
    std::string story;
    Routes restored;
    std::set<Routes> saved = {{}}; // one of which the next run is to open
};

} // namespace

TEST(Histories, leaveEverythingInOrderAfterEachStep)
{
    if (const char* seed = std::getenv("VELMARO_HISTORY")) {
        History(static_cast<unsigned>(std::atoi(seed))).happens();
        return;
    }
    const char* count = std::getenv("VELMARO_HISTORIES");
    const int histories = count ? std::atoi(count) : usualCount;
    for (int seed = 1; seed <= histories; ++seed) {
        if (!History(static_cast<unsigned>(seed)).happens())
            return;
    }
}
