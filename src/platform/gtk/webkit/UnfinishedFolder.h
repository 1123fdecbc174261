#pragma once

#include "platform/gtk/foundation/FileLock.h"

#include <filesystem>

namespace gtk {

// The folder that one unfinished file is written into: hidden in the one that the file is meant
// for, and closed to other users. It goes with this object, and so does what is in it.
//
// While it is in use it is locked. The lock goes with its program, however that ends, so that the
// next download finds what one that was stopped hard has left.
class UnfinishedFolder {
public:
    // Also removes from `parent` what nobody uses any more.
    explicit UnfinishedFolder(const std::filesystem::path& parent);
    ~UnfinishedFolder();

    UnfinishedFolder(const UnfinishedFolder&) = delete;
    UnfinishedFolder& operator=(const UnfinishedFolder&) = delete;

    // Why there is none, as the number of the system's error; 0 when there is one.
    int error() const { return error_; }

    // The place of the file, which is not there yet.
    std::filesystem::path file() const;

private:
    std::filesystem::path path_;
    int error_ = 0;
    std::optional<FileLock> lock_;
};

} // namespace gtk
