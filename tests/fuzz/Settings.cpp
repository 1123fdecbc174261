// The settings file with whatever it may hold after an accident.

#include "fuzz/Target.h"
#include "platform/gtk/foundation/GtkUserDefaults.h"
#include "platform/simulated/SimulatedQueue.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>

using fuzz::require;
using gtk::GtkUserDefaults;
using Json = nlohmann::json;

namespace {

// `TMPDIR` tells where; waiting for a disk takes most of the time.
std::string madeFolder()
{
    auto path = (std::filesystem::temp_directory_path() / "settings-XXXXXX").string();
    require(::mkdtemp(path.data()), "there is room for settings");
    return path;
}

// A folder that goes with the process.
struct Folder {
    ~Folder() { std::filesystem::remove_all(path); }

    const std::string path = madeFolder();
    const std::string file = path + "/settings.json";
    const std::string damagedFile = path + "/settings.json.damaged";
};

std::string contentsOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

const std::string keys[] = {"a", "b", "active", "routes", "identity"};
constexpr auto ownKey = "own";
constexpr std::int64_t ownValue = 1234567;

void readEverything(const GtkUserDefaults& settings)
{
    for (const auto& key : keys) {
        settings.stringArray(key);
        settings.integer(key);
        settings.boolean(key);
        settings.data(key);
    }
}

// Whether there can be so many values inside each other that the file counts as damaged.
bool isNested(std::string_view text)
{
    return std::ranges::count(text, '[') + std::ranges::count(text, '{') > 64;
}

// What the text holds when it is an object. The parser is the program's as well, and takes a NUL
// for the end.
std::optional<Json> membersOf(std::string_view text)
{
    if (text.find('\0') != text.npos)
        return std::nullopt;
    auto json = Json::parse(text, nullptr, false);
    return json.is_object() ? std::optional(std::move(json)) : std::nullopt;
}

} // namespace

void fuzz::tryInput(std::string_view input)
{
    static const Folder folder;
    std::filesystem::remove(folder.damagedFile);
    std::ofstream(folder.file, std::ios::binary) << input;

    simulated::SimulatedQueue queue;
    std::vector<std::string> log;
    const auto note = [&](const std::string& line) { log.push_back(line); };
    {
        GtkUserDefaults settings(folder.file, queue, note);
        readEverything(settings);
        settings.setInteger(ownKey, ownValue);
        settings.flush();
    }
    const bool isDamaged = std::filesystem::exists(folder.damagedFile);
    const auto written = membersOf(contentsOf(folder.file));
    auto expected = membersOf(input);
    require(isDamaged || expected, "what is no object counts as damaged");
    require(!isDamaged || !expected || isNested(input), "an object counts as such");
    require(log.size() == (isDamaged ? 1u : 0u), "a damaged file is told about, once");
    require(
        !isDamaged || contentsOf(folder.damagedFile) == input, "a damaged file is kept as it was");
    if (isDamaged)
        expected = Json::object();
    (*expected)[ownKey] = ownValue;
    require(written == expected, "all else is written back as it was");

    GtkUserDefaults settings(folder.file, queue, note);
    require(settings.integer(ownKey) == ownValue, "a setting comes back");
    require(log.size() == (isDamaged ? 1u : 0u), "what was written can be read");
}
