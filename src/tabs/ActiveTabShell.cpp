#include "tabs/ActiveTabShell.h"

#include "app/WindowSizer.h"
#include "platform/ui/Views.h"
#include "web/TabContent.h"

namespace velmaro {

using ui::ForEach;
using ui::View;
using ui::ZStack;

View ActiveTabShell::body() const
{
    const auto tabId = [](const auto& tab) { return tab->id.string(); };
    const auto layer = [this](const auto& tab) {
        const bool isActive = tab == active;
        return View(TabContent{.model = tab}).opacity(isActive ? 1 : 0).allowsHitTesting(isActive);
    };

    return ZStack{{}, ForEach(app->tabs(), tabId, layer)}.background(WindowSizer{});
}

} // namespace velmaro
