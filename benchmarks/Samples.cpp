#include "Samples.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

void Samples::add(std::chrono::nanoseconds duration)
{
    const double sample = std::chrono::duration<double, std::milli>(duration).count();
    milliseconds_.insert(std::ranges::upper_bound(milliseconds_, sample), sample);
}

std::string Samples::text() const
{
    char text[80];
    std::snprintf(text, sizeof(text), "%.0f (%.0f-%.0f)", median(), quantile(0.25), quantile(0.75));
    return text;
}

double Samples::quantile(double fraction) const
{
    const double position = fraction * static_cast<double>(milliseconds_.size() - 1);
    const auto below = static_cast<std::size_t>(position);
    const auto above = std::min(below + 1, milliseconds_.size() - 1);
    return std::lerp(
        milliseconds_[below], milliseconds_[above], position - static_cast<double>(below));
}
