#include "FileDrag.h"

#include "Process.h"
#include "UserInput.h"

namespace desktop {

namespace {

constexpr int shakes = 10; // over the target, which may ask for the names of the files meanwhile

} // namespace

bool dragFiles(const std::vector<std::filesystem::path>& files, int x, int y)
{
    std::vector<std::string> command = {VELMARO_DRAG_SOURCE};
    command.insert(command.end(), files.begin(), files.end());
    Process source(command);
    const auto tells = [&](const char* event) {
        return source.output().find(event) != std::string::npos;
    };

    std::optional<DesktopWindow> window;
    const bool isThere = eventually([&] {
        window = Desktop::window("Drag source");
        return window && tells("ready");
    });
    if (!isThere)
        return false;
    const auto frame = window->frame();
    const Point start = {frame.x + frame.width / 2, frame.y + frame.height - 40};

    UserInput::movePointer(start.x, start.y);
    UserInput::holdButton();
    const bool hasBegun = eventually([&, distance = 0]() mutable {
        UserInput::movePointer(start.x + distance, start.y);
        distance = (distance + 5) % 40;
        return tells("begun");
    });
    UserInput::slide(start, {x, y});
    int shake = 0;
    const bool isAccepted = hasBegun && eventually([&] {
        UserInput::movePointer(x + shake % 2, y);
        return ++shake >= shakes && tells("accepted");
    });
    UserInput::releaseButton();
    return isAccepted && eventually([&] { return tells("ended"); });
}

} // namespace desktop
