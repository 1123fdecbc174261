#include "platform/gtk/renderer/PageFrame.h"

#include "platform/gtk/foundation/ObjectPointer.h"

#include <memory>

namespace gtk {

namespace {

struct NodeRelease {
    void operator()(GskRenderNode* node) const { gsk_render_node_unref(node); }
};
using Node = std::unique_ptr<GskRenderNode, NodeRelease>;

// As it was painted last; painting it anew would ask the engine for more.
Node lastPainted(GtkWidget* widget)
{
    const ObjectPointer<GdkPaintable> picture(gtk_widget_paintable_new(widget));
    auto* snapshot = gtk_snapshot_new();
    gdk_paintable_snapshot(
        picture.get(), snapshot, gtk_widget_get_width(widget), gtk_widget_get_height(widget));
    return Node(gtk_snapshot_free_to_node(snapshot));
}

// The engine paints by way of this even when it has nothing to paint.
bool hasInk(cairo_surface_t* surface)
{
    if (!surface)
        return false;
    if (cairo_surface_get_type(surface) != CAIRO_SURFACE_TYPE_RECORDING)
        return true;
    double x = 0, y = 0, width = 0, height = 0;
    cairo_recording_surface_ink_extents(surface, &x, &y, &width, &height);
    return width > 0 && height > 0;
}

// Pages arrive as textures or as drawings, below whatever the toolkit has put around them.
bool holdsPicture(GskRenderNode* node)
{
    if (!node)
        return false;
    switch (gsk_render_node_get_node_type(node)) {
    case GSK_TEXTURE_NODE:
        return true;
    case GSK_CAIRO_NODE:
        return hasInk(gsk_cairo_node_get_surface(node));
    case GSK_CONTAINER_NODE:
        for (guint index = 0; index < gsk_container_node_get_n_children(node); ++index) {
            if (holdsPicture(gsk_container_node_get_child(node, index)))
                return true;
        }
        return false;
    case GSK_TRANSFORM_NODE:
        return holdsPicture(gsk_transform_node_get_child(node));
    case GSK_CLIP_NODE:
        return holdsPicture(gsk_clip_node_get_child(node));
    case GSK_ROUNDED_CLIP_NODE:
        return holdsPicture(gsk_rounded_clip_node_get_child(node));
    case GSK_OPACITY_NODE:
        return holdsPicture(gsk_opacity_node_get_child(node));
    case GSK_DEBUG_NODE:
        return holdsPicture(gsk_debug_node_get_child(node));
    case GSK_COLOR_NODE: // the ground behind a page
        return false;
    default: // a newer engine's way to show a page
        return true;
    }
}

} // namespace

bool showsPage(GtkWidget* webView)
{
    return holdsPicture(lastPainted(webView).get());
}

} // namespace gtk
