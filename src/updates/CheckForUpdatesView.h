#pragma once

#include <memory>

namespace velmaro {

class UpdaterController;

// The command that looks for a newer version because the user wants to know.
struct CheckForUpdatesView {
    static constexpr auto title = "Check for Updates…";

    std::shared_ptr<UpdaterController> updater;

    // Whether the command can be chosen now. It does not publish: the menus read it whenever they
    // are built.
    bool isEnabled() const;

    void checkForUpdates() const;
};

} // namespace velmaro
