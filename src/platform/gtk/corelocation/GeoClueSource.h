#pragma once

#include "platform/gtk/corelocation/LocationSource.h"
#include "platform/gtk/corelocation/LocationTimeouts.h"
#include "platform/gtk/foundation/BusConversation.h"

namespace gtk {

// Asks GeoClue, the location service on the system bus. GeoClue has the desktop ask the user where
// the desktop wants that.
class GeoClueSource final : public LocationSource {
public:
    // `identifier` is the application's, as its desktop entry is called.
    GeoClueSource(std::string identifier, const LocationTimeouts& patience);
    ~GeoClueSource() override;

    void start(double accuracy, Handlers handlers) override;

private:
    void requestClient();
    void configure();
    void startClient();
    void readLocation(const std::string& path);
    void setClientProperty(
        const char* name, const Glib::VariantBase& value, std::function<void()> then);

    const std::string identifier_;
    const LocationTimeouts patience_;
    double accuracy_ = 0; // metres
    Handlers handlers_;
    std::string client_; // path of our object there; empty until there is one
    BusConversation conversation_;
};

} // namespace gtk
