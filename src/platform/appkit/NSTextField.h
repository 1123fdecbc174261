#pragma once

#include "platform/appkit/NSView.h"

#include <string>

namespace platform {

class NSTextField;

// What a key in a text field asks for, whichever key that is on this desktop.
enum class NSTextCommand {
    insertNewline, // Return
    cancelOperation, // Escape
};

// Modifier keys that are held down while a command is given.
struct NSEventModifierFlags {
    bool shift = false;
};

// Hears what the user does in a text field. Called on the main thread.
class NSTextFieldDelegate {
public:
    virtual ~NSTextFieldDelegate() = default;

    // The user has changed the text.
    virtual void controlTextDidChange(NSTextField& field) = 0;

    // True when the command was handled; otherwise the field does what it does by itself.
    virtual bool controlDoCommandBySelector(
        NSTextField& field, NSTextCommand command, NSEventModifierFlags modifiers) = 0;
};

// One line of text that the user can edit, without a border or background.
class NSTextField : public NSView {
public:
    virtual std::string stringValue() const = 0;

    // Tells the delegate nothing, and leaves a text that is the same alone.
    virtual void setStringValue(const std::string& text) = 0;

    // Shown while the field is empty; also what a screen reader calls the field.
    virtual void setPlaceholder(const std::string& text) = 0;

    virtual void setFontSize(double points) = 0;

    // Held weakly.
    virtual void setDelegate(std::weak_ptr<NSTextFieldDelegate> delegate) = 0;

    // Gives the field the keyboard, with all its text selected. False while it is in no window.
    virtual bool makeFirstResponder() = 0;
};

} // namespace platform
