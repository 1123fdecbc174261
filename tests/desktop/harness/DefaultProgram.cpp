#include "DefaultProgram.h"

#include <cstdlib>
#include <fstream>

namespace desktop {

namespace {

namespace fs = std::filesystem;

constexpr auto schemes = {"http", "https", "mailto", "tel", "sms", "facetime", "facetime-audio"};

// One line in one write, so that starts at the same time do not mix.
constexpr auto script = R"(#!/bin/sh
printf '%s %s\n' "$1" "${XDG_ACTIVATION_TOKEN:-$DESKTOP_STARTUP_ID}" >> "$(dirname "$0")/notes"
)";

} // namespace

DefaultProgram::DefaultProgram()
{
    const auto folder = fs::path(std::getenv("HOME")) / "default-program";
    fs::create_directories(folder);
    notes_ = folder / "notes";
    fs::remove(notes_);
    const auto program = folder / "program";
    std::ofstream(program) << script;
    fs::permissions(program, fs::perms::owner_all);

    const fs::path data = std::getenv("XDG_DATA_HOME"), config = std::getenv("XDG_CONFIG_HOME");
    fs::create_directories(data / "applications");
    fs::create_directories(config);
    std::ofstream entry(data / "applications" / "default-program.desktop");
    entry << "[Desktop Entry]\nType=Application\nName=Default program\nStartupNotify=true\nExec="
          << program.string() << " %u\nMimeType=";
    std::ofstream defaults(config / "mimeapps.list");
    defaults << "[Default Applications]\n";
    for (const auto* scheme : schemes) {
        entry << "x-scheme-handler/" << scheme << ';';
        defaults << "x-scheme-handler/" << scheme << "=default-program.desktop\n";
    }
    entry << '\n';
}

std::vector<DefaultProgram::Start> DefaultProgram::starts() const
{
    std::vector<Start> result;
    std::ifstream notes(notes_);
    for (std::string line; std::getline(notes, line);) {
        const auto blank = line.find(' ');
        result.push_back({line.substr(0, blank), line.substr(blank + 1)});
    }
    return result;
}

std::vector<std::string> DefaultProgram::addresses() const
{
    std::vector<std::string> result;
    for (const auto& start : starts())
        result.push_back(start.address);
    return result;
}

} // namespace desktop
