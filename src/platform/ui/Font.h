#pragma once

namespace ui {

// The desktop's own font in a size and weight. It is a plain value.
struct Font {
    enum class Weight { regular, medium, semibold, bold };

    // The size that the desktop gives its own dialogs, which follows the user's setting.
    static constexpr double desktopSize = 0;

    double size = 13; // points
    Weight weight = Weight::regular;

    bool operator==(const Font&) const = default;
};

} // namespace ui
