#include "FileDrag.h"

#include "Process.h"

namespace desktop {

namespace {

constexpr int steps = 10; // a drag in one leap is none
constexpr int shakes = 10; // over the target, which may ask for the names of the files meanwhile

void perform(std::vector<std::string> action)
{
    action.insert(action.begin(), "xdotool");
    Process(action).waitForExit();
}

void moveTo(int x, int y)
{
    perform({"mousemove", std::to_string(x), std::to_string(y), "sleep", "0.02"});
}

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
        return window && window->picture();
    });
    if (!isThere)
        return false;
    const auto frame = window->frame();
    const int startX = frame.x + frame.width / 2;
    const int startY = frame.y + frame.height - 40;

    moveTo(startX, startY);
    perform({"mousedown", "1"});
    const bool hasBegun = eventually([&, distance = 0]() mutable {
        moveTo(startX + distance, startY);
        distance = (distance + 5) % 40;
        return tells("begun");
    });
    for (int step = 1; step <= steps; ++step)
        moveTo(startX + (x - startX) * step / steps, startY + (y - startY) * step / steps);
    int shake = 0;
    const bool isAccepted = hasBegun && eventually([&] {
        moveTo(x + shake % 2, y);
        return ++shake >= shakes && tells("accepted");
    });
    perform({"mouseup", "1"});
    return isAccepted && eventually([&] { return tells("ended"); });
}

} // namespace desktop
