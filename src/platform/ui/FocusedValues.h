#pragma once

#include "platform/ui/Published.h"

#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

namespace ui {

// What the views of a window publish for the menus: at most one object for each key. A key is a
// type that names the type of its object `Value`. The objects are shared, not copied.
class FocusedValues {
public:
    template <class Key> void set(std::shared_ptr<typename Key::Value> value)
    {
        entries_.emplace_back(typeid(Key), std::move(value));
    }

    // Null where none is published.
    template <class Key> std::shared_ptr<typename Key::Value> get() const
    {
        for (const auto& [key, value] : entries_) {
            if (key == typeid(Key))
                return std::static_pointer_cast<typename Key::Value>(value);
        }
        return nullptr;
    }

    bool isEmpty() const { return entries_.empty(); }
    bool operator==(const FocusedValues&) const = default;

private:
    std::vector<std::pair<std::type_index, std::shared_ptr<void>>> entries_;
};

} // namespace ui
