#include "app/VelmaroOnlineApp.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "updates/CheckForUpdatesView.h"
#include "updates/UpdaterController.h"

#include <gtest/gtest.h>

TEST(CheckForUpdates, asksTheUpdaterWhetherItCanBeChosenAndThenToCheck)
{
    simulated::SimulatedPlatform platform;
    const velmaro::VelmaroOnlineApp app;
    EXPECT_TRUE(platform.updaterControllers().empty());
    const velmaro::CheckForUpdatesView view{app.updater()};
    app.updater();
    ASSERT_EQ(platform.updaterControllers().size(), 1u);
    const auto updater = platform.updaterControllers().front().lock();
    EXPECT_TRUE(updater->isStarted);

    updater->canCheck = false;
    EXPECT_FALSE(view.isEnabled());
    updater->canCheck = true;
    EXPECT_TRUE(view.isEnabled());
    view.checkForUpdates();
    EXPECT_EQ(updater->checks, 1);
}
