#pragma once

#include "platform/foundation/FileManager.h"

namespace gtk {

// The user's files, in the folders that the desktop has set up for them (user-dirs).
class GtkFileManager final : public platform::FileManager {
public:
    std::optional<platform::URL> downloadsDirectory(bool create) override;
    platform::URL homeDirectory() override;
    platform::URL temporaryDirectory() override;
    bool fileExists(const platform::URL& file) override;
    std::optional<std::string> contents(const platform::URL& file) override;
    std::optional<platform::NSError> writeAtomically(
        const platform::Data& data, const platform::URL& file) override;
};

} // namespace gtk
