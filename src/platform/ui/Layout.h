#pragma once

#include <limits>
#include <optional>

namespace ui {

// Lengths are points. All of these are plain values.

inline constexpr double infinity = std::numeric_limits<double>::infinity();

enum class Axis { horizontal, vertical };
enum class Edge { top, leading, bottom, trailing };

// Where a child stands in an area larger than itself.
enum class Alignment {
    center,
    top,
    leading,
    bottom,
    trailing,
    topLeading,
    topTrailing,
    bottomLeading,
    bottomTrailing
};

// An area for one child. `width` and `height` fix it; the others bound it, and an infinite maximum
// makes it take all there is. What is absent is left to the child.
struct FrameOptions {
    std::optional<double> width = {};
    std::optional<double> height = {};
    std::optional<double> minWidth = {};
    std::optional<double> idealWidth = {};
    std::optional<double> maxWidth = {};
    std::optional<double> minHeight = {};
    std::optional<double> idealHeight = {};
    std::optional<double> maxHeight = {};
    Alignment alignment = Alignment::center;

    bool operator==(const FrameOptions&) const = default;
};

// Room around a child. An edge that is absent takes the value of its axis.
struct PaddingOptions {
    double horizontal = 0;
    double vertical = 0;
    std::optional<double> top = {};
    std::optional<double> leading = {};
    std::optional<double> bottom = {};
    std::optional<double> trailing = {};

    bool operator==(const PaddingOptions&) const = default;
};

} // namespace ui
