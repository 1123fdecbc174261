#include "platform/gtk/renderer/RendererChoice.h"

#include <gtest/gtest.h>

using gtk::RendererChoice;

TEST(RendererChoice, leavesTheLastWordToTheUser)
{
    constexpr bool processor = true, environment = true, failed = true;
    struct Case {
        gtk::RendererFacts facts;
        RendererChoice choice;
        bool isAccelerated;
    };
    const Case cases[] = {
        {{processor, !environment, {}, !failed}, RendererChoice::hardware, true},
        {{processor, !environment, {}, failed}, RendererChoice::softwareOnTrial, false},
        {{processor, !environment, true, failed}, RendererChoice::rememberedHardware, true},
        {{processor, !environment, false, !failed}, RendererChoice::rememberedSoftware, false},
        {{processor, environment, false, failed}, RendererChoice::environment, true},
        {{!processor, environment, true, failed}, RendererChoice::noGraphicsProcessor, false},
    };
    for (const auto& [facts, choice, isAccelerated] : cases) {
        SCOPED_TRACE(static_cast<int>(choice));
        EXPECT_EQ(gtk::chooseRenderer(facts), choice);
        EXPECT_EQ(gtk::usesGraphicsProcessor(choice), isAccelerated);
    }
}
