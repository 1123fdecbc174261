// Plays a graphics driver with which pages never reach the screen: whoever looks at what a web view
// has painted finds nothing there.

#include <gsk/gsk.h>

extern "C" __attribute__((visibility("default"))) cairo_surface_t* gsk_cairo_node_get_surface(
    GskRenderNode*)
{
    return nullptr;
}
