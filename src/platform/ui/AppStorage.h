#pragma once

#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/ui/Published.h"

#include <string>
#include <type_traits>

namespace ui {

// Tells bodies that settings were changed, by whomever.
struct SettingsChanges {
    static SettingsChanges& current()
    {
        return platform::Platform::current().shared<SettingsChanges>();
    }

    Published<int> count = 0;
    const platform::NotificationCenter::Observer observer =
        platform::NotificationCenter::defaultCenter().addObserver(
            platform::UserDefaults::didChangeNotification, nullptr,
            [this](const auto&) { count = count() + 1; });
};

// A setting that bodies can read, and are evaluated again when it changes.
template <class T> class AppStorage {
public:
    static_assert(std::is_same_v<T, bool> || std::is_same_v<T, int>);

    AppStorage(std::string key, T defaultValue)
        : key_(std::move(key))
        , defaultValue_(defaultValue)
    {
    }

    // The default when nothing is stored.
    T operator()() const
    {
        SettingsChanges::current().count();
        const auto& settings = platform::UserDefaults::standard();
        if (!settings.contains(key_))
            return defaultValue_;
        if constexpr (std::is_same_v<T, bool>)
            return settings.boolean(key_);
        else
            return static_cast<T>(settings.integer(key_));
    }

    // Stores the value at once.
    void set(T value) const
    {
        auto& settings = platform::UserDefaults::standard();
        if constexpr (std::is_same_v<T, bool>)
            settings.setBoolean(key_, value);
        else
            settings.setInteger(key_, value);
    }

private:
    std::string key_;
    T defaultValue_;
};

} // namespace ui
