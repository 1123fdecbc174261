#include "platform/gtk/webkit/UnfinishedFolder.h"

#include "platform/foundation/DispatchQueue.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace gtk {

namespace {

namespace fs = std::filesystem;

constexpr auto namePrefix = ".velmaro-download-";
constexpr double secondsToStop = 1;

std::optional<FileLock> lockFolder(const fs::path& folder)
{
    return FileLock::tryLock(folder, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
}

bool removeWhole(const fs::path& folder)
{
    std::error_code error;
    fs::remove_all(folder, error);
    return !error;
}

void removeLeftFolders(const fs::path& parent)
{
    std::error_code error;
    for (fs::directory_iterator entry(parent, error), end; entry != end; entry.increment(error)) {
        const auto path = entry->path();
        const bool isOurs = path.filename().string().starts_with(namePrefix);
        if (!isOurs)
            continue;
        if (const auto lock = lockFolder(path))
            removeWhole(path);
    }
}

} // namespace

UnfinishedFolder::UnfinishedFolder(const fs::path& parent)
{
    removeLeftFolders(parent);
    auto path = (parent / namePrefix).string() + "XXXXXX";
    if (!::mkdtemp(path.data())) {
        error_ = errno;
        return;
    }
    path_ = path;
    lock_ = lockFolder(path_);
}

UnfinishedFolder::~UnfinishedFolder()
{
    if (path_.empty())
        return;
    // The engine may still be writing, and has stopped by the second time.
    if (!removeWhole(path_))
        platform::DispatchQueue::main().asyncAfter(
            secondsToStop, [path = path_] { removeWhole(path); });
}

fs::path UnfinishedFolder::file() const
{
    return path_ / "unfinished";
}

} // namespace gtk
