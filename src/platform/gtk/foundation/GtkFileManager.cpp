#include "platform/gtk/foundation/GtkFileManager.h"

#include "platform/gtk/foundation/AtomicFile.h"

#include <cerrno>
#include <glib/gstdio.h>
#include <string_view>
#include <sys/stat.h>

namespace gtk {

using platform::URL;

namespace {

// Before the user's mask takes some away.
constexpr mode_t usualFilePermissions = 0666;
constexpr mode_t usualFolderPermissions = 0777;

// The system would take a name with a NUL for a shorter one.
bool canBeNamed(const URL& file)
{
    return file.isFileURL() && file.path().find('\0') == std::string::npos;
}

std::string downloadsPath()
{
    if (const char* path = g_get_user_special_dir(G_USER_DIRECTORY_DOWNLOAD))
        return path;
    return std::string(g_get_home_dir()) + "/Downloads";
}

} // namespace

std::optional<URL> GtkFileManager::downloadsDirectory(bool create)
{
    const auto path = downloadsPath();
    if (create && g_mkdir_with_parents(path.c_str(), usualFolderPermissions) != 0)
        return std::nullopt;
    return URL::fileURL(path);
}

URL GtkFileManager::homeDirectory()
{
    return URL::fileURL(g_get_home_dir());
}

URL GtkFileManager::temporaryDirectory()
{
    return URL::fileURL(g_get_tmp_dir());
}

bool GtkFileManager::fileExists(const URL& file)
{
    struct stat status = {};
    return canBeNamed(file) && ::lstat(file.path().c_str(), &status) == 0;
}

std::optional<std::string> GtkFileManager::contents(const URL& file)
{
    struct stat status = {};
    if (!canBeNamed(file) || ::stat(file.path().c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    auto contents = AtomicFile::read(file.path());
    if (!contents.exists || !contents.failure.empty())
        return std::nullopt;
    return std::move(contents.text);
}

std::optional<platform::NSError> GtkFileManager::writeAtomically(
    const platform::Data& data, const URL& file)
{
    if (!canBeNamed(file))
        return platform::NSError{g_strerror(EINVAL)};
    g_autofree char* folder = g_path_get_dirname(file.path().c_str());
    g_mkdir_with_parents(folder, usualFolderPermissions);
    const std::string_view text(reinterpret_cast<const char*>(data.data()), data.size());
    if (auto failure = AtomicFile::replace(file.path(), text, usualFilePermissions))
        return platform::NSError{std::move(*failure)};
    return std::nullopt;
}

} // namespace gtk
