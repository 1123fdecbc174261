#pragma once

#include "platform/gtk/foundation/FileLock.h"

#include <filesystem>

namespace gtk {

// The folder that one unfinished file is written into: hidden in the one that the file is meant
// for, and closed to other users. It is removed with this object, contents included.
//
// While it is in use it is locked. The lock ends with the program, however that ends, so that the
// next download recognises the folders that are left over.
class UnfinishedFolder {
public:
    // Also removes what earlier downloads have left in `parent`.
    explicit UnfinishedFolder(const std::filesystem::path& parent);
    ~UnfinishedFolder();

    UnfinishedFolder(const UnfinishedFolder&) = delete;
    UnfinishedFolder& operator=(const UnfinishedFolder&) = delete;

    // Why the folder could not be made, as the system's error number; 0 when it is there.
    int error() const { return error_; }

    // The place of the file, which is not there yet.
    std::filesystem::path file() const;

private:
    std::filesystem::path path_;
    int error_ = 0;
    std::optional<FileLock> lock_;
};

} // namespace gtk
