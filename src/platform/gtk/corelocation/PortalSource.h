#pragma once

#include "platform/gtk/corelocation/LocationSource.h"

namespace gtk {

// Asks the desktop's portal, the way out of a sandbox. The portal asks the user itself, and
// remembers what they said.
class PortalSource final : public LocationSource {
public:
    explicit PortalSource(const LocationTimeouts& patience);
    ~PortalSource() override;

    void start(double accuracy, Handlers handlers) override;

private:
    void startSession();
    void fail(const std::string& reason);

    const LocationTimeouts patience_;
    const std::string token_; // names our objects at the portal
    Handlers handlers_;
    std::string session_; // path; empty until there is one
    BusConversation conversation_;
};

} // namespace gtk
