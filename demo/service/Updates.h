#pragma once

#include "http/Answer.h"

#include <optional>
#include <string_view>

namespace demo {

/// Feeds of newer versions of the desktop application and their packages, signed with the key of
/// "pages/updates", honest ones and others. The path is "KIND/appcast.xml" or "KIND/package.deb";
/// nothing for any other.
std::optional<Answer> updateAnswer(std::string_view path, const Request&);

} // namespace demo
