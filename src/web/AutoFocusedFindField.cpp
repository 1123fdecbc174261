#include "web/AutoFocusedFindField.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/Platform.h"

namespace velmaro {

using platform::DispatchQueue;
using platform::NSTextCommand;
using platform::NSTextField;

namespace {
constexpr double fontSize = 12;
}

std::shared_ptr<AutoFocusedFindField::Coordinator> AutoFocusedFindField::makeCoordinator() const
{
    return std::make_shared<Coordinator>(*this);
}

std::shared_ptr<NSTextField> AutoFocusedFindField::makeNSView(Coordinator& coordinator) const
{
    auto field = platform::Platform::current().makeTextField();
    field->setPlaceholder("Find on page");
    field->setFontSize(fontSize);
    field->setDelegate(coordinator.weak_from_this());
    field->setStringValue(text.get());

    // By then the field has been placed in its window.
    DispatchQueue::main().async([weakField = std::weak_ptr(field)] {
        if (const auto field = weakField.lock())
            field->makeFirstResponder();
    });
    return field;
}

void AutoFocusedFindField::updateNSView(NSTextField& field, Coordinator&) const
{
    if (field.stringValue() != text.get())
        field.setStringValue(text.get());
}

void AutoFocusedFindField::Coordinator::controlTextDidChange(NSTextField& field)
{
    field_.text.set(field.stringValue());
}

bool AutoFocusedFindField::Coordinator::controlDoCommandBySelector(
    NSTextField&, NSTextCommand command, platform::NSEventModifierFlags modifiers)
{
    switch (command) {
    case NSTextCommand::insertNewline:
        modifiers.shift ? field_.onCommitBackwards() : field_.onCommit();
        return true;
    case NSTextCommand::cancelOperation:
        field_.onCancel();
        return true;
    }
    return false;
}

} // namespace velmaro
