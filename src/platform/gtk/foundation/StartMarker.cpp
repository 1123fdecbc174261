#include "platform/gtk/foundation/StartMarker.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace gtk {

namespace {

// The file, locked; -1 when there is none or another program has locked it. The lock goes with its
// program, however that ends.
int openLocked(const std::filesystem::path& path, int flags)
{
    const int file = open(path.c_str(), O_RDWR | O_CLOEXEC | flags, 0600);
    if (file < 0 || flock(file, LOCK_EX | LOCK_NB) == 0)
        return file;
    close(file);
    return -1;
}

} // namespace

StartMarker::StartMarker(std::filesystem::path path)
    : path_(std::move(path))
{
}

StartMarker::~StartMarker()
{
    if (file_ >= 0)
        close(file_);
}

bool StartMarker::isLeftBehind() const
{
    const int file = openLocked(path_, 0);
    if (file < 0)
        return false;
    close(file);
    return true;
}

void StartMarker::set()
{
    std::error_code ignored; // without the folder the file cannot be made either
    std::filesystem::create_directories(path_.parent_path(), ignored);
    file_ = openLocked(path_, O_CREAT);
}

void StartMarker::clear()
{
    const int file = file_ >= 0 ? std::exchange(file_, -1) : openLocked(path_, 0);
    if (file < 0)
        return;
    unlink(path_.c_str());
    close(file);
}

} // namespace gtk
