#include "platform/gtk/foundation/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace gtk {

std::optional<FileLock> FileLock::tryLock(const std::filesystem::path& path, int flags)
{
    constexpr mode_t permissions = 0600; // of a file that is made by this
    const int descriptor = ::open(path.c_str(), flags | O_CLOEXEC, permissions);
    if (descriptor < 0)
        return std::nullopt;
    FileLock lock(descriptor);
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0)
        return std::nullopt;
    return lock;
}

FileLock::FileLock(FileLock&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1))
{
}

FileLock& FileLock::operator=(FileLock&& other) noexcept
{
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

FileLock::~FileLock()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

} // namespace gtk
