#pragma once

#include <string>
#include <string_view>

namespace platform {

// The texts of an HTML document, one line a paragraph, items of lists behind bullets. It is made
// for release notes: styles and scripts are left out, and nothing else is understood. Any thread;
// no text makes it fail.
std::string plainText(std::string_view html);

} // namespace platform
