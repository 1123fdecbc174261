#pragma once

#include "platform/webkit/WKScriptMessageHandler.h"

#include <functional>
#include <string>
#include <vector>

namespace velmaro {

class WebModel;

// What a page has asked for, ready to be done to its tab's model.
using PageAction = std::function<void(WebModel&)>;

// The names that pages post messages to, in the order of registration.
std::vector<std::string> pageMessageNames();

// Validates a message. The action is empty when nothing is to be done: an unknown name, or a body
// that lacks what the name requires.
PageAction actionForPageMessage(const platform::WKScriptMessage& message);

} // namespace velmaro
