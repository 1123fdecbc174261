#include "service/Service.h"

#include "platform/Platform.h"

#include <cassert>
#include <charconv>
#include <sstream>

namespace velmaro {

namespace {

bool isPort(const std::string& digits)
{
    unsigned port = 0;
    const auto* end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, port);
    return error == std::errc() && rest == end && port >= 1 && port <= 65535;
}

} // namespace

Service& Service::current()
{
    return platform::Platform::current().shared<Service>();
}

Service::Service()
    : paymentCheckoutHosts_{"checkout.velmaro-pay.example", "sandbox.checkout.velmaro-pay.example"}
{
    [[maybe_unused]] const bool isValid = setServiceOrigin(VELMARO_SERVICE_ORIGIN);
    assert(isValid);
}

bool Service::setServiceOrigin(const std::string& origin)
{
    const auto url = platform::URL::fromString(origin);
    if (!url || url->scheme() != "https" || !url->isOrigin())
        return false;
    if (url->port() && !isPort(*url->port()))
        return false;
    serviceOrigin_ = origin;
    serviceHost_ = *url->host();
    return true;
}

bool Service::setPaymentCheckoutHosts(const std::string& hosts)
{
    std::istringstream words(hosts);
    std::string checkout, sandbox, rest;
    if (!(words >> checkout >> sandbox) || words >> rest)
        return false;
    paymentCheckoutHosts_ = {checkout, sandbox};
    return true;
}

} // namespace velmaro
