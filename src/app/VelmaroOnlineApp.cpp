#include "app/VelmaroOnlineApp.h"

#include "platform/appkit/NSApplication.h"
#include "platform/ui/Views.h"
#include "tabs/AppRoot.h"

namespace velmaro {

ui::Scene VelmaroOnlineApp::body() const
{
    return {
        .identifier = "main",
        .title = "Velmaro Online",
        .toolbarStyle = ui::WindowToolbarStyle::unified,
        .content = [] { return ui::View(AppRoot{}); },
    };
}

int VelmaroOnlineApp::run()
{
    const auto scene = body();
    return platform::NSApplication::shared().run(appDelegate, scene);
}

} // namespace velmaro
