#include "platform/gtk/sparkle/InstallationOwner.h"

#include "platform/gtk/foundation/ProgramOutput.h"

namespace gtk {

std::shared_ptr<void> findInstallationOwner(const std::filesystem::path& executable,
    bool isSandboxed, std::function<void(InstallationOwner)> handler)
{
    return runProgram({"dpkg-query", "--search", executable},
        [isSandboxed, handler = std::move(handler)](const auto& packages) {
            if (isSandboxed)
                handler(InstallationOwner::flatpak);
            else
                handler(packages ? InstallationOwner::packageManager : InstallationOwner::nobody);
        });
}

} // namespace gtk
