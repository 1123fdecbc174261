#pragma once

#include <string>

namespace desktop {

// What a person does with keyboard and mouse. It arrives at whatever has the focus, or is under the
// pointer, some time after the call.
class UserInput {
public:
    // One key with its modifiers, such as "Return" or "ctrl+a".
    static void press(const std::string& key);

    static void type(const std::string& text);

    // In pixels from the upper left corner of the screen.
    static void movePointer(int x, int y);

    static void click(int button = leftButton);

    static constexpr int leftButton = 1;
    static constexpr int middleButton = 2;
    static constexpr int rightButton = 3;
};

} // namespace desktop
