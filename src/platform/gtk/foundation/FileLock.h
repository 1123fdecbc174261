#pragma once

#include <filesystem>
#include <optional>

namespace gtk {

// An exclusive lock on a file or folder, held until this goes or the program ends, however that
// happens.
class FileLock {
public:
    // Opens `path` with `flags` of open(2) and locks it. Absent when it cannot be opened, or when
    // another program holds its lock.
    static std::optional<FileLock> tryLock(const std::filesystem::path& path, int flags);

    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    ~FileLock();

private:
    explicit FileLock(int descriptor)
        : descriptor_(descriptor)
    {
    }

    int descriptor_; // -1 when moved from
};

} // namespace gtk
