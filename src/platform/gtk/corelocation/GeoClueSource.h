#pragma once

#include "platform/gtk/corelocation/LocationSource.h"

namespace gtk {

// Asks GeoClue, the location service on the system bus. GeoClue has the desktop ask the user, on
// desktops that want this.
class GeoClueSource final : public LocationSource {
public:
    // `identifier` is the name of the application's desktop entry.
    GeoClueSource(std::string identifier, const LocationTimeouts& patience);
    ~GeoClueSource() override;

    void start(double accuracy, Handlers handlers) override;

private:
    void configure();
    void setClientProperty(
        const char* name, const Glib::VariantBase& value, std::function<void()> then);
    void startClient();
    void readLocation(const std::string& path);

    const std::string identifier_;
    const LocationTimeouts patience_;
    double accuracy_ = 0; // metres
    Handlers handlers_;
    std::string client_; // path of our object at the service; empty until there is one
    BusConversation conversation_;
};

} // namespace gtk
