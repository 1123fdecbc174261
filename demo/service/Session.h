#pragma once

#include "http/Answer.h"

#include <nlohmann/json.hpp>
#include <optional>

namespace demo {

/// Who is signed in, as {"firstname", "lastname"}, or null when nobody is.
///
/// The names are in the cookie itself, so that a sign-in outlives a restart of this service.
/// There is nothing to protect here: everybody may be whoever they want.
nlohmann::json signedInUser(const Request&);

/// The answer with the cookie that keeps the names signed in for a month.
Answer signedIn(Answer, const std::string& firstname, const std::string& lastname);

/// The answer with the cookie taken away.
Answer signedOut(Answer);

} // namespace demo
