#pragma once

#include "platform/appkit/NSTextField.h"
#include "platform/simulated/SimulatedPlace.h"

namespace simulated {

// A text field without a keyboard: the test types.
class SimulatedTextField final : public platform::NSTextField, public SimulatedPlace {
public:
    platform::NSWindow* window() const override { return windowOfHost(); }

    std::string stringValue() const override { return text_; }
    void setStringValue(const std::string& text) override { text_ = text; }
    void setPlaceholder(const std::string& text) override { placeholder = text; }
    void setFontSize(double points) override { fontSize = points; }
    void setDelegate(std::weak_ptr<platform::NSTextFieldDelegate> delegate) override
    {
        delegate_ = std::move(delegate);
    }
    bool makeFirstResponder() override { return isFirstResponder = window() != nullptr; }

    // The user replaces the text.
    void simulateTyping(const std::string& text)
    {
        text_ = text;
        if (const auto delegate = delegate_.lock())
            delegate->controlTextDidChange(*this);
    }

    // The user presses a key; whether the delegate has handled it.
    bool simulateCommand(
        platform::NSTextCommand command, platform::NSEventModifierFlags modifiers = {})
    {
        const auto delegate = delegate_.lock();
        return delegate && delegate->controlDoCommandBySelector(*this, command, modifiers);
    }

    std::string placeholder;
    double fontSize = 0;
    bool isFirstResponder = false;

private:
    std::string text_;
    std::weak_ptr<platform::NSTextFieldDelegate> delegate_;
};

} // namespace simulated
