#pragma once

#include "RunningApp.h"

#include <random>

// The application in use: what its user, its pages and the desktop may do, in any order. Whatever
// can fail goes as the platform's faults have it, and the user goes on after it.
class UserSession : public RunningApp {
public:
    struct Step {
        const char* name;
        void (*take)(UserSession&);
    };

    // All that can happen, but for the end.
    static const std::vector<Step>& steps();
    static const Step& step(const std::string& name);

    // Launches with what an earlier run has stored. `seed` decides where a step has a choice.
    explicit UserSession(Settings stored = {}, unsigned seed = 0);

    void take(const Step& step);

    // The user quits. Returns what is stored then.
    Settings end();

    bool hasEnded() { return platform.application().hasTerminated(); }

    // What is not as it must be at any moment; empty when all is well.
    std::string flaw();

    // Likewise, once all that fades or waits has had its time: what has gone must have gone.
    std::string leak();

    // The routes that the next launch is to open; none for a single tab on the start page.
    std::vector<std::string> routesToSave() const;

    // What steps are made of. The page in front is null while it has not been built.
    std::shared_ptr<simulated::SimulatedWebView> page() const;
    bool fails() { return platform.faults().strike(); }
    int choose(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool press(const std::string& help); // a button in the main window; false when there is none
    void post(const std::string& bridge, platform::Value body);
    void answerQuestions(); // of all kinds, as a user does who wants to go on

private:
    void noteTabs();

    std::mt19937 random_;
    std::vector<std::weak_ptr<velmaro::WebModel>> tabsSeen_;
    std::size_t questionsAnswered_ = 0;
};
