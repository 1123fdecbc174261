#include "platform/gtk/diagnosis/Report.h"

#include <gtest/gtest.h>

using gtk::Verdict;

TEST(Report, isALineForEachFindingWithItsAdviceAndNobodysName)
{
    const std::vector<gtk::Finding> findings = {
        {"Program", "Velmaro Online 1.0"},
        {"Downloads", "/home/ada/Downloads, beside /home/adam", Verdict::problem,
            "Look at /home/ada."},
        {"A title that is long", "found", Verdict::warning},
    };
    EXPECT_EQ(gtk::report(findings, "/home/ada"),
        "ok       Program         Velmaro Online 1.0\n"
        "problem  Downloads       ~/Downloads, beside /home/adam\n"
        "                         Look at ~.\n"
        "warning  A title that is long found\n"
        "\n"
        "1 problem, 1 warning\n");
    EXPECT_TRUE(gtk::hasProblem(findings));
    EXPECT_FALSE(gtk::hasProblem({findings[0], findings[2]}));
    EXPECT_NE(gtk::report(findings, "/").find("/home/ada/Downloads"), std::string::npos);
}
