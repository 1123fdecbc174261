#include "platform/gtk/ui/Pictures.h"

#include "platform/gtk/foundation/ObjectPointer.h"

#include <cairomm/context.h>
#include <gdkmm/texture.h>
#include <giomm/resource.h>
#include <librsvg/rsvg.h>
#include <map>
#include <utility>

namespace gtk {

namespace {

constexpr auto iconPath = "/example/velmaro/Online/application-icon.png";

Cairo::RefPtr<Cairo::ImageSurface> draw(const std::string& name, int pixels)
{
    const auto path = "/example/velmaro/Online/symbols/" + name + ".svg";
    if (!Gio::Resource::get_file_exists_global_nothrow(path))
        return {};
    const auto data = Gio::Resource::lookup_data_global(path);
    gsize size = 0;
    const auto* bytes = static_cast<const guint8*>(data->get_data(size));
    const ObjectPointer<RsvgHandle> handle(rsvg_handle_new_from_data(bytes, size, nullptr));
    if (!handle)
        return {};

    auto surface = Cairo::ImageSurface::create(Cairo::Surface::Format::A8, pixels, pixels);
    const auto context = Cairo::Context::create(surface);
    const RsvgRectangle viewport{0, 0, static_cast<double>(pixels), static_cast<double>(pixels)};
    rsvg_handle_render_document(handle.get(), context->cobj(), &viewport, nullptr);
    return surface;
}

} // namespace

Glib::RefPtr<Gdk::Paintable> applicationIcon()
{
    static const auto icon = Gio::Resource::get_file_exists_global_nothrow(iconPath)
        ? Gdk::Texture::create_from_resource(iconPath)
        : Glib::RefPtr<Gdk::Texture>();
    return icon;
}

Cairo::RefPtr<Cairo::ImageSurface> symbolMask(const std::string& name, int pixels)
{
    static std::map<std::pair<std::string, int>, Cairo::RefPtr<Cairo::ImageSurface>> masks;
    const auto [entry, isNew] = masks.try_emplace({name, pixels});
    if (isNew)
        entry->second = draw(name, pixels);
    return entry->second;
}

} // namespace gtk
