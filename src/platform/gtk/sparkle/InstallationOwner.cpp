#include "platform/gtk/sparkle/InstallationOwner.h"

#include "platform/gtk/foundation/ProgramOutput.h"

namespace gtk {

std::shared_ptr<void> findInstallationOwner(const std::filesystem::path& executable,
    const std::filesystem::path& sandboxMark, std::function<void(InstallationOwner)> handler)
{
    std::error_code ignored;
    const bool isSandboxed = std::filesystem::exists(sandboxMark, ignored);
    return runProgram({"dpkg-query", "--search", executable},
        [isSandboxed, handler = std::move(handler)](const auto& packages) {
            if (isSandboxed)
                handler(InstallationOwner::flatpak);
            else
                handler(packages ? InstallationOwner::packageManager : InstallationOwner::nobody);
        });
}

} // namespace gtk
