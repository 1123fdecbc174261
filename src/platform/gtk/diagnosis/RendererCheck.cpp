#include "platform/gtk/diagnosis/Checks.h"
#include "platform/gtk/diagnosis/OpenDisplay.h"
#include "platform/gtk/foundation/ObjectPointer.h"

#include <algorithm>
#include <array>
#include <epoxy/egl.h>
#include <epoxy/gl.h>
#include <string_view>

namespace gtk {

namespace {

// How drivers that draw with the main processor call themselves.
constexpr std::array softwareDrivers{"llvmpipe", "softpipe", "swrast", "SwiftShader"};

bool isSoftware(std::string_view driver)
{
    return std::ranges::any_of(softwareDrivers,
        [driver](const char* name) { return driver.find(name) != std::string_view::npos; });
}

// The engine starts OpenGL without any display, whatever it draws with, and ends the program when
// that fails.
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

// What the driver of the graphics processor calls itself; empty where the toolkit cannot use it.
std::string driverName(GdkSurface* surface)
{
    const ObjectPointer<GdkGLContext> context(gdk_surface_create_gl_context(surface, nullptr));
    if (!context || !gdk_gl_context_realize(context.get(), nullptr))
        return "";
    gdk_gl_context_make_current(context.get());
    const auto* name = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    return name ? name : "";
}

} // namespace

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

} // namespace gtk
