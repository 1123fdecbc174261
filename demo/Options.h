#pragma once

#include <filesystem>
#include <string>

namespace demo {

/// What the command line asks for.
struct Options {
    int port = 0; ///< 0 for any free one.
    std::filesystem::path folder; ///< Where the certificate and its key are kept.
    bool isHostile = false; ///< Serves "/hostile/…" too.
    bool endsWithParent = false;
    bool showsHelp = false;

    /// Throws std::invalid_argument, with a line for people, for anything that it does not know.
    static Options fromArguments(int count, char** arguments);
};

extern const char* const helpText;

} // namespace demo
