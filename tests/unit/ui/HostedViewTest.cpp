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
    ~LoggedView() override { log->gone += "view "; }
    platform::NSWindow* window() const override { return windowOfHost(); }

    std::shared_ptr<Log> log;
};

struct Host {
    struct Coordinator {
        explicit Coordinator(std::shared_ptr<Log> log)
            : log(std::move(log))
        {
        }
        ~Coordinator() { log->gone += "coordinator"; }
        std::shared_ptr<Log> log;
    };
    using NSViewType = LoggedView;

    std::shared_ptr<Log> log;

    std::shared_ptr<Coordinator> makeCoordinator() const
    {
        return std::make_shared<Coordinator>(log);
    }
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
    std::shared_ptr<Log> otherLog = std::make_shared<Log>();
};

} // namespace

TEST_F(HostedViews, areMadeWithTheirPlaceAndKeptWhenHidden)
{
    const auto hosted = [this](double outer, double inner) {
        return HStack{{}, View(Host{log}).opacity(inner)}.opacity(outer);
    };
    change(hosted(1, 1));
    EXPECT_EQ(log->made, 1);
    change(hosted(0, 1));
    EXPECT_NE(window.content().describe().find("hosted hidden"), std::string::npos);
    change(hosted(1, 0.5));
    EXPECT_EQ(log->made, 1);
    EXPECT_NE(window.content().describe().find("hosted\n"), std::string::npos);
    EXPECT_EQ(log->gone, "");
}

TEST_F(HostedViews, areUpdatedAtEveryRedrawAndStandInTheWindowUntilTheirPlaceGoes)
{
    change(VStack{{}, Host{log}});
    EXPECT_EQ(log->updated, 0);
    change(VStack{{}, Host{log}});
    change(VStack{{}, Host{log}});
    EXPECT_EQ(log->made, 1);
    EXPECT_EQ(log->updated, 2);
    const auto view = log->view.lock();
    EXPECT_EQ(view->window(), &window);
    change(View());
    EXPECT_EQ(view->window(), nullptr);
}

TEST_F(HostedViews, stayMountedWhenTheirSiblingsComeGoAndMove)
{
    const auto layers = [this](const std::vector<std::string>& keys) {
        return ZStack{{},
            ForEach(
                keys, [](const auto& key) { return key; },
                [this](const auto& key) {
                    return View(Host{key == "a" ? log : otherLog}).opacity(key == "a" ? 1 : 0);
                })};
    };
    change(layers({"a", "b"}));
    const auto* view = log->view.lock().get();
    for (const auto& keys : std::vector<std::vector<std::string>>{
             {"b", "a"}, {"a"}, {"c", "d", "a", "b"}, {"b", "a"}}) {
        change(layers(keys));
        EXPECT_EQ(log->view.lock().get(), view);
        EXPECT_EQ(log->view.lock()->window(), &window);
    }
    EXPECT_EQ(log->made, 1);
}

TEST_F(HostedViews, leaveOnlyAfterTheTransitionAroundThem)
{
    change(ZStack{{}, View(Host{log}).transition({.fades = true, .duration = 0.2})});
    change(ZStack{{}});
    EXPECT_EQ(log->gone, "");
    platform.mainQueue().advance(0.2);
    EXPECT_EQ(log->gone, "view coordinator");
}
