#include "SignedInTest.h"

#include "SavedSettings.h"

namespace desktop {

void SignedInTest::saveTabs(const Routes& routes, int active)
{
    SavedSettings::signIn("Robin", "Alder");
    SavedSettings::write({{"vl.open.routes", routes}, {"vl.open.routes.active", active},
        {"vl.onboarding.shown", true}});
    SavedSettings::writePermissions({{"notificationsAllowed", false}});
}

void SignedInTest::launch(const Routes& routes, int active)
{
    saveTabs(routes, active);
    app.emplace(service);
    ASSERT_TRUE(app->waitForPage());
}

} // namespace desktop
