#pragma once

#include "platform/foundation/Value.h"

#include <jsc/jsc.h>

namespace gtk {

// A value that a page has posted, as a value of ours.
//
// Texts come through whole, with NUL characters; half a surrogate pair becomes U+FFFD. A value
// without a counterpart is null, and so is an object inside itself and all that lies deeper than
// 512 levels. Beside the message's own members at most 100,000 values are read, so that no message
// keeps the program busy for long.
platform::Value valueFromScript(JSCValue* value);

} // namespace gtk
