#pragma once

#include <string>
#include <string_view>

namespace platform {

// Whether two UTF-8 texts are the same under Unicode canonical equivalence: a precomposed and a
// decomposed letter are equal, letters of different case are not. Texts that are not UTF-8 are
// compared byte by byte.
bool isCanonicallyEquivalent(std::string_view left, std::string_view right);

// `text` without the blanks and tabs at both ends, those of other scripts included. Line breaks
// stay.
std::string trimmingWhitespace(std::string_view text);

// The same, line and paragraph breaks included.
std::string trimmingWhitespaceAndNewlines(std::string_view text);
// `text` with the letters A to Z in lower case and all else as it is.
std::string lowercasingASCII(std::string_view text);

bool isUTF8(std::string_view bytes);

// The UTF-8 text for bytes of which each is a letter of ISO 8859-1.
std::string fromLatin1(std::string_view bytes);

} // namespace platform
