#include "platform/gtk/diagnosis/Report.h"

#include <algorithm>
#include <cctype>

namespace gtk {

namespace {

constexpr std::size_t verdictWidth = 9; // characters
constexpr std::size_t titleWidth = 16;

const char* word(Verdict verdict)
{
    switch (verdict) {
    case Verdict::ok:
        return "ok";
    case Verdict::warning:
        return "warning";
    case Verdict::problem:
        return "problem";
    }
    return "";
}

std::string column(std::string text, std::size_t width)
{
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

std::string line(const Finding& finding)
{
    auto text = column(word(finding.verdict), verdictWidth) + column(finding.title, titleWidth)
        + finding.finding + '\n';
    if (!finding.advice.empty())
        text += std::string(verdictWidth + titleWidth, ' ') + finding.advice + '\n';
    return text;
}

std::string count(const std::vector<Finding>& findings, Verdict verdict)
{
    const auto number = std::ranges::count(findings, verdict, &Finding::verdict);
    return std::to_string(number) + ' ' + word(verdict) + (number == 1 ? "" : "s");
}

// Whether the character continues the current path component.
bool continuesName(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) || character == '-'
        || character == '_';
}

std::string withoutName(std::string text, const std::string& home)
{
    if (home.size() < 2) // the root, or no home at all, contains no name
        return text;
    for (auto at = text.find(home); at != std::string::npos; at = text.find(home, at + 1)) {
        const auto end = at + home.size();
        if (end == text.size() || !continuesName(text[end]))
            text.replace(at, home.size(), "~");
    }
    return text;
}

} // namespace

std::string report(const std::vector<Finding>& findings, const std::string& home)
{
    std::string text;
    for (const auto& finding : findings)
        text += line(finding);
    text +=
        '\n' + count(findings, Verdict::problem) + ", " + count(findings, Verdict::warning) + '\n';
    return withoutName(std::move(text), home);
}

bool hasProblem(const std::vector<Finding>& findings)
{
    return std::ranges::find(findings, Verdict::problem, &Finding::verdict) != findings.end();
}

} // namespace gtk
