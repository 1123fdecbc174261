#include "platform/gtk/foundation/GtkBundle.h"

#include <array>
#include <string_view>

namespace gtk {

namespace {

struct Entry {
    std::string_view key;
    std::string_view text;
};

constexpr std::array entries{
    Entry{"CFBundleName", "Velmaro Online"},
    Entry{"CFBundleShortVersionString", VELMARO_VERSION},
    Entry{"CFBundleVersion", VELMARO_BUILD_NUMBER},
};

} // namespace

std::optional<std::string> GtkBundle::stringForInfoDictionaryKey(const std::string& key) const
{
    for (const auto& entry : entries) {
        if (entry.key == key)
            return std::string(entry.text);
    }
    return std::nullopt;
}

} // namespace gtk
