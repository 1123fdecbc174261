#pragma once

#include "platform/foundation/NSError.h"

#include <glibmm/error.h>
#include <string>

namespace gtk {

// A text of a notification as a message bus can carry it and a desktop can show it: without NUL
// characters, and cut after some thousand bytes, of which nobody would see the rest.
std::string notificationText(std::string text);

// The same for services that read markup.
std::string notificationMarkup(std::string text);

// What a service or the bus has to say, without the bus's name for it.
platform::NSError notificationError(const Glib::Error& error);

} // namespace gtk
