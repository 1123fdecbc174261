#pragma once

#include "platform/ui/Node.h"
#include "platform/ui/State.h"

// The catalogue of views: everything that a body can be built of. Options come first in the braces,
// then the children.

namespace ui {

struct StackOptions {
    double spacing = 8; // points between children
};

struct LayersOptions {
    Alignment alignment = Alignment::center;
};

// A row, its children centred vertically.
struct HStack : View {
    template <class... Children>
    HStack(StackOptions options, Children&&... children)
        : View(std::make_shared<StackNode>(Axis::horizontal, options.spacing,
            std::vector<View>{View(std::forward<Children>(children))...}))
    {
    }
};

// A column, its children centred horizontally.
struct VStack : View {
    template <class... Children>
    VStack(StackOptions options, Children&&... children)
        : View(std::make_shared<StackNode>(Axis::vertical, options.spacing,
            std::vector<View>{View(std::forward<Children>(children))...}))
    {
    }
};

// Children on top of each other, the last one in front.
struct ZStack : View {
    template <class... Children>
    ZStack(LayersOptions options, Children&&... children)
        : View(std::make_shared<LayersNode>(
            std::vector<View>{View(std::forward<Children>(children))...}, options.alignment,
            LayersNode::allChildren))
    {
    }
};

// An area of one colour that takes all the room there is.
struct Fill : View {
    explicit Fill(Color color)
        : View(std::make_shared<FillNode>(color))
    {
    }
};

// One line of text.
struct TextOptions {
    Font font = {};
    Color color = Color::label;
};

struct Text : View {
    explicit Text(std::string text, TextOptions options = {});
};

// The application's own picture, scaled to fit.
struct ApplicationIcon : View {
    ApplicationIcon()
        : View(std::make_shared<ApplicationIconNode>())
    {
    }
};

// A thin line that is filled to `fraction`, from 0 to 1.
struct ProgressBar : View {
    explicit ProgressBar(double fraction)
        : View(std::make_shared<ProgressBarNode>(fraction))
    {
    }
};

// One view for each element. `key(element)` is the text that an element is known by: a view follows
// its key, with its state, wherever the order takes it. Two elements with one key are told apart by
// their order.
template <class Elements, class Key, class Content>
View ForEach(const Elements& elements, Key key, Content content)
{
    auto sequence = std::make_shared<SequenceNode>();
    for (const auto& element : elements) {
        sequence->keys.push_back(key(element));
        sequence->children.push_back(View(content(element)));
    }
    return View(std::move(sequence));
}

} // namespace ui
