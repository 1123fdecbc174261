#pragma once

#include <string>
#include <string_view>

namespace platform {

// What a file can be called for which another program suggests `suggestion`: one name in UTF-8
// without slashes, never empty, visible, and short enough that a number can still be added to it.
// Names that are fine already stay as they are; nothing is left of one like "..", which becomes
// "download".
//
// Bytes that are not UTF-8 count as ISO Latin-1. Slashes, control characters and those that turn
// the direction of writing, behind which an extension could hide, become "_". A long name is cut at
// a character, and keeps its extension. Any thread.
std::string safeFileName(std::string_view suggestion);

} // namespace platform
