#pragma once

#include "platform/gtk/foundation/Sandboxing.h"
#include "platform/gtk/network/HostTrust.h"

#include <filesystem>
#include <memory>
#include <string>

namespace gtk {

// Where newer versions come from, and what they are compared with.
struct UpdateOptions {
    std::string feed; // https address; empty: the application does not update itself
    std::string publicKey; // Ed25519, in Base64; likewise
    std::shared_ptr<const HostTrust> trust;
    std::string userAgent; // who asks

    std::string version; // of the running program, as builds are counted
    std::string displayVersion; // as people know it

    std::filesystem::path downloads; // folder for packages, of the user alone
    std::filesystem::path executable; // of the running program
    bool isSandboxed = gtk::isSandboxed();
};

} // namespace gtk
