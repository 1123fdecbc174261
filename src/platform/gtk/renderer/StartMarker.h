#pragma once

#include "platform/gtk/foundation/FileLock.h"

#include <filesystem>

namespace gtk {

// A file that is there while a start of the program is under way. One that crashes, or is killed
// because nothing moves, leaves it behind.
class StartMarker {
public:
    // Does nothing yet.
    explicit StartMarker(std::filesystem::path path);

    // Whether there is one of a program that has ended; those of programs that run do not count.
    bool isLeftBehind() const;

    // Costs some microseconds: nothing waits for the disk. Where it cannot be made, or another
    // program has it, nothing happens.
    void set();

    // Takes away the one that was set or left behind.
    void clear();

private:
    const std::filesystem::path path_;
    std::optional<FileLock> lock_; // as long as it is set
};

} // namespace gtk
