// The checks that need the toolkit: what there is to show windows on, to draw them with, and to
// print on.

#include "platform/gtk/diagnosis/Report.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <algorithm>
#include <array>
#include <epoxy/egl.h>
#include <epoxy/gl.h>
#include <gtk/gtk.h>
#include <gtk/gtkunixprint.h>
#include <string_view>

namespace gtk {

namespace {

// Starts the toolkit. Returns the display that it has opened; null where there is none.
GdkDisplay* openDisplay()
{
    gtk_disable_setlocale(); // the program has chosen its locale
    return gtk_init_check() ? gdk_display_get_default() : nullptr;
}

std::string kind(GdkDisplay* display)
{
    const std::string_view type = G_OBJECT_TYPE_NAME(display);
    if (type == "GdkX11Display")
        return "X11";
    if (type == "GdkWaylandDisplay")
        return "Wayland";
    return std::string(type);
}

std::string size(GdkMonitor* monitor)
{
    GdkRectangle place;
    gdk_monitor_get_geometry(monitor, &place);
    const int scale = gdk_monitor_get_scale_factor(monitor);
    auto text = std::to_string(place.width) + " × " + std::to_string(place.height);
    return scale == 1 ? text : text + " at scale " + std::to_string(scale);
}

// Parts of the names of drivers that draw with the main processor.
constexpr std::array softwareDrivers{"llvmpipe", "softpipe", "swrast", "SwiftShader"};

bool isSoftware(std::string_view driver)
{
    return std::ranges::any_of(softwareDrivers,
        [driver](const char* name) { return driver.find(name) != std::string_view::npos; });
}

// WebKit initialises EGL even to draw in software, and aborts if that fails.
bool canEngineStart()
{
    const auto starts = [](EGLDisplay display) {
        return display != EGL_NO_DISPLAY && eglInitialize(display, nullptr, nullptr);
    };
    const bool canDoWithoutDisplay =
        epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless");
    return (canDoWithoutDisplay
               && starts(eglGetPlatformDisplayEXT(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr)))
        || starts(eglGetDisplay(EGL_DEFAULT_DISPLAY));
}

std::string reason(RendererChoice choice)
{
    switch (choice) {
    case RendererChoice::noGraphicsProcessor:
        return "in software, for lack of a graphics processor that this user may open";
    case RendererChoice::environment:
        return "as the environment says";
    case RendererChoice::rememberedSoftware:
        return "in software, as chosen before";
    case RendererChoice::rememberedHardware:
        return "by the graphics processor, as chosen before";
    case RendererChoice::softwareOnTrial:
        return "in software, since the last start ended before it showed a page";
    case RendererChoice::hardware:
        return "by the graphics processor";
    }
    return "";
}

// The name of the graphics processor's driver; empty when the toolkit cannot use it.
std::string driverName(GdkSurface* surface)
{
    const ObjectPointer<GdkGLContext> context(gdk_surface_create_gl_context(surface, nullptr));
    if (!context || !gdk_gl_context_realize(context.get(), nullptr))
        return "";
    gdk_gl_context_make_current(context.get());
    const auto* name = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    return name ? name : "";
}

struct Printers {
    int count = 0; // of those that print on paper
    bool hasFilePrinter = false; // which makes PDF documents
};

gboolean add(GtkPrinter* printer, gpointer data)
{
    auto& printers = *static_cast<Printers*>(data);
    if (!gtk_printer_is_virtual(printer))
        ++printers.count;
    else if (gtk_printer_accepts_pdf(printer))
        printers.hasFilePrinter = true;
    return FALSE; // go on
}

} // namespace

std::vector<Finding> checkDisplay()
{
    auto* display = openDisplay();
    if (!display) {
        return {{
            .title = "Display",
            .finding = "there is none to open a window on",
            .verdict = Verdict::problem,
            .advice = "Start the program inside a desktop session; WAYLAND_DISPLAY or DISPLAY "
                      "names its display.",
        }};
    }
    auto finding = kind(display);
    auto* monitors = gdk_display_get_monitors(display);
    for (guint index = 0; index < g_list_model_get_n_items(monitors); ++index) {
        const ObjectPointer<GdkMonitor> monitor(
            GDK_MONITOR(g_list_model_get_item(monitors, index)));
        finding += ", " + size(monitor.get());
    }
    return {{"Display", finding}};
}

std::vector<Finding> checkRenderer(RendererChoice choice)
{
    Finding result = {.title = "Drawing", .finding = reason(choice)};
    if (choice == RendererChoice::softwareOnTrial) {
        result.verdict = Verdict::warning;
        result.advice = "The graphics driver may be broken. Update it, and answer the question at "
                        "the next start.";
    }
    if (!canEngineStart()) {
        result.finding += "; but OpenGL does not start";
        result.verdict = Verdict::problem;
        result.advice = "The web engine cannot run. Install or update the graphics driver (Mesa).";
        return {result};
    }
    auto* display = openDisplay();
    if (!display) {
        result.finding += "; windows not tried without a display";
        result.verdict = Verdict::warning;
        return {result};
    }

    const ObjectPointer<GdkSurface> surface(gdk_surface_new_toplevel(display));
    const ObjectPointer<GskRenderer> renderer(gsk_renderer_new_for_surface(surface.get()));
    result.finding += std::string("; ") + G_OBJECT_TYPE_NAME(renderer.get());
    if (usesGraphicsProcessor(choice)) {
        const auto driver = driverName(surface.get());
        result.finding += driver.empty() ? ", no OpenGL" : ", " + driver;
        if (driver.empty() || isSoftware(driver)) {
            result.verdict = Verdict::warning;
            result.advice = "The graphics processor is not used. Install or update its driver.";
        }
    }
    gsk_renderer_unrealize(renderer.get());
    gdk_surface_destroy(surface.get());
    return {result};
}

std::vector<Finding> checkPrinters()
{
    constexpr auto title = "Printers";
    if (!openDisplay())
        return {{title, "not looked for without a display", Verdict::warning}};

    Printers printers;
    gtk_enumerate_printers(add, &printers, nullptr, TRUE);
    if (!printers.hasFilePrinter) {
        return {{title, "GTK's own for PDF files is missing", Verdict::problem,
            "Reports cannot be saved. Install GTK's print backends."}};
    }
    if (printers.count == 0)
        return {{title, "none; reports can be saved as PDF"}};
    return {{title, std::to_string(printers.count) + ", and PDF files"}};
}

} // namespace gtk
