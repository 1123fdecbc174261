#pragma once

#include "platform/gtk/network/SecureDownload.h"
#include "platform/sparkle/SUAppcastItem.h"

#include <filesystem>
#include <fstream>

namespace gtk {

// Fetches a package into a file. It ends as soon as more bytes come than are announced.
class PackageDownload {
public:
    struct Handlers {
        std::function<void(std::uint64_t bytes)> progress; // so far
        std::function<void(std::optional<platform::NSError>)> finish; // once, at the end
    };

    // The folder of `file` is made if need be, for the user alone, and emptied of earlier
    // packages. `trust` must outlive this.
    PackageDownload(const platform::SUAppcastItem& item, const std::filesystem::path& file,
        const std::string& userAgent, const HostTrust& trust, Handlers handlers);

private:
    std::optional<platform::NSError> write(std::string_view bytes);

    const std::uint64_t announced_; // bytes
    std::uint64_t received_ = 0;
    Handlers handlers_;
    std::ofstream file_;
    std::unique_ptr<SecureDownload> download_;
};

} // namespace gtk
