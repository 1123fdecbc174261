#include "UserInput.h"

#include "Process.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

void run(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    Process tool(arguments);
    EXPECT_EQ(tool.waitForExit(), 0) << tool.errors();
}

} // namespace

void UserInput::press(const std::string& key)
{
    run({"key", "--clearmodifiers", key});
}

void UserInput::press(const std::string& key, int times)
{
    run({"key", "--clearmodifiers", "--delay", "0", "--repeat", std::to_string(times), key});
}

void UserInput::type(const std::string& text)
{
    run({"type", "--delay", "1", text});
}

void UserInput::movePointer(int x, int y)
{
    run({"mousemove", std::to_string(x), std::to_string(y)});
}

void UserInput::click(int button)
{
    run({"click", std::to_string(button)});
}

void UserInput::click(int x, int y, int button)
{
    run({"mousemove", std::to_string(x), std::to_string(y), "click", std::to_string(button)});
}

void UserInput::holdButton()
{
    run({"mousedown", "1"});
}

void UserInput::releaseButton()
{
    run({"mouseup", "1"});
}

void UserInput::slide(Point from, Point to)
{
    constexpr int steps = 20;
    std::vector<std::string> moves;
    for (int step = 1; step <= steps; ++step) {
        moves.insert(moves.end(),
            {"mousemove", std::to_string(from.x + (to.x - from.x) * step / steps),
                std::to_string(from.y + (to.y - from.y) * step / steps), "sleep", "0.02"});
    }
    run(moves);
}

void UserInput::drag(Point from, Point to)
{
    movePointer(from.x, from.y);
    holdButton();
    slide(from, to);
    releaseButton();
}

bool UserInput::dragFiles(const std::vector<std::filesystem::path>& files, Point target)
{
    constexpr int shakes = 10; // over the target, which may ask for the names meanwhile
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

    movePointer(start.x, start.y);
    holdButton();
    const bool hasBegun = eventually([&, distance = 0]() mutable {
        movePointer(start.x + distance, start.y);
        distance = (distance + 5) % 40;
        return tells("begun");
    });
    slide(start, target);
    int shake = 0;
    const bool isAccepted = hasBegun && eventually([&] {
        movePointer(target.x + shake % 2, target.y);
        return ++shake >= shakes && tells("accepted");
    });
    releaseButton();
    return isAccepted && eventually([&] { return tells("ended"); });
}

} // namespace desktop
