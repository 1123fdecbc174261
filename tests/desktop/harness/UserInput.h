#pragma once

#include "Desktop.h"

#include <filesystem>

namespace desktop {

// What a person does with keyboard and mouse. It arrives at whatever has the focus, or is under the
// pointer, some time after the call.
class UserInput {
public:
    // One key with its modifiers, such as "Return" or "ctrl+a".
    static void press(const std::string& key);

    // The same key so many times, as fast as can be.
    static void press(const std::string& key, int times);

    static void type(const std::string& text);

    // In pixels from the upper left corner of the screen.
    static void movePointer(int x, int y);

    static void click(int button = leftButton);
    // Moves the pointer there, in pixels from the upper left corner of the screen, and clicks.
    static void click(int x, int y, int button = leftButton);

    // The left one.
    static void holdButton();
    static void releaseButton();

    // Moves the pointer in small steps, as a hand does that drags: a leap is no drag.
    static void slide(Point from, Point to);

    // Presses the left button at one place of the screen and lets it go at another one.
    static void drag(Point from, Point to);
    // Drags files out of another program's window and drops them there. Returns when that program
    // has been told how it ended; false when nobody there would take them.
    [[nodiscard]] static bool dragFiles(
        const std::vector<std::filesystem::path>& files, Point target);

    static constexpr int leftButton = 1;
    static constexpr int middleButton = 2;
    static constexpr int rightButton = 3;
};

} // namespace desktop
