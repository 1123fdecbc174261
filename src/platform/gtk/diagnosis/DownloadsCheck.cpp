#include "platform/gtk/diagnosis/Checks.h"

#include <cerrno>
#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

namespace gtk {

namespace {

constexpr std::uintmax_t fewBytes = 100'000'000;
constexpr auto title = "Downloads";

// Tries it, with a file that goes at once. Why it cannot be done; empty when it can.
std::string whyNotWritable(const std::filesystem::path& folder)
{
    auto name = (folder / ".velmaro-XXXXXX").string();
    const int file = mkostemp(name.data(), O_CLOEXEC);
    if (file < 0)
        return g_strerror(errno);
    unlink(name.c_str());
    close(file);
    return "";
}

// The folder itself, or where it would have to be made.
std::filesystem::path existingPart(std::filesystem::path folder)
{
    std::error_code ignored;
    while (folder.has_relative_path() && !std::filesystem::exists(folder, ignored))
        folder = folder.parent_path();
    return folder;
}

} // namespace

std::vector<Finding> checkDownloads(const std::filesystem::path& folder)
{
    const auto existing = existingPart(folder);
    std::error_code error;
    if (!std::filesystem::is_directory(existing, error)) {
        return {{title, existing.string() + " is no folder", Verdict::problem,
            "Choose another folder for downloads in ~/.config/user-dirs.dirs."}};
    }
    if (const auto reason = whyNotWritable(existing); !reason.empty()) {
        return {{title, existing.string() + " cannot be written to: " + reason, Verdict::problem,
            "Files cannot be saved. Change the folder's permissions, or choose another one in "
            "~/.config/user-dirs.dirs."}};
    }

    auto finding = folder.string();
    if (existing != folder)
        finding += ", which is made with the first download";
    const auto space = std::filesystem::space(existing, error);
    if (error)
        return {{title, finding}};
    g_autofree char* size = g_format_size(space.available);
    finding += std::string(", ") + size + " free";
    if (space.available < fewBytes)
        return {{title, finding, Verdict::warning, "Make room on this disk."}};
    return {{title, finding}};
}

} // namespace gtk
