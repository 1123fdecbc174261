#pragma once

namespace gtk {

// Whether the machine has a graphics processor that programs may draw with.
bool hasGraphicsProcessor();

// Without a graphics processor, lets the toolkit draw in plain memory, which halves the time and
// the memory that a start takes there; GSK_RENDERER in the user's environment wins. To be called
// before the toolkit starts, while there is one thread.
void chooseRenderer();

} // namespace gtk
