#pragma once

#include <functional>

namespace gtk {

// An X server that ends takes its programs with it, without a word: on desktops that start straight
// from it, this is how a session ends. From then on `lastWords` is called once before the program
// goes, in the middle of whatever it was doing, and must not touch anything on the display. A
// window that was killed says nothing: its server is still there. On Wayland this does nothing.
//
// To be called once, when the toolkit has started.
void onLostDisplay(std::function<void()> lastWords);

} // namespace gtk
