#include "app/VelmaroOnlineApp.h"

#include "app/AppCommands.h"
#include "app/BrowsingCommands.h"
#include "platform/appkit/NSApplication.h"
#include "platform/ui/Views.h"
#include "tabs/AppRoot.h"

namespace velmaro {

namespace {

std::vector<ui::CommandGroup> commands()
{
    auto groups = AppCommands().body();
    for (auto& group : BrowsingCommands().body())
        groups.push_back(std::move(group));
    return groups;
}

} // namespace

ui::Scene VelmaroOnlineApp::body() const
{
    return {
        .identifier = "main",
        .title = "Velmaro Online",
        .toolbarStyle = ui::WindowToolbarStyle::unified,
        .content = [] { return ui::View(AppRoot{}); },
        .commands = commands,
    };
}

int VelmaroOnlineApp::run()
{
    const auto scene = body();
    return platform::NSApplication::shared().run(appDelegate, scene);
}

} // namespace velmaro
