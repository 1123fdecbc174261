#pragma once

#include <string>

namespace gtk {

// A certificate that the user trusts for one host: the host's own, or that of the authority that
// issued it.
struct HostCertificate {
    std::string host;
    std::string path; // of a PEM file
};

} // namespace gtk
