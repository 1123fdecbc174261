#pragma once

#include "platform/foundation/NSError.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <functional>
#include <libsoup/soup.h>
#include <memory>
#include <string>
#include <variant>

namespace gtk {

// One small question over HTTP and its answer.
namespace HttpExchange {

// The body, or why there is none.
using Answer = std::variant<std::string, platform::NSError>;

// Sends `message`; null stands for one that could not be made. `handler` is called once, later,
// with the body of a good answer of moderate size, or with the reason why there is none. Dropping
// the result takes the question back, and `handler` is not called any more.
[[nodiscard]] std::shared_ptr<void> start(SoupSession* session, ObjectPointer<SoupMessage> message,
    std::function<void(const Answer&)> handler);

} // namespace HttpExchange

} // namespace gtk
