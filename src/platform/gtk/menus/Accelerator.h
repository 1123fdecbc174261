#pragma once

#include "platform/ui/KeyEquivalent.h"

#include <string>
#include <vector>

namespace gtk {

// The toolkit's name for these keys as people are shown them.
std::string shownAccelerator(const ui::KeyEquivalent& keys);

// The names by which the toolkit knows any of these keys when they are pressed, those among them
// that are taken for the same, such as "+" on the keypad.
std::vector<std::string> accelerators(const std::vector<ui::KeyEquivalent>& shortcuts);

} // namespace gtk
