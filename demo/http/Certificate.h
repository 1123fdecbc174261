#pragma once

#include <filesystem>
#include <string>

namespace demo {

/// The service's self-signed certificate and its key, kept as files so that a client that
/// trusts the certificate still trusts it in the next run.
struct Certificate {
    std::filesystem::path certificateFile; ///< PEM, readable by all.
    std::filesystem::path keyFile; ///< PEM, readable by the owner alone.

    /// Uses the folder's "certificate.pem" and "key.pem" when they belong together, name every
    /// host of the service and stay valid for another week; otherwise makes both anew.
    /// Throws std::runtime_error when the folder cannot be written.
    static Certificate inFolder(const std::filesystem::path& folder);
};

/// Every name that the service answers to, beside 127.0.0.1. A wildcard would not do: clients
/// do not match one directly under "localhost".
inline constexpr const char* certificateHosts[] = {
    "velmaro.localhost",
    "www.velmaro.localhost",
    "pay.localhost",
    "sandbox.pay.localhost",
    "elsewhere.localhost",
    "localhost",
};

} // namespace demo
