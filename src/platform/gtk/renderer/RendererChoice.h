#pragma once

#include <optional>

namespace gtk {

// What windows and pages of a run are drawn by, and why.
enum class RendererChoice {
    hardware, // the graphics processor: nothing speaks against it
    noGraphicsProcessor, // software, which halves the time and the memory of a start there
    environment, // whatever the variables say that the user has set
    rememberedHardware, // the user has answered the safeguard's question
    rememberedSoftware,
    softwareOnTrial, // until the user has answered: the last start ended before it showed a page
};

// What the choice depends on.
struct RendererFacts {
    bool hasGraphicsProcessor = false;
    bool isChosenInEnvironment = false;
    std::optional<bool> answer; // to the question: whether to use the graphics processor
    bool hasLastStartFailed = false;
};

RendererChoice chooseRenderer(const RendererFacts& facts);

constexpr bool usesGraphicsProcessor(RendererChoice choice)
{
    return choice == RendererChoice::hardware || choice == RendererChoice::rememberedHardware
        || choice == RendererChoice::environment;
}

// Whether the machine has a graphics processor that programs may draw with.
bool hasGraphicsProcessor();

// Whether the user has set a variable with which toolkit, engine or drivers are told how to draw.
bool isRendererChosenInEnvironment();

// Tells toolkit, engine and drivers by way of the environment, where variables that are set stay as
// they are. To be called before the toolkit starts, while there is one thread.
void apply(RendererChoice choice);

} // namespace gtk
