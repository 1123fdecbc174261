#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>

namespace desktop {

// What the application keeps in the private home, read and written past the application.
class SavedSettings {
public:
    static std::filesystem::path path();

    // The whole file; null when there is none or it is no JSON.
    static nlohmann::json read();

    static void write(const nlohmann::json& settings);

    // What the user has answered to the application's questions, so that it asks them no more.
    static void writePermissions(const nlohmann::json& permissions);
    // Makes the service take whoever starts the application next for this person. Only for while
    // the application does not run.
    static void signIn(const std::string& firstname, const std::string& lastname);
};

} // namespace desktop
