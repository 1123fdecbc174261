#pragma once

#include <functional>

namespace ui {

// A two-way connection to a value that somebody else holds.
template <class T> struct Binding {
    std::function<T()> get;
    std::function<void(T)> set;
};

} // namespace ui
