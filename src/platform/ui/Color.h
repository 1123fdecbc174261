#pragma once

namespace ui {

// A colour: either one of the desktop's own, which follow its light and dark look, or a fixed one
// in sRGB. It is a plain value.
struct Color {
    enum class Role {
        fixed,
        accent,
        label,
        secondaryLabel,
        windowBackground,
        underPageBackground,
        textBackground,
        material,
        separator
    };

    Role role = Role::fixed;
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;

    static Color rgb(double red, double green, double blue)
    {
        return {Role::fixed, red, green, blue, 1};
    }

    constexpr Color withOpacity(double value) const
    {
        Color color = *this;
        color.opacity = value;
        return color;
    }

    bool operator==(const Color&) const = default;

    static const Color clear;
    static const Color black;
    static const Color white;
    static const Color gray;
    static const Color accent;
    static const Color label;
    static const Color secondaryLabel;
    static const Color windowBackground;
    static const Color underPageBackground;
    static const Color textBackground;
    static const Color material; // of panels that float over a page
    static const Color separator;
};

inline constexpr Color Color::clear{.opacity = 0};
inline constexpr Color Color::black{};
inline constexpr Color Color::white{.red = 1, .green = 1, .blue = 1};
inline constexpr Color Color::gray{.red = 0.557, .green = 0.557, .blue = 0.576};
inline constexpr Color Color::accent{.role = Role::accent};
inline constexpr Color Color::label{.role = Role::label};
inline constexpr Color Color::secondaryLabel{.role = Role::secondaryLabel};
inline constexpr Color Color::windowBackground{.role = Role::windowBackground};
inline constexpr Color Color::underPageBackground{.role = Role::underPageBackground};
inline constexpr Color Color::textBackground{.role = Role::textBackground};
inline constexpr Color Color::material{.role = Role::material};
inline constexpr Color Color::separator{.role = Role::separator};

} // namespace ui
