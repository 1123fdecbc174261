#include "platform/gtk/foundation/GtkUserDefaults.h"

#include "platform/gtk/foundation/AtomicFile.h"
#include "platform/gtk/foundation/SettingsValue.h"

#include <nlohmann/json.hpp>

namespace gtk {

GtkUserDefaults::GtkUserDefaults(std::filesystem::path path, platform::DispatchQueue& queue,
    std::function<void(const std::string&)> log)
    : path_(std::move(path))
    , queue_(queue)
    , log_(std::move(log))
{
}

GtkUserDefaults::~GtkUserDefaults()
{
    flush();
}

bool GtkUserDefaults::contains(const std::string& key) const
{
    return find(key);
}

std::optional<std::vector<std::string>> GtkUserDefaults::stringArray(const std::string& key) const
{
    const auto* value = find(key);
    return value ? SettingsValue::stringArray(*value) : std::nullopt;
}

std::int64_t GtkUserDefaults::integer(const std::string& key) const
{
    const auto* value = find(key);
    return value ? SettingsValue::integer(*value) : 0;
}

bool GtkUserDefaults::boolean(const std::string& key) const
{
    const auto* value = find(key);
    return value && SettingsValue::boolean(*value);
}

std::optional<platform::Data> GtkUserDefaults::data(const std::string& key) const
{
    const auto* value = find(key);
    return value ? SettingsValue::data(*value) : std::nullopt;
}

void GtkUserDefaults::setStringArray(const std::string& key, const std::vector<std::string>& value)
{
    set(key, value);
}

void GtkUserDefaults::setInteger(const std::string& key, std::int64_t value)
{
    set(key, value);
}

void GtkUserDefaults::setBoolean(const std::string& key, bool value)
{
    set(key, value);
}

void GtkUserDefaults::setData(const std::string& key, const platform::Data& value)
{
    set(key, SettingsValue::fromData(value));
}

void GtkUserDefaults::removeObject(const std::string& key)
{
    if (members().erase(key) > 0)
        changed();
}

void GtkUserDefaults::flush()
{
    if (saving_.valid())
        report(saving_.get());
    if (!hasUnsavedChanges_)
        return;
    hasUnsavedChanges_ = false;
    report(AtomicFile::replace(path_, SettingsValue::text(members())));
}

nlohmann::json& GtkUserDefaults::members() const
{
    if (!members_)
        members_ = load();
    return *members_;
}

const nlohmann::json* GtkUserDefaults::find(const std::string& key) const
{
    const auto found = members().find(key);
    return found == members().end() ? nullptr : &*found;
}

void GtkUserDefaults::set(const std::string& key, nlohmann::json value)
{
    const auto* present = find(key);
    if (present && *present == value)
        return;
    members()[key] = std::move(value);
    changed();
}

std::unique_ptr<nlohmann::json> GtkUserDefaults::load() const
{
    auto empty = std::make_unique<nlohmann::json>(nlohmann::json::object());
    const auto file = AtomicFile::read(path_);
    if (!file.exists)
        return empty;
    if (file.failure.empty()) {
        if (auto members = SettingsValue::parse(file.text))
            return std::make_unique<nlohmann::json>(std::move(*members));
    }

    const auto reason = file.failure.empty() ? "it is not a JSON object" : file.failure;
    const auto failure = AtomicFile::setAside(path_);
    log_("Velmaro settings not read from " + path_.string() + " (" + reason + "); "
        + (failure ? "not kept aside: " + *failure : "kept aside as .damaged"));
    return empty;
}

void GtkUserDefaults::changed()
{
    hasUnsavedChanges_ = true;
    if (!std::exchange(isSaveQueued_, true)) {
        queue_.async(lifetime_.guard([this] { save(); }));
    }
    whenChanged_();
}

void GtkUserDefaults::save()
{
    isSaveQueued_ = false;
    if (saving_.valid()) {
        savesAgain_ = true;
        return;
    }
    if (!hasUnsavedChanges_)
        return;

    hasUnsavedChanges_ = false;
    const std::function<void()> finished = lifetime_.guard([this] { finishSaving(); });
    auto write = [path = path_, text = SettingsValue::text(members()), &queue = queue_, finished] {
        auto failure = AtomicFile::replace(path, text);
        queue.async(finished);
        return failure;
    };
    saving_ = std::async(std::launch::async, std::move(write));
}

void GtkUserDefaults::finishSaving()
{
    if (saving_.valid()) // else a flush has been faster
        report(saving_.get());
    if (std::exchange(savesAgain_, false))
        save();
}

void GtkUserDefaults::report(const Failure& failure)
{
    if (!failure)
        return;
    hasUnsavedChanges_ = true;
    log_("Velmaro settings not saved to " + path_.string() + ": " + *failure);
}

} // namespace gtk
