#include "web/AutoFocusedFindField.h"

#include "platform/ui/Views.h"

namespace velmaro {

ui::View AutoFocusedFindField::body() const
{
    return ui::TextField(
        {
            .placeholder = "Find on page",
            .font = {.size = 12},
            .focusesWhenShown = true,
            .onSubmit = [model = model](
                            ui::EventModifiers modifiers) { model->find(modifiers.shift); },
            .onCancel = [model = model] { model->closeFind(); },
        },
        model->findQuery.binding());
}

} // namespace velmaro
