#include "platform/gtk/renderer/RendererChoice.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <unistd.h>

namespace gtk {

namespace {

constexpr auto toolkitVariable = "GSK_RENDERER";
constexpr auto driverVariable = "LIBGL_ALWAYS_SOFTWARE";
constexpr auto engineVariable = "WEBKIT_DISABLE_DMABUF_RENDERER";
constexpr std::array variables{
    toolkitVariable,
    driverVariable,
    engineVariable,
    "WEBKIT_DISABLE_COMPOSITING_MODE",
};

} // namespace

RendererChoice chooseRenderer(const RendererFacts& facts)
{
    if (!facts.hasGraphicsProcessor)
        return RendererChoice::noGraphicsProcessor;
    if (facts.isChosenInEnvironment)
        return RendererChoice::environment;
    if (facts.answer)
        return *facts.answer ? RendererChoice::rememberedHardware
                             : RendererChoice::rememberedSoftware;
    return facts.hasLastStartFailed ? RendererChoice::softwareOnTrial : RendererChoice::hardware;
}

bool hasGraphicsProcessor()
{
    std::error_code error;
    for (const auto& device : std::filesystem::directory_iterator("/dev/dri", error)) {
        const auto& path = device.path();
        if (path.filename().native().starts_with("renderD")
            && access(path.c_str(), R_OK | W_OK) == 0)
            return true;
    }
    return false;
}

bool isRendererChosenInEnvironment()
{
    return std::ranges::any_of(
        variables, [](const char* name) { return std::getenv(name) != nullptr; });
}

void apply(RendererChoice choice)
{
    constexpr int keep = 0;
    if (usesGraphicsProcessor(choice))
        return;
    setenv(toolkitVariable, "cairo", keep);
    // Toolkit and engine start OpenGL even where they draw nothing with it. The engine ends the
    // program when the driver fails. Where there is no graphics processor, neither need try, which
    // takes a tenth of a start; the engine's variable also keeps it from complaining.
    if (choice == RendererChoice::noGraphicsProcessor) {
        setenv("GDK_DEBUG", "gl-disable", keep);
        setenv(engineVariable, "1", keep);
    } else {
        setenv(driverVariable, "1", keep);
    }
}

} // namespace gtk
