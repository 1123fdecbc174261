#include "platform/gtk/windows/ApplicationIcon.h"

#include <gdkmm/texture.h>
#include <giomm/resource.h>

namespace gtk {

namespace {
constexpr auto iconPath = "/example/velmaro/Online/application-icon.png";
}

Glib::RefPtr<Gdk::Paintable> applicationIcon()
{
    static const auto icon = Gio::Resource::get_file_exists_global_nothrow(iconPath)
        ? Gdk::Texture::create_from_resource(iconPath)
        : Glib::RefPtr<Gdk::Texture>();
    return icon;
}

} // namespace gtk
