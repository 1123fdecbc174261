// Addresses with the application's own scheme, whoever hands them over.

#include "fuzz/Target.h"
#include "web/DeepLink.h"

#include <optional>
#include <set>
#include <string>

using fuzz::require;
using platform::URL;

namespace {

// What a link may call: the functions that begin a new record, and the one that opens a drive.
const std::set<std::string> functions = {"", "viewDriveDetail", "addDrive", "addVehicle",
    "addDriver", "addFuel", "addCharging", "loadReports"};

bool isNumber(std::string_view text)
{
    if (text.starts_with('-'))
        text.remove_prefix(1);
    const bool isShortest = text == "0" || !text.starts_with('0');
    return !text.empty() && text.size() <= 19 && isShortest
        && text.find_first_not_of("0123456789") == text.npos;
}

std::string raised(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    return text;
}

void tryAddress(const std::string& text)
{
    const auto url = URL::fromString(text);
    const auto link = url ? velmaro::parseDeepLink(*url) : std::nullopt;
    if (!link)
        return;
    const auto colon = text.find(':');
    const auto scheme = raised(text.substr(0, colon));
    require(scheme == "VELMARO", "no other scheme leads anywhere");
    require(!link->route.empty(), "a link leads somewhere");
    require(functions.contains(link->function), "a link calls nothing else");
    require(link->argument.has_value() == (link->function == "viewDriveDetail"),
        "only a drive has a number");
    require(!link->argument || isNumber(*link->argument), "a number is in its shortest form");
    const auto shouted = URL::fromString(scheme + text.substr(colon));
    require(shouted && velmaro::parseDeepLink(*shouted) == link, "the scheme is read in any case");
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    const std::string text(input);
    tryAddress(text);
    tryAddress("velmaro://" + text);
}
