#pragma once

#include "platform/ui/KeyEquivalent.h"

#include <string>
#include <vector>

namespace gtk {

// The toolkit's name for these keys as people are shown them.
std::string shownAccelerator(const ui::KeyEquivalent& keys);

// The names by which the toolkit knows any of these keys when they are pressed. Keys that count as
// the same, such as "+" on the keypad, are among them.
std::vector<std::string> accelerators(const std::vector<ui::KeyEquivalent>& shortcuts);

} // namespace gtk
