#include "platform/gtk/renderer/StartMarker.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace gtk {

StartMarker::StartMarker(std::filesystem::path path)
    : path_(std::move(path))
{
}

bool StartMarker::isLeftBehind() const
{
    return FileLock::tryLock(path_, O_RDWR).has_value();
}

void StartMarker::set()
{
    std::error_code ignored; // without the folder the file cannot be made either
    std::filesystem::create_directories(path_.parent_path(), ignored);
    lock_ = FileLock::tryLock(path_, O_RDWR | O_CREAT);
}

void StartMarker::clear()
{
    const auto lock = lock_ ? std::exchange(lock_, std::nullopt) : FileLock::tryLock(path_, O_RDWR);
    if (lock)
        unlink(path_.c_str());
}

} // namespace gtk
