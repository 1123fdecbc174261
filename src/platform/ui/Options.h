#pragma once

#include "platform/ui/Binding.h"
#include "platform/ui/Color.h"
#include "platform/ui/Font.h"
#include "platform/ui/Layout.h"

#include <functional>
#include <optional>
#include <string>

// What can be chosen of each kind of view. Lengths are points.

namespace ui {

struct StackOptions {
    double spacing = 8; // between children
    Alignment alignment = Alignment::center; // of the children across the stack
};

struct LayersOptions {
    Alignment alignment = Alignment::center;
};

// Where a line that is too long is cut.
enum class Truncation { tail, middle };

struct TextOptions {
    Font font = {};
    Color color = Color::label;
    bool wraps = false; // onto as many lines as needed; else one line, cut at its end
    Alignment alignment = Alignment::center; // of the lines, in the width that the text is given
    Truncation truncation = Truncation::tail; // of one line
    int lineLength = 0; // about how many characters a line has at most; 0: as many as there is room

    bool operator==(const TextOptions&) const = default;
};

struct Shadow {
    Color color = Color::clear;
    double radius = 0;
    double y = 0; // downwards

    bool operator==(const Shadow&) const = default;
};

struct SymbolOptions {
    Font font = {};
    Color color = Color::label;
    Shadow shadow = {}; // of the symbol's own outline

    bool operator==(const SymbolOptions&) const = default;
};

struct ApplicationIconOptions {
    Shadow shadow = {}; // of the picture's own outline

    bool operator==(const ApplicationIconOptions&) const = default;
};

// One colour that becomes another on the way from the upper leading to the lower trailing corner.
struct GradientOptions {
    Color from = Color::clear;
    Color to = Color::clear;

    bool operator==(const GradientOptions&) const = default;
};

struct ShapeOptions {
    double cornerRadius = 0;
    Color fill = Color::clear;
    Color stroke = Color::clear; // drawn inside the shape
    double lineWidth = 0;
    Shadow shadow = {};

    bool operator==(const ShapeOptions&) const = default;
};

struct ProgressBarOptions {
    bool isLine = true; // thin, and at the edge of something; else a bar as the desktop has them
    std::string text = {}; // what the bar says
    std::string name = "Loading"; // of what goes on, for screen readers
};

enum class ButtonStyle {
    plain, // its label and nothing else
    borderless,
    bordered,
    borderedProminent, // filled with the accent colour
};

// Keys that mean the same in every window.
enum class KeyboardShortcut {
    cancelAction, // Escape
    defaultAction, // Return
};

struct ButtonOptions {
    ButtonStyle style = ButtonStyle::bordered;
    std::string help = {}; // tooltip and accessible name
    std::string title = {}; // what a button without a label shows; else the name without a help
    bool isEnabled = true;
    bool isTinted = false; // with the accent colour, as a sign of being on
    std::optional<KeyboardShortcut> shortcut = {};
    bool focusesWhenShown = false; // takes the keyboard when it appears
};

// The modifier keys that are held down with another key.
struct EventModifiers {
    bool shift = false;
};

struct TextFieldOptions {
    std::string placeholder = {}; // also the accessible name
    Font font = {};
    bool focusesWhenShown = false; // takes the keyboard when it appears, all its text selected

    // Follows the focus; setting it true moves the focus here.
    std::optional<Binding<bool>> isFocused = {};

    std::function<void(EventModifiers)> onSubmit = {}; // Return, with whatever modifiers
    std::function<void()> onCancel = {}; // Escape, which without this is left to the panel around
};

struct ScrollOptions {
    Axis axis = Axis::vertical;
    bool showsIndicators = true;

    bool operator==(const ScrollOptions&) const = default;
};

} // namespace ui
