#include "reports/ReportFileName.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <gtest/gtest.h>

using velmaro::cleanReportName;
using velmaro::reportFileURL;

TEST(ReportFileName, isTheReportsNameWithoutWhatFileSystemsRefuse)
{
    const std::pair<std::string, std::string> cases[] = {
        {R"(/\:*?"<>|)", "---------"},
        {"../../etc/passwd", "..-..-etc-passwd"},
        {" \t\n a  b\r\n\u2029\u00a0", "a  b"},
        {"Überblick – März", "Überblick – März"},
        {" \t\v\f\u0085\u3000 ", "Velmaro Report"},
    };
    for (const auto& [name, clean] : cases)
        EXPECT_EQ(cleanReportName(name), clean);
}

TEST(ReportFileName, getsTheTimeWhenItIsTaken)
{
    simulated::SimulatedPlatform platform;
    const auto now = std::chrono::system_clock::from_time_t(1773065107);
    const auto path = [&] { return reportFileURL("Trip: 50%", now).path(); };
    EXPECT_EQ(path(), "/home/user/Downloads/Trip- 50%.pdf");

    platform.fileManager().files[path()] = "taken";
    const auto stamped = path();
    EXPECT_EQ(stamped, "/home/user/Downloads/Trip- 50% 2026-03-09T14-05-07Z.pdf");
    platform.fileManager().files[stamped] = "taken too";
    EXPECT_EQ(path(), stamped);

    platform.fileManager().hasDownloadsDirectory = false;
    EXPECT_EQ(path(), "/tmp/Trip- 50%.pdf");
}
