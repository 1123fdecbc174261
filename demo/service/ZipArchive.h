#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace demo {

/// Builds a ZIP archive in memory. Files are stored, not compressed: small and plain is enough.
class ZipArchive {
public:
    /// The name may hold folders, parted by slashes.
    void add(std::string_view name, std::string_view content);

    /// The archive with everything added so far.
    std::string bytes() const;

private:
    std::string files_;
    std::string directory_;
    std::uint16_t count_ = 0;
};

} // namespace demo
