#include "platform/gtk/sparkle/PackageDownload.h"

namespace gtk {

namespace {

void makeEmptyFolder(const std::filesystem::path& folder)
{
    std::error_code ignored; // the file that cannot be written tells
    std::filesystem::remove_all(folder, ignored);
    std::filesystem::create_directories(folder, ignored);
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
}

} // namespace

PackageDownload::PackageDownload(const platform::SUAppcastItem& item,
    const std::filesystem::path& file, const std::string& userAgent, const HostTrust& trust,
    Handlers handlers)
    : announced_(item.contentLength)
    , handlers_(std::move(handlers))
{
    makeEmptyFolder(file.parent_path());
    file_.open(file, std::ios::binary | std::ios::trunc);
    download_ = std::make_unique<SecureDownload>(item.fileURL, userAgent, trust,
        SecureDownload::Handlers{
            .receive = [this](std::string_view bytes) { return write(bytes); },
            .finish =
                [this](auto failure) {
                    file_.close();
                    const auto finish = handlers_.finish; // which may drop this
                    finish(std::move(failure));
                },
        });
}

std::optional<platform::NSError> PackageDownload::write(std::string_view bytes)
{
    received_ += bytes.size();
    if (received_ > announced_)
        return platform::NSError{"The download is larger than announced. Nothing was opened."};
    if (!file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        return platform::NSError{"The download cannot be kept: there is no room for it."};
    handlers_.progress(received_);
    return std::nullopt;
}

} // namespace gtk
