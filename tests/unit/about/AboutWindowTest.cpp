#include "about/AboutLinkButton.h"
#include "about/AboutView.h"
#include "about/AboutWindowController.h"
#include "service/Service.h"
#include "ui/Stage.h"

#include <ctime>
#include <gtest/gtest.h>

using namespace velmaro;

namespace {

struct AboutTest : Stage, testing::Test {
    simulated::SimulatedWindow& about()
    {
        auto& application = platform.application();
        return application.window(application.windows().size() - 1);
    }

    void click(const std::string& title) { EXPECT_TRUE(press(about().content(), title)) << title; }
};

std::string thisYear()
{
    const std::time_t now = std::time(nullptr);
    char text[8] = {};
    std::strftime(text, sizeof text, "%Y", std::localtime(&now));
    return text;
}

} // namespace

TEST_F(AboutTest, thereIsOneWindowAtATime)
{
    platform.addScreen({{100, 40}, {1440, 860}});
    auto& controller = AboutWindowController::shared();
    controller.show();
    about().simulateMiniaturize();
    controller.show();
    ASSERT_EQ(platform.application().windows().size(), 1u);
    EXPECT_TRUE(about().isVisible());
    EXPECT_EQ(platform.application().activations, 2);
    EXPECT_EQ(platform.application().keyWindow().get(), &about());
    EXPECT_EQ(about().title(), "About Velmaro Online");
    EXPECT_EQ(about().frame(), (platform::NSRect{{610, 210}, {420, 520}}));

    platform.mainBundle().infoDictionary["CFBundleVersion"] = "7";
    about().close();
    settle();
    EXPECT_TRUE(platform.application().windows().empty());
    controller.show();
    EXPECT_EQ(platform.application().windows().size(), 1u);
    EXPECT_TRUE(about().content().showsText("Version 1.0 (7)"));
}

TEST_F(AboutTest, showsNameVersionAndYear)
{
    struct Case {
        std::map<std::string, std::string> bundle;
        std::string name;
        std::string version;
    };
    const Case cases[] = {
        {{}, "Velmaro Online", "Version 1.0 (1)"},
        {{{"CFBundleShortVersionString", "2.3"}, {"CFBundleVersion", "41"}}, "Velmaro Online",
            "Version 2.3 (41)"},
        {{{"CFBundleName", "Velmaro Beta"}, {"CFBundleVersion", "9"}}, "Velmaro Beta",
            "Version 1.0 (9)"},
    };
    for (const auto& [bundle, name, version] : cases) {
        platform.mainBundle().infoDictionary = bundle;
        const auto texts = textsOf(show(AboutView{}).content());
        EXPECT_TRUE(
            texts.starts_with(std::string(name).append(" ").append(version).append(" A native")))
            << texts;
        EXPECT_NE(texts.find(" " + thisYear() + " "), std::string::npos) << texts;
    }
}

TEST_F(AboutTest, theCarStandsInForAMissingIcon)
{
    for (const bool hasIcon : {false, true}) {
        platform.application().hasIcon = hasIcon;
        auto& window = show(AboutView{});
        EXPECT_EQ(window.content().findAll<ui::ApplicationIconNode>().size(), hasIcon ? 1u : 0u);
        EXPECT_EQ(window.content().describe().find("symbol car.fill size 56 semibold rgb 1 1 1")
                != std::string::npos,
            !hasIcon);
    }
}

TEST_F(AboutTest, linksOpenWhereTheyLead)
{
    const auto& service = Service::current();
    show(AboutView{});
    click(service.serviceHost());
    click("Help Center");
    click("Privacy Policy");
    ASSERT_EQ(platform.workspace().opened.size(), 3u);
    EXPECT_EQ(platform.workspace().opened[0].absoluteString(), service.serviceOrigin());
    EXPECT_EQ(platform.workspace().opened[1].absoluteString(), service.serviceOrigin() + "/help");
    EXPECT_EQ(platform.workspace().opened[2].absoluteString(),
        service.serviceOrigin() + "/legal/privacy");

    show(AboutLinkButton{"Broken", "not an address"});
    click("Broken");
    EXPECT_EQ(platform.workspace().opened.size(), 3u);
}
