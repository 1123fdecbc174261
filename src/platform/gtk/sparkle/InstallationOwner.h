#pragma once

#include <filesystem>
#include <functional>
#include <memory>

namespace gtk {

// Who put the program on this computer, and so brings its newer versions.
enum class InstallationOwner {
    nobody, // it may update itself
    packageManager,
    flatpak,
};

// Asks Debian's package manager about `executable`, unless Flatpak runs it. `handler` is called
// once, later; not any more when the result is dropped.
[[nodiscard]] std::shared_ptr<void> findInstallationOwner(const std::filesystem::path& executable,
    bool isSandboxed, std::function<void(InstallationOwner)> handler);

} // namespace gtk
