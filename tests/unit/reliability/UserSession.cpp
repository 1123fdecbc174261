#include "reliability/UserSession.h"

#include "platform/foundation/Unicode.h"
#include "ui/Stage.h"

#include <algorithm>
#include <utility>

using platform::Value;
using simulated::SimulatedWebView;

UserSession::UserSession(Settings stored, unsigned seed)
    : random_(seed)
{
    launch(std::move(stored));
    noteTabs();
}

void UserSession::take(const Step& step)
{
    step.take(*this);
    settle();
    if (!hasEnded())
        answerQuestions();
    noteTabs();
}

UserSession::Settings UserSession::end()
{
    platform.application().simulateQuit();
    return platform.userDefaults().contents();
}

std::string UserSession::flaw()
{
    if (hasEnded())
        return {};
    const auto model = tabs();
    if (!model || model->tabs().empty())
        return "there is no tab";
    if (!model->activeTab())
        return "no tab is active";
    if (platform.alerts().waitingCount() > 0)
        return "an alert nobody expects: " + platform.alerts().front().informativeText;

    auto& window = platform.application().window();
    std::vector<std::string> inModel, inStrip;
    for (const auto& tab : model->tabs())
        inModel.push_back(tab->id.string());
    for (const auto* widget : window.content().findAll<ui::GroupNode>()) {
        if (const auto& id = widget->node<ui::GroupNode>()->dragPayload; !id.empty())
            inStrip.push_back(id);
    }
    if (inModel != inStrip)
        return "the strip shows other tabs than there are";

    const auto& menus = platform.application().menus();
    const bool isInFront = platform.application().keyWindow().get() == &window;
    if (menus.item("New Tab").isEnabled != isInFront)
        return "the commands do not follow the window";
    if (menus.item("Reopen Closed Tab").isEnabled != (isInFront && model->canReopenTab()))
        return "what can be reopened is not offered, or the other way round";
    return {};
}

std::string UserSession::leak()
{
    platform.mainQueue().advance(60);
    const auto model = tabs();
    const auto& open = model->tabs();
    std::size_t pages = 0;
    for (const auto& view : platform.webViews())
        pages += view.expired() ? 0 : 1;
    if (pages > open.size())
        return "there are more pages than tabs";
    for (const auto& seen : tabsSeen_) {
        const auto tab = seen.lock();
        if (tab && std::ranges::find(open, tab) == open.end())
            return "a closed tab is still there";
    }
    return {};
}

std::vector<std::string> UserSession::routesToSave() const
{
    std::vector<std::string> routes;
    for (const auto& tab : tabs()->tabs())
        routes.push_back(platform::trimmingWhitespace(tab->currentRoute()));
    if (std::ranges::all_of(routes, &std::string::empty))
        return {};
    std::ranges::replace(routes, std::string(), std::string("dashboard"));
    return routes;
}

std::shared_ptr<SimulatedWebView> UserSession::page() const
{
    const auto tab = tabs()->activeTab();
    return tab ? std::dynamic_pointer_cast<SimulatedWebView>(tab->webView.lock()) : nullptr;
}

bool UserSession::press(const std::string& help)
{
    settle();
    const bool isPressed = ::press(platform.application().window().content(), help);
    settle();
    return isPressed;
}

void UserSession::post(const std::string& bridge, Value body)
{
    if (const auto view = page())
        view->simulateMessage(bridge, std::move(body));
    settle();
    if (!hasEnded())
        answerQuestions();
}

void UserSession::answerQuestions()
{
    auto& center = platform.userNotificationCenter();
    while (questionsAnswered_ < center.questions.size()) {
        ++questionsAnswered_;
        center.simulateAnswer(!fails());
        settle();
    }
    while (platform.alerts().waitingCount() > 0) {
        const auto& buttons = platform.alerts().front().buttons;
        platform.alerts().simulateAnswer(buttons.at(buttons.size() - 1));
        settle();
    }
}

void UserSession::noteTabs()
{
    if (const auto model = tabs(); model && !hasEnded()) {
        for (const auto& tab : model->tabs())
            tabsSeen_.push_back(tab);
    }
}
