#include "app/VelmaroOnlineApp.h"

#include "app/AppCommands.h"
#include "app/BrowsingCommands.h"
#include "app/PageMessages.h"
#include "platform/appkit/NSApplication.h"
#include "platform/ui/Views.h"
#include "tabs/AppRoot.h"
#include "updates/UpdaterController.h"

namespace velmaro {

const std::shared_ptr<UpdaterController>& VelmaroOnlineApp::updater() const
{
    if (!updater_)
        updater_ = std::make_shared<UpdaterController>();
    return updater_;
}

ui::Scene VelmaroOnlineApp::body() const
{
    return {
        .identifier = "main",
        .title = "Velmaro Online",
        .toolbarStyle = ui::WindowToolbarStyle::unified,
        .content = [] { return ui::View(AppRoot{.pageMessages = pageMessageRules()}); },
        .commands = [this] { return commands(); },
        .dockMenu =
            {
                {.id = "NewTab", .menuItem = "new-tab"},
                {.id = "LogFuel", .menuItem = "log-fuel"},
                {.id = "LogChargingSession", .menuItem = "log-charging-session"},
            },
    };
}

std::vector<ui::CommandGroup> VelmaroOnlineApp::commands() const
{
    auto groups = AppCommands{updater()}.body();
    for (auto& group : BrowsingCommands().body())
        groups.push_back(std::move(group));
    return groups;
}

int VelmaroOnlineApp::run()
{
    const auto scene = body();
    return platform::NSApplication::shared().run(appDelegate, scene);
}

} // namespace velmaro
