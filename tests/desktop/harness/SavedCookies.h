#pragma once

#include <string>

namespace desktop {

// The application's cookie store in the private home. Only for while the application does not run.
class SavedCookies {
public:
    // Makes the service take whoever starts the application next for this person.
    static void signIn(const std::string& firstname, const std::string& lastname);
};

} // namespace desktop
