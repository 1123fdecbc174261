#pragma once

#include "platform/ui/ViewNodes.h"

#include <string>

namespace simulated {

// One line that tells the node's kind and all that it sets apart from the usual, its children left
// out. Two nodes that look alike on screen have the same text.
std::string nodeText(const ui::Node& node);

} // namespace simulated
