#include "web/Downloads.h"

#include "platform/appkit/NSAlert.h"
#include "platform/appkit/NSWorkspace.h"
#include "platform/foundation/FileManager.h"
#include "platform/foundation/Unicode.h"

#include <algorithm>
#include <array>

namespace velmaro {

using platform::FileManager;
using platform::NSAlert;
using platform::NSWorkspace;
using platform::URL;

namespace {

constexpr std::string_view exportPrefix = "velmaro_";
constexpr std::array<std::string_view, 4> exportExtensions = {"vlarchive", "json", "csv", "zip"};

} // namespace

URL uniqueDestination(const URL& folder, const std::string& name)
{
    auto candidate = folder.appendingPathComponent(name);
    auto extension = candidate.pathExtension();
    if (!extension.empty())
        extension.insert(0, ".");
    const auto base = name.substr(0, name.size() - extension.size());

    const auto numbered = [&](int number) {
        return base + " (" + std::to_string(number) + ")" + extension;
    };
    for (int number = 2; FileManager::defaultManager().fileExists(candidate); ++number)
        candidate = folder.appendingPathComponent(numbered(number));
    return candidate;
}

bool isExportFile(const URL& file)
{
    const auto extension = platform::lowercasingASCII(file.pathExtension());
    return platform::lowercasingASCII(file.lastPathComponent()).starts_with(exportPrefix)
        && std::ranges::find(exportExtensions, extension) != exportExtensions.end();
}

void showExportSavedAlert(const URL& file)
{
    const NSAlert alert{
        .messageText = "Export saved",
        .informativeText = "Saved " + file.lastPathComponent() + " to your Downloads folder.",
        .alertStyle = NSAlert::Style::informational,
        .buttons = {"Reveal in Finder", "Done"},
    };
    alert.runModal([file](int button) {
        if (button == NSAlert::firstButton)
            NSWorkspace::shared().activateFileViewerSelecting({file});
    });
}

} // namespace velmaro
