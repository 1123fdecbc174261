#pragma once

#include "platform/foundation/Bundle.h"

namespace gtk {

// The information dictionary, fixed when the program is built.
class GtkBundle final : public platform::Bundle {
public:
    std::optional<std::string> stringForInfoDictionaryKey(const std::string& key) const override;
};

} // namespace gtk
