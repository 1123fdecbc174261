#include "platform/gtk/corelocation/LocationServices.h"

#include "platform/gtk/corelocation/GeoClueSource.h"
#include "platform/gtk/corelocation/GtkLocationManager.h"
#include "platform/gtk/corelocation/PortalSource.h"

namespace gtk {

LocationServices::LocationServices(Options options, platform::DispatchQueue& queue,
    platform::UserDefaults& store, Permission::Prompt prompt)
    : options_(std::move(options))
    , permission_(queue, store, GtkLocationManager::permissionKey, std::move(prompt))
{
}

std::shared_ptr<platform::CLLocationManager> LocationServices::makeManager()
{
    const auto patience = options_.patience;
    if (options_.isSandboxed) {
        return std::make_shared<GtkLocationManager>(
            nullptr, [patience] { return std::make_unique<PortalSource>(patience); }, patience);
    }
    return std::make_shared<GtkLocationManager>(
        &permission_,
        [patience, identifier = options_.identifier] {
            return std::make_unique<GeoClueSource>(identifier, patience);
        },
        patience);
}

} // namespace gtk
