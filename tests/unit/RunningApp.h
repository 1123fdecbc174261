#pragma once

#include "app/VelmaroOnlineApp.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tabs/TabbedAppModel.h"

// The whole application, on a desktop with one screen once it is launched.
struct RunningApp {
    using Settings = std::map<std::string, simulated::SimulatedUserDefaults::Stored>;

    // With what an earlier run has stored.
    void launch(Settings stored = {})
    {
        platform.addScreen({{0, 25}, {1440, 875}});
        platform.userDefaults().plant(std::move(stored));
        platform.application().launch(app.appDelegate, scene);
        settle();
    }

    // Lets the turn of the main loop end.
    void settle() { platform.mainQueue().runUntilIdle(); }

    std::shared_ptr<velmaro::TabbedAppModel> tabs() const
    {
        return velmaro::TabbedAppModel::shared();
    }

    // The web view that was made as the `index`th; null when it has gone.
    std::shared_ptr<simulated::SimulatedWebView> webView(std::size_t index = 0) const
    {
        return platform.webViews().at(index).lock();
    }

    velmaro::VelmaroOnlineApp app;
    ui::Scene scene = app.body();
    simulated::SimulatedPlatform platform;
};
