#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "platform/ui/Views.h"

// A desktop with one window for views to be shown in.
struct Stage {
    simulated::SimulatedWindow& show(ui::View content)
    {
        auto& window = platform.application().simulateBareWindow({});
        window.show(std::move(content));
        return window;
    }

    // Lets the turn of the main loop end.
    void settle() { platform.mainQueue().runUntilIdle(); }

    simulated::SimulatedPlatform platform;
};

// A stage whose one window shows whatever its field holds.
struct ChangingStage : Stage {
    struct Screen {
        std::shared_ptr<ui::Published<ui::View>> content;
        ui::View body() const { return (*content)(); }
    };

    void change(ui::View content)
    {
        *screen = std::move(content);
        settle();
    }

    std::shared_ptr<ui::Published<ui::View>> screen = std::make_shared<ui::Published<ui::View>>();
    simulated::SimulatedWindow& window = show(Screen{screen});
};

// Presses the button that has this help text, or else this title; false when there is none.
inline bool press(const simulated::SimulatedWidget& widget, const std::string& help)
{
    for (const auto* button : widget.findAll<ui::ButtonNode>()) {
        const auto& options = button->node<ui::ButtonNode>()->options;
        if ((options.help.empty() ? options.title : options.help) == help) {
            button->node<ui::ButtonNode>()->action();
            return true;
        }
    }
    return false;
}

// The texts below `widget`, in order, with one blank between.
inline std::string textsOf(const simulated::SimulatedWidget& widget)
{
    std::string texts;
    for (const auto* text : widget.findAll<ui::TextNode>())
        texts += (texts.empty() ? "" : " ") + text->node<ui::TextNode>()->text;
    return texts;
}
