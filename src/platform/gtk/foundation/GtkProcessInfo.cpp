#include "platform/gtk/foundation/GtkProcessInfo.h"

#include <fstream>
#include <limits>
#include <string>

namespace gtk {

std::uint64_t GtkProcessInfo::availableMemory() const
{
    constexpr std::uint64_t kibibyte = 1024;
    std::ifstream file("/proc/meminfo");
    std::string name;
    std::uint64_t amount = 0;
    std::string unit;
    while (file >> name >> amount && std::getline(file, unit)) {
        if (name == "MemAvailable:")
            return amount * kibibyte;
    }
    return std::numeric_limits<std::uint64_t>::max();
}

} // namespace gtk
