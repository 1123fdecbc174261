#pragma once

#include <filesystem>

namespace gtk {

// A folder for the user's eyes alone that goes, with all that is in it, when this does.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // Empty when there is no room for one.
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace gtk
