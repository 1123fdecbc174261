#pragma once

#include <span>
#include <string_view>

namespace demo {

/// A way to suggest a file name that a careless client saves to the wrong place or not at all.
struct AttachmentName {
    std::string_view key; ///< As in "/hostile/attachment?name=key".
    std::string_view disposition; ///< What follows "attachment" in the header, byte for byte.
};

std::span<const AttachmentName> attachmentNames();

} // namespace demo
