#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>

namespace desktop {

// The application's settings file in the private home, read and written past the application.
class SavedSettings {
public:
    static std::filesystem::path path();

    // The whole file; null when there is none or it is no JSON.
    static nlohmann::json read();

    static void write(const nlohmann::json& settings);

    // What the user has answered to the application's questions, so that it asks them no more.
    static void writePermissions(const nlohmann::json& permissions);
};

} // namespace desktop
