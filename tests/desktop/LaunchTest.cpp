// The first seconds of the whole program, as somebody at the desktop meets them.

#include "harness/AppProcess.h"
#include "harness/SavedSettings.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

const Process::Environment withoutDisplay = {
    {"DISPLAY", ""},
    {"DBUS_SESSION_BUS_ADDRESS", ""},
};

} // namespace

TEST(Launch, versionAndHelpNeedNoDisplay)
{
    AppProcess version({"--version"}, withoutDisplay);
    EXPECT_EQ(version.process().waitForExit(), 0);
    EXPECT_NE(version.process().output().find(VELMARO_VERSION), std::string::npos);

    AppProcess help({"--help"}, withoutDisplay);
    EXPECT_EQ(help.process().waitForExit(), 0);
    EXPECT_NE(help.process().output().find("velmaro-online"), std::string::npos);
}

TEST(Launch, anAddressThatCannotBeUsedEndsWithOneLineAndStatusTwo)
{
    const Process::Environment wrong[] = {
        {{"VELMARO_SERVICE_ORIGIN", "http://service.example"}},
        {{"VELMARO_UPDATE_FEED", "http://velmaro.example/appcast.xml"}},
    };
    for (const auto& environment : wrong) {
        const auto& variable = environment.begin()->first;
        AppProcess app({}, environment);
        EXPECT_EQ(app.process().waitForExit(), 2) << variable;
        const auto errors = app.process().errors();
        EXPECT_NE(errors.find(variable), std::string::npos) << errors;
        EXPECT_EQ(errors.find('\n'), errors.size() - 1) << errors;
    }
}

} // namespace desktop
