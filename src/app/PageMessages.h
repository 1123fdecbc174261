#pragma once

#include "web/PageMessageRules.h"

namespace velmaro {

// What the service's pages can ask for, and what the application does about it.
PageMessageRules pageMessageRules();

} // namespace velmaro
