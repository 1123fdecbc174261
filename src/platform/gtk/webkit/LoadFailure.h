#pragma once

#include <glib.h>
#include <optional>
#include <string>

namespace gtk {

// Why a web view has no page to show, in words for the user.
struct LoadFailure {
    enum class Reason {
        offline,
        hostNotFound,
        connection,
        certificate,
        timeout,
        noPage,
        processDied
    };

    // A few words for a tab.
    const char* title() const;

    // A sentence or two.
    const char* explanation() const;

    // Whether retrying can help. Not for an address without a page: each request may open a program
    // or save a file.
    bool mayPass() const { return reason != Reason::processDied && reason != Reason::noPage; }

    Reason reason;
    std::string address;
};

// What an error of the engine means for the page at `address`; absent when the load was given up on
// purpose, for another one or by policy.
std::optional<LoadFailure::Reason> failureReason(const GError& error, const std::string& address);

} // namespace gtk
