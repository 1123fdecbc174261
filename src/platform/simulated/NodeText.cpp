#include "platform/simulated/NodeText.h"

#include <array>
#include <cmath>
#include <sstream>

namespace simulated {

namespace {

template <class Enum> constexpr std::size_t indexOf(Enum value)
{
    return static_cast<std::size_t>(value);
}

constexpr std::array alignmentNames = {"center", "top", "leading", "bottom", "trailing",
    "topLeading", "topTrailing", "bottomLeading", "bottomTrailing"};
constexpr std::array roleNames = {"fixed", "accent", "label", "secondaryLabel", "windowBackground",
    "underPageBackground", "textBackground", "material", "separator"};
constexpr std::array weightNames = {"regular", "medium", "semibold", "bold"};
constexpr std::array edgeNames = {"top", "leading", "bottom", "trailing"};

// One line of words, each with what it tells.
class Line {
public:
    explicit Line(const std::string& start) { stream_ << start; }

    template <class T> Line& add(const char* word, const T& value)
    {
        stream_ << ' ' << word << ' ' << value;
        return *this;
    }

    Line& add(const char* word)
    {
        stream_ << ' ' << word;
        return *this;
    }

    Line& addPresent(const char* word, std::optional<double> value)
    {
        if (value && std::isinf(*value))
            return add(word, "infinity");
        return value ? add(word, *value) : *this;
    }

    Line& addColor(const ui::Color& color)
    {
        if (color.role == ui::Color::Role::fixed)
            stream_ << " rgb " << color.red << ' ' << color.green << ' ' << color.blue;
        else
            stream_ << ' ' << roleNames[indexOf(color.role)];
        return color.opacity == 1 ? *this : add("opacity", color.opacity);
    }

    std::string text() const { return stream_.str(); }

private:
    std::ostringstream stream_;
};

std::string groupText(const ui::GroupNode& node)
{
    Line line("group");
    if (node.opacity != 1)
        line.add("opacity", node.opacity);
    if (!node.allowsHitTesting)
        line.add("untouchable");
    if (node.transition.fades)
        line.add("fades");
    if (node.transition.movesFrom)
        line.add("movesFrom", edgeNames[indexOf(*node.transition.movesFrom)]);
    if (node.transition.duration > 0)
        line.add("duration", node.transition.duration);
    if (!node.help.empty())
        line.add("help").add(("\"" + node.help + "\"").c_str());
    if (!node.accessibility.label.empty())
        line.add("named").add(("\"" + node.accessibility.label + "\"").c_str());
    if (node.accessibility.isSelected)
        line.add("selected");
    if (node.isScrolledToVisible)
        line.add("scrolledToVisible");
    if (node.onOpenURL)
        line.add("opensURLs");
    return line.text();
}

std::string frameText(const ui::FrameOptions& options)
{
    return Line("frame")
        .addPresent("width", options.width)
        .addPresent("height", options.height)
        .addPresent("minWidth", options.minWidth)
        .addPresent("idealWidth", options.idealWidth)
        .addPresent("maxWidth", options.maxWidth)
        .addPresent("minHeight", options.minHeight)
        .addPresent("idealHeight", options.idealHeight)
        .addPresent("maxHeight", options.maxHeight)
        .add(alignmentNames[indexOf(options.alignment)])
        .text();
}

std::string paddingText(const ui::PaddingOptions& options)
{
    return Line("padding")
        .add("top", options.top.value_or(options.vertical))
        .add("leading", options.leading.value_or(options.horizontal))
        .add("bottom", options.bottom.value_or(options.vertical))
        .add("trailing", options.trailing.value_or(options.horizontal))
        .text();
}

std::string layersText(const ui::LayersNode& node)
{
    Line line("layers");
    line.add(alignmentNames[indexOf(node.alignment)]);
    if (node.base != ui::LayersNode::allChildren)
        line.add("sizedBy", node.base);
    return line.text();
}

std::string textText(const ui::TextNode& node)
{
    return Line("text \"" + node.text + "\"")
        .add("size", node.options.font.size)
        .add(weightNames[indexOf(node.options.font.weight)])
        .addColor(node.options.color)
        .text();
}

std::string symbolText(const ui::SymbolNode& node)
{
    return Line("symbol " + node.name)
        .add("size", node.options.font.size)
        .add(weightNames[indexOf(node.options.font.weight)])
        .addColor(node.options.color)
        .text();
}

std::string gradientText(const ui::GradientOptions& options)
{
    return Line("linearGradient").addColor(options.from).addColor(options.to).text();
}

std::string shapeText(const ui::ShapeOptions& options)
{
    return Line("roundedRectangle")
        .add("cornerRadius", options.cornerRadius)
        .addColor(options.fill)
        .text();
}

std::string buttonText(const ui::ButtonOptions& options)
{
    Line line("button \"" + (options.help.empty() ? options.title : options.help) + "\"");
    if (!options.isEnabled)
        line.add("disabled");
    if (options.isTinted)
        line.add("tinted");
    return line.text();
}

std::string toggleText(const ui::ToggleNode& node)
{
    return "toggle \"" + node.title + (node.isOn.get() ? "\" on" : "\" off");
}

std::string progressBarText(const ui::ProgressBarNode& node)
{
    Line line("progressBar");
    line.addPresent("fraction", node.fraction);
    if (!node.options.text.empty())
        line.add(("\"" + node.options.text + "\"").c_str());
    return line.text();
}

} // namespace

std::string nodeText(const ui::Node& node)
{
    switch (node.kind) {
    case ui::Kind::component:
        return "component";
    case ui::Kind::sequence:
        return "sequence";
    case ui::Kind::hosted:
        return "hosted";
    case ui::Kind::group:
        return groupText(static_cast<const ui::GroupNode&>(node));
    case ui::Kind::frame:
        return frameText(static_cast<const ui::FrameNode&>(node).options);
    case ui::Kind::padding:
        return paddingText(static_cast<const ui::PaddingNode&>(node).options);
    case ui::Kind::horizontalStack:
        return Line("row")
            .add("spacing", static_cast<const ui::StackNode&>(node).options.spacing)
            .text();
    case ui::Kind::verticalStack:
        return Line("column")
            .add("spacing", static_cast<const ui::StackNode&>(node).options.spacing)
            .text();
    case ui::Kind::layers:
        return layersText(static_cast<const ui::LayersNode&>(node));
    case ui::Kind::fill:
        return Line("fill").addColor(static_cast<const ui::FillNode&>(node).color).text();
    case ui::Kind::linearGradient:
        return gradientText(static_cast<const ui::LinearGradientNode&>(node).options);
    case ui::Kind::text:
        return textText(static_cast<const ui::TextNode&>(node));
    case ui::Kind::symbol:
        return symbolText(static_cast<const ui::SymbolNode&>(node));
    case ui::Kind::spinner:
        return "spinner";
    case ui::Kind::spacer:
        return Line("spacer")
            .add("minLength", static_cast<const ui::SpacerNode&>(node).minLength)
            .text();
    case ui::Kind::divider:
        return "divider";
    case ui::Kind::roundedRectangle:
        return shapeText(static_cast<const ui::RoundedRectangleNode&>(node).options);
    case ui::Kind::button:
        return buttonText(static_cast<const ui::ButtonNode&>(node).options);
    case ui::Kind::toggle:
        return toggleText(static_cast<const ui::ToggleNode&>(node));
    case ui::Kind::textArea:
        return "textArea \"" + static_cast<const ui::TextAreaNode&>(node).text + "\"";
    case ui::Kind::icon:
        return "icon " + static_cast<const ui::IconNode&>(node).name;
    case ui::Kind::textField:
        return "textField \"" + static_cast<const ui::TextFieldNode&>(node).text.get() + "\"";
    case ui::Kind::scrollArea:
        return "scrollArea";
    case ui::Kind::sheet:
        return "sheet";
    case ui::Kind::popover:
        return "popover";
    case ui::Kind::toolbar:
        return "toolbar";
    case ui::Kind::applicationIcon:
        return "applicationIcon";
    case ui::Kind::progressBar:
        return progressBarText(static_cast<const ui::ProgressBarNode&>(node));
    }
    return "unknown";
}

} // namespace simulated
