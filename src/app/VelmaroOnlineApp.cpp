#include "app/VelmaroOnlineApp.h"

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
        .content =
            [this] {
                updater(); // not in a start that only hands an address to the running program
                return ui::View(AppRoot{});
            },
    };
}

int VelmaroOnlineApp::run()
{
    const auto scene = body();
    return platform::NSApplication::shared().run(appDelegate, scene);
}

} // namespace velmaro
