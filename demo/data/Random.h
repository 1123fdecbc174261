#pragma once

#include <cstdint>
#include <iterator>

namespace demo {

/// A small generator whose numbers are the same with every compiler and library.
class Random {
public:
    explicit Random(std::uint64_t seed)
        : state_(seed)
    {
    }

    /// From 0 to below 1.
    double fraction() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }

    /// From first to last, both included.
    int between(int first, int last)
    {
        return first + static_cast<int>(next() % static_cast<std::uint64_t>(last - first + 1));
    }

    double between(double first, double last) { return first + (last - first) * fraction(); }

    template <class Range> auto& oneOf(Range&& range) { return range[next() % std::size(range)]; }

private:
    std::uint64_t next()
    {
        state_ += 0x9e3779b97f4a7c15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state_;
};

} // namespace demo
