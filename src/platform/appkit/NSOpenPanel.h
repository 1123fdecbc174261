#pragma once

#include "platform/foundation/URL.h"

#include <functional>
#include <optional>
#include <vector>

namespace platform {

// A window in which the user chooses files. It is a plain value: `begin` keeps a copy.
struct NSOpenPanel {
    using Completion = std::function<void(const std::optional<std::vector<URL>>& files)>;

    bool canChooseFiles = true;
    bool canChooseDirectories = false; // wins over files where the desktop cannot offer both
    bool allowsMultipleSelection = false;

    // Shows the panel as a window of its own; the rest of the application stays usable, and the
    // call returns at once. `completion` gets the "file" addresses of what was chosen, or nothing
    // when the user changed their mind. When the program ends first, it is not called. Main thread
    // only.
    void begin(Completion completion) const;

    bool operator==(const NSOpenPanel&) const = default;
};

} // namespace platform
