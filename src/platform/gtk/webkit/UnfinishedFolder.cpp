#include "platform/gtk/webkit/UnfinishedFolder.h"

#include "platform/foundation/DispatchQueue.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace gtk {

namespace {

namespace fs = std::filesystem;

constexpr auto namePrefix = ".velmaro-download-";
constexpr double secondsToStop = 1;

// The folder, locked; -1 when somebody else has locked it, or when it is none or cannot be locked.
int openLocked(const fs::path& folder)
{
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0 || ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    ::close(descriptor);
    return -1;
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
        const int lock = isOurs ? openLocked(path) : -1;
        if (lock < 0)
            continue;
        removeWhole(path);
        ::close(lock);
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
    lock_ = openLocked(path_);
}

UnfinishedFolder::~UnfinishedFolder()
{
    if (path_.empty())
        return;
    // The engine may still be writing, and has stopped by the second time.
    if (!removeWhole(path_))
        platform::DispatchQueue::main().asyncAfter(
            secondsToStop, [path = path_] { removeWhole(path); });
    if (lock_ >= 0)
        ::close(lock_);
}

fs::path UnfinishedFolder::file() const
{
    return path_ / "unfinished";
}

} // namespace gtk
