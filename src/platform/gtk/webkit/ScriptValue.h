#pragma once

#include "platform/foundation/Value.h"

#include <jsc/jsc.h>

namespace gtk {

// A value that a page has posted, as a value of ours.
//
// Texts come through whole, with NUL characters; half a surrogate pair becomes U+FFFD. What has no
// counterpart is null, and so is an object inside itself and all that lies deeper than 512 levels.
// Beside the message's own members, 100,000 values are read of it, so that none keeps the program
// busy for long.
platform::Value valueFromScript(JSCValue* value);

} // namespace gtk
