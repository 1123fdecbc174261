#include "about/AboutView.h"
#include "about/AboutWindowController.h"
#include "service/Service.h"
#include "ui/Stage.h"

#include <ctime>
#include <gtest/gtest.h>

using namespace velmaro;

namespace {

struct AboutTest : Stage, testing::Test { };

std::string thisYear()
{
    const std::time_t now = std::time(nullptr);
    return std::to_string(std::localtime(&now)->tm_year + 1900);
}

} // namespace

TEST_F(AboutTest, thereIsOneWindowAtATime)
{
    platform.addScreen({{100, 40}, {1440, 860}});
    AboutWindowController::shared().show();
    platform.application().window(0).simulateMiniaturize();
    AboutWindowController::shared().show();
    ASSERT_EQ(platform.application().windows().size(), 1u);
    EXPECT_TRUE(platform.application().window(0).isVisible());
    EXPECT_EQ(platform.application().activations, 2);
    EXPECT_EQ(platform.application().window(0).title(), "About Velmaro Online");

    platform.application().window(0).close();
    settle();
    AboutWindowController::shared().show();
    EXPECT_EQ(platform.application().windows().size(), 1u);
}

TEST_F(AboutTest, linksOpenWhereTheyLead)
{
    const auto origin = Service::current().serviceOrigin();
    const std::pair<std::string, std::string> links[] = {{Service::current().serviceHost(), origin},
        {"Help Center", origin + "/help"}, {"Privacy Policy", origin + "/legal/privacy"}};
    auto& content = show(AboutView{}).content();
    for (const auto& [title, address] : links) {
        EXPECT_TRUE(press(content, title)) << title;
        EXPECT_EQ(platform.workspace().opened.back().absoluteString(), address);
    }
}

TEST_F(AboutTest, showsNameVersionYearAndIcon)
{
    const auto plain = show(AboutView{}).content().describe();
    EXPECT_NE(plain.find("symbol car.fill"), std::string::npos);

    platform.mainBundle().infoDictionary = {{"CFBundleName", "Velmaro Beta"},
        {"CFBundleShortVersionString", "2.3"}, {"CFBundleVersion", "41"}};
    platform.application().hasIcon = true;
    auto& content = show(AboutView{}).content();
    const auto texts = textsOf(content);
    EXPECT_TRUE(texts.starts_with("Velmaro Beta Version 2.3 (41) A native")) << texts;
    EXPECT_NE(texts.find(" " + thisYear() + " "), std::string::npos) << texts;
    EXPECT_EQ(content.findAll<ui::ApplicationIconNode>().size(), 1u);
}
