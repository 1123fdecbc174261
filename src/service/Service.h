#pragma once

#include "platform/foundation/URL.h"

#include <array>
#include <optional>
#include <string>

namespace velmaro {

// Where the web service is found: the one place that holds its addresses.
class Service {
public:
    // The service of this run.
    static Service& current();

    Service();

    // The https origin that every service address is formed from, without a slash at the end.
    const std::string& serviceOrigin() const { return serviceOrigin_; }

    // The host part of the origin.
    const std::string& serviceHost() const { return serviceHost_; }

    // The payment provider's checkout host and its sandbox checkout host.
    const std::array<std::string, 2>& paymentCheckoutHosts() const { return paymentCheckoutHosts_; }

    std::string onlineURL() const { return serviceOrigin_ + "/online"; }
    std::string helpURL() const { return serviceOrigin_ + "/help"; }
    std::string privacyURL() const { return serviceOrigin_ + "/legal/privacy"; }
    std::string welcomeURL() const { return serviceOrigin_ + "/online/welcome.php"; }

    // Takes another origin for this run. False, and nothing changed, unless `origin` is https with
    // a host and nothing after it but a port.
    bool setServiceOrigin(const std::string& origin);

    // Takes other checkout hosts for this run, separated by a blank: the payment provider's and its
    // sandbox's. False, and nothing changed, unless `hosts` names two.
    bool setPaymentCheckoutHosts(const std::string& hosts);

private:
    std::string serviceOrigin_;
    std::string serviceHost_;
    std::array<std::string, 2> paymentCheckoutHosts_;
};

} // namespace velmaro
