#include "Options.h"

#include <charconv>
#include <cstdlib>
#include <stdexcept>

namespace demo {

namespace {

int portNumber(const std::string& text)
{
    int port = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc() || end != text.data() + text.size() || port < 0 || port > 65535)
        throw std::invalid_argument("--port needs a number from 0 to 65535, not \"" + text + '"');
    return port;
}

std::filesystem::path standardFolder()
{
    const char* cache = std::getenv("XDG_CACHE_HOME");
    if (cache && *cache == '/')
        return std::filesystem::path(cache) / "velmaro-demo-service";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : ".") / ".cache" / "velmaro-demo-service";
}

} // namespace

const char* const helpText =
    "Usage: velmaro-demo-service [options]\n"
    "\n"
    "Plays the Velmaro Online web service on loopback https, with invented data.\n"
    "\n"
    "  --port N             listen on this port (any free one when left out)\n"
    "  --folder DIR         keep certificate.pem and key.pem here\n"
    "  --hostile            serve slow, broken and malicious answers under /hostile too\n"
    "  --until-parent-ends  end when the process that started this one ends\n"
    "  --help               show this text\n";

Options Options::fromArguments(int count, char** arguments)
{
    Options options;
    for (int index = 1; index < count; ++index) {
        const std::string argument = arguments[index];
        const auto value = [&]() -> std::string {
            if (++index == count)
                throw std::invalid_argument(argument + " needs a value");
            return arguments[index];
        };
        if (argument == "--port")
            options.port = portNumber(value());
        else if (argument == "--folder")
            options.folder = value();
        else if (argument == "--hostile")
            options.isHostile = true;
        else if (argument == "--until-parent-ends")
            options.endsWithParent = true;
        else if (argument == "--help")
            options.showsHelp = true;
        else
            throw std::invalid_argument("unknown option \"" + argument + "\"; try --help");
    }
    if (options.folder.empty())
        options.folder = standardFolder();
    return options;
}

} // namespace demo
