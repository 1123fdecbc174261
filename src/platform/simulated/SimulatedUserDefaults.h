#pragma once

#include "platform/foundation/UserDefaults.h"
#include "platform/simulated/Faults.h"

#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace simulated {

// The settings store in memory. It starts empty. A write that fails reaches nothing, as on a full
// disk: what was stored stays.
class SimulatedUserDefaults final : public platform::UserDefaults {
public:
    explicit SimulatedUserDefaults(Faults& faults)
        : faults_(faults)
    {
    }

    // Whatever a settings file may hold under a key, also what the application never writes.
    using Stored = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>,
        platform::Data>;

    bool contains(const std::string& key) const override;
    std::optional<std::vector<std::string>> stringArray(const std::string& key) const override;
    std::int64_t integer(const std::string& key) const override;
    bool boolean(const std::string& key) const override;
    std::optional<platform::Data> data(const std::string& key) const override;

    void setStringArray(const std::string& key, const std::vector<std::string>& value) override;
    void setInteger(const std::string& key, std::int64_t value) override;
    void setBoolean(const std::string& key, bool value) override;
    void setData(const std::string& key, const platform::Data& value) override;
    void removeObject(const std::string& key) override;

    // All that is stored. A copy of it, planted in the next platform's store, is what a new launch
    // finds.
    const std::map<std::string, Stored>& contents() const { return contents_; }
    void plant(std::map<std::string, Stored> contents) { contents_ = std::move(contents); }

    // Stores a value that the application has not written.
    void plant(const std::string& key, Stored value) { contents_[key] = std::move(value); }

    // The keys that were set or removed, in order, those in vain included.
    const std::vector<std::string>& writes() const { return writes_; }

    // Calls `handler` after each write.
    void whenChanged(std::function<void()> handler) { whenChanged_ = std::move(handler); }

private:
    template <class T> const T* find(const std::string& key) const;
    void store(const std::string& key, Stored value);

    Faults& faults_;
    std::map<std::string, Stored> contents_;
    std::vector<std::string> writes_;
    std::function<void()> whenChanged_ = [] {};
};

} // namespace simulated
