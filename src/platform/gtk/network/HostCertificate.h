#pragma once

#include <string>
#include <vector>

namespace gtk {

// A certificate that the user trusts for some hosts: their own, or that of the authority that
// issued it.
struct HostCertificate {
    std::vector<std::string> hosts;
    std::string path; // of a PEM file
};

} // namespace gtk
