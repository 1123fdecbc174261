#include "platform/gtk/diagnosis/Diagnosis.h"

#include "platform/gtk/diagnosis/CheckProcess.h"

#include <cstdio>
#include <glib.h>
#include <list>

namespace gtk::Diagnosis {

namespace {

constexpr double servicePatience = 6; // seconds; names can take long to look up

// In the order of the report.
std::vector<Check> checks(const Options& options)
{
    return {
        {.title = "Program", .look = checkVersions},
        {.title = "Sandbox", .look = checkSandbox},
        {.title = "Display", .look = checkDisplay},
        {
            .title = "Drawing",
            .look = [&] { return checkRenderer(options.renderer); },
            .adviceWhenStuck = "The graphics driver is at fault. Update it, or start the program "
                               "with LIBGL_ALWAYS_SOFTWARE=1 GSK_RENDERER=cairo.",
        },
        {.title = "Desktop portal", .look = checkPortal},
        {.title = "Notifications", .look = checkNotifications},
        {.title = "Location", .look = checkLocation},
        {.title = "Printers", .look = checkPrinters},
        {
            .title = "Downloads",
            .look = [&] { return checkDownloads(options.downloads); },
            .adviceWhenStuck = "The folder is on a disk that does not answer.",
        },
        {
            .title = "Service",
            .patience = servicePatience,
            .look = [&] { return checkService(options.serviceOrigin, options.trust); },
            .adviceWhenStuck = "Check the connection to the Internet, and a proxy or firewall.",
        },
    };
}

} // namespace

int run(const Options& options)
{
    std::list<CheckProcess> underWay;
    for (const auto& check : checks(options))
        underWay.emplace_back(check);

    std::vector<Finding> findings;
    for (auto& process : underWay) {
        for (auto& finding : process.findings())
            findings.push_back(std::move(finding));
    }
    std::fputs(report(findings, g_get_home_dir()).c_str(), stdout);
    return hasProblem(findings) ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace gtk::Diagnosis
