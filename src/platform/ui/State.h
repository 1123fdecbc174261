#pragma once

#include "platform/ui/Published.h"

#include <memory>

namespace ui {

// A value that belongs to a view and lives on over its redraws: the view's new value takes over
// what the old one at the same place held. A component names its states in `auto state() { return
// std::tie(…); }`.
template <class T> class State {
public:
    State(T initial)
        : initial_(std::move(initial))
    {
    }

    // This and all below: only inside `body()` and in what it makes.
    const T& operator()() const { return (*storage_)(); }

    void set(T value) const { *storage_ = std::move(value); }

    // A function that sets the state, also after the view that made it has been redrawn.
    std::function<void(T)> setter() const
    {
        return [storage = storage_](T value) { *storage = std::move(value); };
    }

    Binding<T> binding() const
    {
        return {[storage = storage_] { return (*storage)(); }, setter()};
    }

    void mount() { storage_ = std::make_shared<Published<T>>(initial_); }
    void adopt(const State& previous) { storage_ = previous.storage_; }

private:
    T initial_;
    std::shared_ptr<Published<T>> storage_; // null until the view is mounted
};

// A model that belongs to a view: made, by `Model::make()`, when the view is first built and kept
// as long as its place in the tree.
template <class Model> class StateObject {
public:
    // Only inside `body()` and in what it makes.
    const std::shared_ptr<Model>& operator()() const { return model_; }

    void mount() { model_ = Model::make(); }
    void adopt(const StateObject& previous) { model_ = previous.model_; }

private:
    std::shared_ptr<Model> model_;
};

} // namespace ui
