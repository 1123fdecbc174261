#include "tabs/AppRoot.h"

#include "platform/ui/Views.h"
#include "tabs/ActiveTabShell.h"
#include "tabs/WindowSizer.h"

namespace velmaro {

using ui::Color;
using ui::Fill;
using ui::View;

View AppRoot::body() const
{
    const auto active = app()->activeTab();
    const View content = active
        ? View(ActiveTabShell{.app = app(), .active = active, .pageMessages = pageMessages})
        : Fill(Color::windowBackground).background(WindowSizer{});

    return content.onOpenURL([weakApp = std::weak_ptr(app())](const platform::URL& url) {
        const auto app = weakApp.lock();
        if (const auto tab = app ? app->activeTab() : nullptr)
            tab->handleDeepLink(url);
    });
}

} // namespace velmaro
