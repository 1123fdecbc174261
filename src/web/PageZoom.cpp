#include "web/PageZoom.h"

#include <algorithm>
#include <array>

namespace velmaro {

namespace {
constexpr std::array steps{50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};
}

int PageZoom::percent() const
{
    return std::clamp(stored_(), steps.front(), steps.back());
}

int PageZoom::larger() const
{
    const auto* next = std::ranges::upper_bound(steps, percent());
    return next == steps.end() ? steps.back() : *next;
}

int PageZoom::smaller() const
{
    const auto* here = std::ranges::lower_bound(steps, percent());
    return here == steps.begin() ? steps.front() : *std::prev(here);
}

} // namespace velmaro
