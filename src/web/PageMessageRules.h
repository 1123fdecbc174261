#pragma once

#include "platform/webkit/WKScriptMessageHandler.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace velmaro {

class WebModel;

// What a page has asked for, ready to be done to its tab's model.
using PageAction = std::function<void(WebModel&)>;

// A name that pages post messages to, and what such a message asks for. The action is empty when
// nothing is to be done, because the body lacks what the name requires.
struct PageMessageRule {
    std::string name;
    PageAction (*action)(const platform::Value& body);

    bool operator==(const PageMessageRule&) const = default;
};

// In the order of registration. The application's own are `pageMessageRules`.
using PageMessageRules = std::vector<PageMessageRule>;

// What `message` asks for; empty for a name without a rule too.
inline PageAction actionForPageMessage(
    const PageMessageRules& rules, const platform::WKScriptMessage& message)
{
    const auto rule = std::ranges::find(rules, message.name, &PageMessageRule::name);
    return rule == rules.end() ? PageAction() : rule->action(message.body);
}

} // namespace velmaro
