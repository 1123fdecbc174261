// The first seconds of the whole program, as somebody at the desktop meets them.

#include "harness/AppProcess.h"

#include <gtest/gtest.h>

namespace desktop {

TEST(Launch, versionAndHelpNeedNoDisplay)
{
    const Process::Environment withoutDisplay = {{"DISPLAY", ""}, {"DBUS_SESSION_BUS_ADDRESS", ""}};
    AppProcess version({"--version"}, withoutDisplay);
    EXPECT_EQ(version.process().waitForExit(), 0);
    EXPECT_NE(version.process().output().find(VELMARO_VERSION), std::string::npos);

    AppProcess help({"--help"}, withoutDisplay);
    EXPECT_EQ(help.process().waitForExit(), 0);
    EXPECT_NE(help.process().output().find("velmaro-online"), std::string::npos);
}

} // namespace desktop
