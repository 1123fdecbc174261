#pragma once

#include <functional>

namespace ui {

// A two-way connection to a value that is kept elsewhere and must outlive it. Main thread only.
template <class T> struct Binding {
    std::function<T()> get;
    std::function<void(T)> set;
};

} // namespace ui
