#pragma once

#include "platform/ui/Binding.h"
#include "platform/ui/Observation.h"

#include <utility>

namespace ui {

// A field of a model that publishes its changes. Reading it inside the `body()` of a view
// subscribes that view; writing always notifies, and the views that have read it are redrawn once
// at the end of the turn. Main thread only.
template <class T> class Published : public Subject {
public:
    Published() = default;
    Published(T initial)
        : value_(std::move(initial))
    {
    }

    const T& operator()() const
    {
        noteRead();
        return value_;
    }

    Published& operator=(T value)
    {
        value_ = std::move(value);
        notifyObservers();
        return *this;
    }

    // Changes the value in place and notifies once.
    template <class Change> void mutate(Change&& change)
    {
        std::forward<Change>(change)(value_);
        notifyObservers();
    }

    // Reads and writes this field, which must outlive the binding.
    Binding<T> binding()
    {
        return {[this] { return (*this)(); }, [this](T value) { *this = std::move(value); }};
    }

private:
    T value_{};
};

} // namespace ui
