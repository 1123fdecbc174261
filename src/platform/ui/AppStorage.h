#pragma once

#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/ui/Published.h"

#include <map>
#include <optional>
#include <string>
#include <type_traits>

namespace ui {

// Lets bodies observe changes of settings: of just those that they have read. Main thread only.
template <class T> class SettingsChanges {
public:
    static SettingsChanges& current()
    {
        return platform::Platform::current().shared<SettingsChanges>();
    }

    // What is stored under `key` now; absent when nothing is. A body that asks is evaluated again
    // when that changes.
    std::optional<T> stored(const std::string& key)
    {
        auto setting = read(key);
        values_.try_emplace(key, setting).first->second();
        return setting;
    }

private:
    static std::optional<T> read(const std::string& key)
    {
        const auto& settings = platform::UserDefaults::standard();
        if (!settings.contains(key))
            return std::nullopt;
        if constexpr (std::is_same_v<T, bool>)
            return settings.boolean(key);
        else
            return static_cast<T>(settings.integer(key));
    }

    // The notification does not say which setting was changed.
    void settingsDidChange()
    {
        for (auto& [key, value] : values_) {
            if (auto setting = read(key); setting != value())
                value = setting;
        }
    }

    std::map<std::string, Published<std::optional<T>>> values_;
    const platform::NotificationCenter::Observer observer_ =
        platform::NotificationCenter::defaultCenter().addObserver(
            platform::UserDefaults::didChangeNotification, nullptr,
            [this](const auto&) { settingsDidChange(); });
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
        return SettingsChanges<T>::current().stored(key_).value_or(defaultValue_);
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
