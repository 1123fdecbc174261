#include "Desktop.h"

#include <algorithm>
#include <array>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <memory>
#include <stdexcept>
#include <X11/extensions/Xdamage.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace desktop {

namespace {

Display* display()
{
    static Display* const connection = [] {
        // Windows come and go while they are looked at; each operation tells by its result.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
        Display* opened = XOpenDisplay(nullptr);
        if (!opened)
            throw std::runtime_error("no X display");
        return opened;
    }();
    return connection;
}

Atom atom(const char* name)
{
    return XInternAtom(display(), name, False);
}

struct Freed {
    void operator()(void* data) const { XFree(data); }
};

// The elements of a property: of type unsigned char where its format is 8, of unsigned long where
// it is 32.
template <class Element> std::vector<Element> property(Window window, const char* name)
{
    Atom type = None;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* data = nullptr;
    const int result = XGetWindowProperty(display(), window, atom(name), 0, 100'000, False,
        AnyPropertyType, &type, &format, &count, &rest, &data);
    const std::unique_ptr<void, Freed> owner(data);
    if (result != Success || format != (sizeof(Element) == 1 ? 8 : 32))
        return {};
    const auto* elements = reinterpret_cast<const Element*>(data);
    return {elements, elements + count};
}

// The four numbers of a property; zeros where it is missing.
std::array<int, 4> fourNumbers(Window window, const char* name)
{
    std::array<int, 4> result = {};
    const auto numbers = property<unsigned long>(window, name);
    if (numbers.size() >= result.size())
        std::copy_n(numbers.begin(), result.size(), result.begin());
    return result;
}

} // namespace

double Picture::uniformity() const
{
    // Some of the pixels tell as much as all, and are counted in time for every frame.
    constexpr int step = 3;
    constexpr int border = 10;
    std::vector<std::uint32_t> sorted;
    for (int y = height / 5; y < height - border; y += step) {
        for (int x = border; x < width - border; x += step)
            sorted.push_back(pixels[static_cast<std::size_t>(y) * width + x]);
    }
    if (sorted.empty())
        return 1;
    std::sort(sorted.begin(), sorted.end());
    std::size_t most = 0, run = 0;
    for (std::size_t index = 0; index < sorted.size(); ++index) {
        run = index && sorted[index] == sorted[index - 1] ? run + 1 : 1;
        most = std::max(most, run);
    }
    return static_cast<double>(most) / static_cast<double>(sorted.size());
}

bool Picture::writePNG(const std::string& path) const
{
    std::vector<guchar> bytes;
    bytes.reserve(pixels.size() * 3);
    for (const auto pixel : pixels) {
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<guchar>(pixel >> shift));
    }
    GdkPixbuf* image = gdk_pixbuf_new_from_data(
        bytes.data(), GDK_COLORSPACE_RGB, FALSE, 8, width, height, width * 3, nullptr, nullptr);
    const bool isWritten = gdk_pixbuf_save(image, path.c_str(), "png", nullptr, nullptr);
    g_object_unref(image);
    return isWritten;
}

std::string DesktopWindow::title() const
{
    const auto text = property<unsigned char>(id_, "_NET_WM_NAME");
    return {text.begin(), text.end()};
}

Rectangle DesktopWindow::frame() const
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display(), id_, &attributes))
        return {};
    int x = 0, y = 0;
    Window child = None;
    XTranslateCoordinates(display(), id_, attributes.root, 0, 0, &x, &y, &child);

    // Each of the left, right, upper and lower side.
    const auto added = fourNumbers(id_, "_NET_FRAME_EXTENTS");
    const auto shadow = fourNumbers(id_, "_GTK_FRAME_EXTENTS");
    const int left = added[0] - shadow[0], right = added[1] - shadow[1];
    const int top = added[2] - shadow[2], bottom = added[3] - shadow[3];
    return {x - left, y - top, attributes.width + left + right, attributes.height + top + bottom};
}

std::optional<Picture> DesktopWindow::picture() const
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display(), id_, &attributes) || attributes.map_state != IsViewable)
        return {};
    XImage* image =
        XGetImage(display(), id_, 0, 0, attributes.width, attributes.height, AllPlanes, ZPixmap);
    if (!image)
        return {};
    Picture picture{.width = image->width, .height = image->height, .pixels = {}};
    picture.pixels.reserve(static_cast<std::size_t>(image->width) * image->height);
    for (int y = 0; y < image->height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(
            image->data + static_cast<std::ptrdiff_t>(y) * image->bytes_per_line);
        std::transform(row, row + image->width, std::back_inserter(picture.pixels),
            [](std::uint32_t pixel) { return pixel & 0xffffff; });
    }
    XDestroyImage(image);
    return picture;
}

void DesktopWindow::close() const
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = id_;
    event.xclient.message_type = atom("_NET_CLOSE_WINDOW");
    event.xclient.format = 32;
    event.xclient.data.l[1] = 2; // On behalf of the user.
    XSendEvent(display(), DefaultRootWindow(display()), False,
        SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XFlush(display());
}

DrawingWatch::DrawingWatch(const DesktopWindow& window)
{
    int firstEvent = 0, firstError = 0;
    XDamageQueryExtension(display(), &firstEvent, &firstError);
    damage_ = XDamageCreate(display(), window.id(), XDamageReportNonEmpty);
}

DrawingWatch::~DrawingWatch()
{
    XDamageDestroy(display(), damage_);
}

bool DrawingWatch::hasDrawn()
{
    bool hasDrawn = false;
    while (XPending(display())) {
        XEvent event;
        XNextEvent(display(), &event);
        hasDrawn = true; // No other kind of event is asked for.
    }
    if (hasDrawn)
        XDamageSubtract(display(), damage_, None, None);
    return hasDrawn;
}

std::vector<DesktopWindow> Desktop::windows()
{
    std::vector<DesktopWindow> result;
    for (const auto id : property<unsigned long>(DefaultRootWindow(display()), "_NET_CLIENT_LIST"))
        result.emplace_back(id);
    return result;
}

std::optional<DesktopWindow> Desktop::window(const std::string& title)
{
    for (const auto& window : windows()) {
        if (window.title() == title)
            return window;
    }
    return {};
}

Rectangle Desktop::workArea()
{
    // Of the first workspace; the others follow.
    const auto [x, y, width, height] = fourNumbers(DefaultRootWindow(display()), "_NET_WORKAREA");
    return {x, y, width, height};
}

} // namespace desktop
