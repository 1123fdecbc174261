#include "platform/ui/Views.h"

namespace ui {

namespace {

std::shared_ptr<TextNode> textNode(std::string text, const TextOptions& options)
{
    auto node = std::make_shared<TextNode>(std::move(text));
    node->font = options.font;
    node->color = options.color;
    return node;
}

} // namespace

Text::Text(std::string text, TextOptions options)
    : View(textNode(std::move(text), options))
{
}

} // namespace ui
