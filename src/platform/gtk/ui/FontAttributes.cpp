#include "platform/gtk/ui/FontAttributes.h"

#include <cmath>

namespace gtk {

namespace {

Pango::Weight pangoWeight(ui::Font::Weight weight)
{
    switch (weight) {
    case ui::Font::Weight::medium:
        return Pango::Weight::MEDIUM;
    case ui::Font::Weight::semibold:
        return Pango::Weight::SEMIBOLD;
    case ui::Font::Weight::bold:
        return Pango::Weight::BOLD;
    default:
        return Pango::Weight::NORMAL;
    }
}

} // namespace

Pango::AttrList fontAttributes(const ui::Font& font)
{
    Pango::AttrList attributes;
    auto weight = Pango::Attribute::create_attr_weight(pangoWeight(font.weight));
    attributes.insert(weight);
    if (font.size != ui::Font::desktopSize) {
        auto size = Pango::Attribute::create_attr_size_absolute(
            static_cast<int>(std::lround(font.size * PANGO_SCALE)));
        attributes.insert(size);
    }
    return attributes;
}

} // namespace gtk
