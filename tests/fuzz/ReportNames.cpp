// What a page calls a report, and where its document is saved.

#include "fuzz/Target.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "reports/ReportFileName.h"

#include <string>

namespace {

using Time = std::chrono::system_clock::time_point;

const Time now{std::chrono::seconds(1'773'065'107)}; // 2026-03-09, 14:05:07
constexpr auto stampedEnd = " 2026-03-09T14-05-07Z.pdf";

} // namespace

void fuzz::tryInput(std::string_view input)
{
    const std::string name(input);
    const auto clean = velmaro::cleanReportName(name);
    require(!clean.empty(), "a name is never empty");
    require(clean.find_first_of("/\\:*?\"<>|") == clean.npos, "every file system takes the name");
    require(std::string_view(" \t\r\n").find(clean.front()) == std::string_view::npos
            && std::string_view(" \t\r\n").find(clean.back()) == std::string_view::npos,
        "nothing blank stands at the ends");
    require(velmaro::cleanReportName(clean) == clean, "a clean name stays");

    simulated::SimulatedPlatform platform;
    for (const bool hasDownloads : {true, false}) {
        platform.fileManager().hasDownloadsDirectory = hasDownloads;
        const auto folder = hasDownloads ? platform.fileManager().downloadsDirectory(false).value()
                                         : platform.fileManager().temporaryDirectory();
        const auto pathWithoutEnd = folder.path() + "/" + clean;
        const auto path = velmaro::reportFileURL(name, now).path();
        require(path == pathWithoutEnd + ".pdf", "a report is saved in the folder");
        platform.fileManager().files[path] = "an earlier report";
        require(velmaro::reportFileURL(name, now).path() == pathWithoutEnd + stampedEnd,
            "an earlier report stays");
    }
}
