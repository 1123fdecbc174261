#include "platform/simulated/SimulatedUserDefaults.h"

namespace simulated {

using platform::Data;

template <class T> const T* SimulatedUserDefaults::find(const std::string& key) const
{
    const auto found = contents_.find(key);
    return found == contents_.end() ? nullptr : std::get_if<T>(&found->second);
}

bool SimulatedUserDefaults::contains(const std::string& key) const
{
    return contents_.count(key) > 0;
}

std::optional<std::vector<std::string>> SimulatedUserDefaults::stringArray(
    const std::string& key) const
{
    const auto* strings = find<std::vector<std::string>>(key);
    return strings ? std::optional(*strings) : std::nullopt;
}

std::int64_t SimulatedUserDefaults::integer(const std::string& key) const
{
    if (const auto* number = find<std::int64_t>(key))
        return *number;
    if (const auto* number = find<double>(key))
        return static_cast<std::int64_t>(*number);
    return 0;
}

bool SimulatedUserDefaults::boolean(const std::string& key) const
{
    if (const auto* boolean = find<bool>(key))
        return *boolean;
    if (const auto* number = find<double>(key))
        return *number != 0;
    return integer(key) != 0;
}

std::optional<Data> SimulatedUserDefaults::data(const std::string& key) const
{
    const auto* data = find<Data>(key);
    return data ? std::optional(*data) : std::nullopt;
}

void SimulatedUserDefaults::setStringArray(
    const std::string& key, const std::vector<std::string>& value)
{
    store(key, value);
}

void SimulatedUserDefaults::setInteger(const std::string& key, std::int64_t value)
{
    store(key, value);
}

void SimulatedUserDefaults::setBoolean(const std::string& key, bool value)
{
    store(key, value);
}

void SimulatedUserDefaults::setData(const std::string& key, const Data& value)
{
    store(key, value);
}

void SimulatedUserDefaults::removeObject(const std::string& key)
{
    writes_.push_back(key);
    if (!faults_.strike())
        contents_.erase(key);
    whenChanged_();
}

void SimulatedUserDefaults::store(const std::string& key, Stored value)
{
    writes_.push_back(key);
    if (!faults_.strike())
        contents_[key] = std::move(value);
    whenChanged_();
}

} // namespace simulated
