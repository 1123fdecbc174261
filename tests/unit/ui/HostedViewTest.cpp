#include "Stage.h"

#include <gtest/gtest.h>

using namespace ui;

namespace {

struct Log {
    int made = 0;
    int updated = 0;
    std::string gone;
    std::weak_ptr<platform::NSView> view;
};

struct LoggedView final : platform::NSView, simulated::SimulatedPlace {
    explicit LoggedView(std::shared_ptr<Log> log)
        : log(std::move(log))
    {
    }
    ~LoggedView() override { log->gone = "view"; }
    platform::NSWindow* window() const override { return windowOfHost(); }

    std::shared_ptr<Log> log;
};

struct Host {
    struct Coordinator { };
    using NSViewType = LoggedView;

    std::shared_ptr<Log> log;

    std::shared_ptr<Coordinator> makeCoordinator() const { return std::make_shared<Coordinator>(); }
    std::shared_ptr<LoggedView> makeNSView(Coordinator&) const
    {
        ++log->made;
        auto view = std::make_shared<LoggedView>(log);
        log->view = view;
        return view;
    }
    void updateNSView(LoggedView&, Coordinator&) const { ++log->updated; }
};

struct HostedViews : ChangingStage, testing::Test {
    std::shared_ptr<Log> log = std::make_shared<Log>();
};

} // namespace

TEST_F(HostedViews, areKeptWhenHiddenAndUpdatedAtEveryRedraw)
{
    for (const double outer : {1, 0, 1})
        change(HStack{{}, View(Host{log}).opacity(0.5)}.opacity(outer));
    EXPECT_EQ(log->made, 1);
    EXPECT_EQ(log->updated, 2);
    EXPECT_EQ(log->view.lock()->window(), &window);
    EXPECT_EQ(log->gone, "");
}

TEST_F(HostedViews, leaveOnlyAfterTheTransitionAroundThem)
{
    change(ZStack{{}, View(Host{log}).transition({.fades = true, .duration = 0.2})});
    change(ZStack{{}});
    EXPECT_EQ(log->gone, "");
    platform.mainQueue().advance(0.2);
    EXPECT_EQ(log->gone, "view");
}
