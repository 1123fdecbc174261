#pragma once

#include "platform/foundation/Data.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// The per-user settings store: typed values under string keys, kept across launches. Reading a key
// that holds nothing, or a value of another type, is an absence and never an error. A write is
// visible to reads at once and reaches the disk whole or not at all; one that cannot be stored is
// logged, and what was stored before stays. The platform owns the standard store. Main thread only.
class UserDefaults {
public:
    // Posted after every change of the standard store.
    static constexpr auto didChangeNotification = "NSUserDefaultsDidChangeNotification";

    static UserDefaults& standard();

    virtual ~UserDefaults() = default;

    // Whether any value, of whatever type, is stored under `key`.
    virtual bool contains(const std::string& key) const = 0;

    // Absent unless an array of nothing but strings is stored.
    virtual std::optional<std::vector<std::string>> stringArray(const std::string& key) const = 0;

    // 0 unless a number is stored; a fraction is cut off.
    virtual std::int64_t integer(const std::string& key) const = 0;

    // False unless true or a number other than zero is stored.
    virtual bool boolean(const std::string& key) const = 0;

    virtual std::optional<Data> data(const std::string& key) const = 0;

    virtual void setStringArray(const std::string& key, const std::vector<std::string>& value) = 0;
    virtual void setInteger(const std::string& key, std::int64_t value) = 0;
    virtual void setBoolean(const std::string& key, bool value) = 0;
    virtual void setData(const std::string& key, const Data& value) = 0;

    // Removing what is not there does nothing.
    virtual void removeObject(const std::string& key) = 0;
};

} // namespace platform
