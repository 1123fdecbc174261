#include "reports/ReportFileName.h"

#include "platform/foundation/FileManager.h"
#include "platform/foundation/Unicode.h"

#include <algorithm>
#include <ctime>
#include <string_view>

namespace velmaro {

using platform::FileManager;
using platform::URL;

namespace {

constexpr std::string_view forbiddenCharacters = R"(/\:*?"<>|)";
constexpr auto fallbackName = "Velmaro Report";
constexpr auto fileExtension = ".pdf";

// As in 2026-03-09T14-05-07Z: the usual form, but for the colons.
std::string stamp(std::chrono::system_clock::time_point time)
{
    const auto seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts = {};
    gmtime_r(&seconds, &parts);
    char text[sizeof "2026-03-09T14-05-07Z"] = {};
    std::strftime(text, sizeof text, "%Y-%m-%dT%H-%M-%SZ", &parts);
    return text;
}

} // namespace

std::string cleanReportName(const std::string& name)
{
    auto clean = name;
    std::ranges::replace_if(
        clean,
        [](char character) {
            return forbiddenCharacters.find(character) != std::string_view::npos;
        },
        '-');
    clean = platform::trimmingWhitespaceAndNewlines(clean);
    return clean.empty() ? fallbackName : clean;
}

URL reportFileURL(const std::string& name, std::chrono::system_clock::time_point now)
{
    auto& files = FileManager::defaultManager();
    const auto folder = files.downloadsDirectory(false).value_or(files.temporaryDirectory());
    const auto clean = cleanReportName(name);
    auto file = folder.appendingPathComponent(clean + fileExtension);
    if (!files.fileExists(file))
        return file;
    return folder.appendingPathComponent(clean + " " + stamp(now) + fileExtension);
}

} // namespace velmaro
