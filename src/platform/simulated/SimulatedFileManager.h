#pragma once

#include "platform/foundation/FileManager.h"
#include "platform/simulated/Faults.h"

#include <map>

namespace simulated {

// Files in memory. The folder for downloads is there from the start.
class SimulatedFileManager final : public platform::FileManager {
public:
    explicit SimulatedFileManager(Faults& faults)
        : faults_(faults)
    {
    }

    std::optional<platform::URL> downloadsDirectory(bool create) override;
    platform::URL homeDirectory() override { return platform::URL::fileURL("/home/user"); }
    platform::URL temporaryDirectory() override { return platform::URL::fileURL("/tmp"); }
    bool fileExists(const platform::URL& file) override;
    std::optional<std::string> contents(const platform::URL& file) override;
    std::optional<platform::NSError> writeAtomically(
        const platform::Data& data, const platform::URL& file) override;

    bool hasDownloadsDirectory = true;
    std::optional<platform::NSError> writeFailure; // of every write while it is there

    std::map<std::string, std::string> files; // contents by absolute path

private:
    Faults& faults_;
};

} // namespace simulated
