#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/Lifetime.h"
#include "platform/foundation/UserDefaults.h"

#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <nlohmann/json_fwd.hpp>

namespace gtk {

// The settings store as one small JSON file for people to read and mend. It is read at the first
// use. A file that cannot be read, or is not a JSON object, counts as empty and is kept aside as
// `.damaged`; members that this version does not know are written back as they were.
//
// All changes of one turn of the main loop are written together, by a thread of their own because
// waiting for the disk can take long. Changes that could not be written stay in memory and are
// tried again with the next change and at the end.
class GtkUserDefaults final : public platform::UserDefaults {
public:
    // Each failure is told to `log` in one line, on the main thread. `queue` must outlive this.
    GtkUserDefaults(std::filesystem::path path, platform::DispatchQueue& queue,
        std::function<void(const std::string&)> log);
    ~GtkUserDefaults() override;

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

    // Calls `handler` after each change, on the main thread.
    void whenChanged(std::function<void()> handler) { whenChanged_ = std::move(handler); }

    // Returns when everything set so far is on the disk, or could not be put there. To be called
    // before the program ends.
    void flush();

private:
    using Failure = std::optional<std::string>;

    nlohmann::json& members() const;
    const nlohmann::json* find(const std::string& key) const;
    void set(const std::string& key, nlohmann::json value);
    std::unique_ptr<nlohmann::json> load() const;

    void changed();
    void save();
    void finishSaving();
    void report(const Failure& failure);

    std::filesystem::path path_;
    platform::DispatchQueue& queue_;
    std::function<void(const std::string&)> log_;
    mutable std::unique_ptr<nlohmann::json> members_; // null until the first use

    std::function<void()> whenChanged_ = [] {};
    std::future<Failure> saving_; // valid while the thread writes
    bool isSaveQueued_ = false;
    bool savesAgain_ = false; // something changed while the thread was writing
    bool hasUnsavedChanges_ = false;
    platform::Lifetime lifetime_;
};

} // namespace gtk
