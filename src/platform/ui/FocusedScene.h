#pragma once

#include "platform/Platform.h"
#include "platform/ui/FocusedValues.h"

namespace ui {

// What menus act on: the window of the program that has the keyboard, or had it last while another
// program has it, as when the desktop shows the menus in a bar of its own. Main thread only.
class FocusedScene {
public:
    static FocusedScene& current() { return platform::Platform::current().shared<FocusedScene>(); }

    // The values of that window; null when it is no window of the scene.
    Published<std::shared_ptr<const Published<FocusedValues>>> values;
};

// The focused window's object under `Key`, for the code that describes menus.
template <class Key> class FocusedValue {
public:
    // Null when there is no such object. Subscribes the description that is being evaluated.
    std::shared_ptr<typename Key::Value> operator()() const
    {
        const auto& values = FocusedScene::current().values();
        return values ? (*values)().template get<Key>() : nullptr;
    }
};

} // namespace ui
