#include "platform/simulated/SimulatedFileManager.h"

#include <algorithm>

namespace simulated {

using platform::URL;

std::optional<URL> SimulatedFileManager::downloadsDirectory(bool)
{
    if (faults_.strike() || !hasDownloadsDirectory)
        return std::nullopt;
    return homeDirectory().appendingPathComponent("Downloads");
}

bool SimulatedFileManager::fileExists(const URL& file)
{
    return files.contains(file.path());
}

std::optional<std::string> SimulatedFileManager::contents(const URL& file)
{
    const auto found = files.find(file.path());
    if (faults_.strike() || found == files.end())
        return std::nullopt;
    return found->second;
}

std::optional<platform::NSError> SimulatedFileManager::writeAtomically(
    const platform::Data& data, const URL& file)
{
    if (writeFailure)
        return writeFailure;
    if (faults_.strike())
        return platform::NSError{"No space left on device"};
    auto& contents = files[file.path()];
    contents.resize(data.size());
    std::ranges::transform(
        data, contents.begin(), [](std::byte byte) { return static_cast<char>(byte); });
    return std::nullopt;
}

} // namespace simulated
