#pragma once

#include <string>
#include <string_view>

namespace platform {

// What `text` means, in which two hexadecimal digits must follow every percent sign. Like all of
// these, it is for any thread.
std::string percentDecoded(std::string_view text);

// A path or a name as it stands in an address, whatever bytes it consists of.
std::string percentEncodedPath(std::string_view path);

// An address with everything escaped that may not stand where it does. Escapes stay as they are.
std::string withInvalidCharactersEncoded(std::string_view address);

} // namespace platform
