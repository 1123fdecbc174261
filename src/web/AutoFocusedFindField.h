#pragma once

#include "platform/appkit/NSTextField.h"
#include "platform/ui/Binding.h"

#include <functional>
#include <memory>
#include <string>

namespace velmaro {

// The text field of the find bar: a native one, so that it can take the keyboard the moment it
// appears and tell Return, Shift-Return and Escape apart.
struct AutoFocusedFindField {
    class Coordinator;
    using NSViewType = platform::NSTextField;

    ui::Binding<std::string> text;
    std::function<void()> onCommit; // Return
    std::function<void()> onCommitBackwards; // Shift-Return
    std::function<void()> onCancel; // Escape

    std::shared_ptr<Coordinator> makeCoordinator() const;
    std::shared_ptr<platform::NSTextField> makeNSView(Coordinator& coordinator) const;
    void updateNSView(platform::NSTextField& field, Coordinator& coordinator) const;
};

// Passes on what happens in the field.
class AutoFocusedFindField::Coordinator final : public platform::NSTextFieldDelegate,
                                                public std::enable_shared_from_this<Coordinator> {
public:
    explicit Coordinator(const AutoFocusedFindField& field)
        : field_(field)
    {
    }

    void controlTextDidChange(platform::NSTextField& field) override;
    bool controlDoCommandBySelector(platform::NSTextField& field, platform::NSTextCommand command,
        platform::NSEventModifierFlags modifiers) override;

private:
    AutoFocusedFindField field_;
};

} // namespace velmaro
