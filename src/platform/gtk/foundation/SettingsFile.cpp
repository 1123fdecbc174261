#include "platform/gtk/foundation/SettingsFile.h"

#include "platform/gtk/foundation/DurableFile.h"
#include "platform/gtk/foundation/SettingsValue.h"

#include <nlohmann/json.hpp>

namespace gtk {

SettingsFile::SettingsFile(std::filesystem::path path, platform::DispatchQueue& queue,
    std::function<void(const std::string&)> log)
    : path_(std::move(path))
    , queue_(queue)
    , log_(std::move(log))
{
}

SettingsFile::~SettingsFile()
{
    flush();
}

bool SettingsFile::contains(const std::string& key) const
{
    return find(key);
}

std::optional<std::vector<std::string>> SettingsFile::stringArray(const std::string& key) const
{
    const auto* value = find(key);
    return value ? SettingsValue::stringArray(*value) : std::nullopt;
}

std::int64_t SettingsFile::integer(const std::string& key) const
{
    const auto* value = find(key);
    return value ? SettingsValue::integer(*value) : 0;
}

bool SettingsFile::boolean(const std::string& key) const
{
    const auto* value = find(key);
    return value && SettingsValue::boolean(*value);
}

std::optional<platform::Data> SettingsFile::data(const std::string& key) const
{
    const auto* value = find(key);
    return value ? SettingsValue::data(*value) : std::nullopt;
}

void SettingsFile::setStringArray(const std::string& key, const std::vector<std::string>& value)
{
    set(key, value);
}

void SettingsFile::setInteger(const std::string& key, std::int64_t value)
{
    set(key, value);
}

void SettingsFile::setBoolean(const std::string& key, bool value)
{
    set(key, value);
}

void SettingsFile::setData(const std::string& key, const platform::Data& value)
{
    set(key, SettingsValue::fromData(value));
}

void SettingsFile::removeObject(const std::string& key)
{
    if (members().erase(key) > 0)
        changed();
}

void SettingsFile::flush()
{
    if (saving_.valid())
        report(saving_.get());
    if (!hasUnsavedChanges_)
        return;
    hasUnsavedChanges_ = false;
    report(DurableFile::replace(path_, SettingsValue::text(members())));
}

nlohmann::json& SettingsFile::members() const
{
    if (!members_)
        members_ = load();
    return *members_;
}

const nlohmann::json* SettingsFile::find(const std::string& key) const
{
    const auto found = members().find(key);
    return found == members().end() ? nullptr : &*found;
}

void SettingsFile::set(const std::string& key, nlohmann::json value)
{
    const auto* present = find(key);
    if (present && *present == value)
        return;
    members()[key] = std::move(value);
    changed();
}

std::unique_ptr<nlohmann::json> SettingsFile::load() const
{
    auto empty = std::make_unique<nlohmann::json>(nlohmann::json::object());
    const auto file = DurableFile::read(path_);
    if (!file.exists)
        return empty;
    if (file.failure.empty()) {
        if (auto members = SettingsValue::parse(file.text))
            return std::make_unique<nlohmann::json>(std::move(*members));
    }

    const auto reason = file.failure.empty() ? "it is not a JSON object" : file.failure;
    const auto failure = DurableFile::setAside(path_);
    log_("Velmaro settings not read from " + path_.string() + " (" + reason + "); "
        + (failure ? "not kept aside: " + *failure : "kept aside as .damaged"));
    return empty;
}

void SettingsFile::changed()
{
    hasUnsavedChanges_ = true;
    if (!std::exchange(isSaveQueued_, true)) {
        queue_.async([this, life = std::weak_ptr(life_)] {
            if (!life.expired())
                save();
        });
    }
    whenChanged_();
}

void SettingsFile::save()
{
    isSaveQueued_ = false;
    if (saving_.valid()) {
        savesAgain_ = true;
        return;
    }
    if (!hasUnsavedChanges_)
        return;

    hasUnsavedChanges_ = false;
    auto finished = [this, life = std::weak_ptr(life_)] {
        if (!life.expired())
            finishSaving();
    };
    auto write = [path = path_, text = SettingsValue::text(members()), &queue = queue_, finished] {
        auto failure = DurableFile::replace(path, text);
        queue.async(finished);
        return failure;
    };
    saving_ = std::async(std::launch::async, std::move(write));
}

void SettingsFile::finishSaving()
{
    if (saving_.valid()) // else a flush has been faster
        report(saving_.get());
    if (std::exchange(savesAgain_, false))
        save();
}

void SettingsFile::report(const Failure& failure)
{
    if (!failure)
        return;
    hasUnsavedChanges_ = true;
    log_("Velmaro settings not saved to " + path_.string() + ": " + *failure);
}

} // namespace gtk
