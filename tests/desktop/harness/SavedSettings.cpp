#include "SavedSettings.h"

#include <fstream>

namespace desktop {

std::filesystem::path SavedSettings::path()
{
    return std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "velmaro-online"
        / "settings.json";
}

nlohmann::json SavedSettings::read()
{
    std::ifstream file(path());
    auto settings = nlohmann::json::parse(file, nullptr, false);
    return settings.is_discarded() ? nlohmann::json() : settings;
}

void SavedSettings::write(const nlohmann::json& settings)
{
    std::filesystem::create_directories(path().parent_path());
    std::ofstream(path()) << settings.dump(4) << '\n';
}

void SavedSettings::writePermissions(const nlohmann::json& permissions)
{
    std::filesystem::create_directories(path().parent_path());
    std::ofstream(path().parent_path() / "permissions.json") << permissions.dump(4) << '\n';
}

} // namespace desktop
