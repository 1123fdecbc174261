#pragma once

#include "AppProcess.h"

#include <gtest/gtest.h>

namespace desktop {

// The application of somebody who is signed in, has been welcomed and wants no notifications.
class SignedInTest : public testing::Test {
protected:
    using Routes = std::vector<std::string>;

    // Leaves behind what makes the next start open these tabs.
    static void saveTabs(const Routes& routes, int active = 0);

    // Starts the application with these tabs and waits for the page of the active one.
    void launch(const Routes& routes, int active = 0);

    DemoServiceProcess service;
    std::optional<AppProcess> app;
};

} // namespace desktop
