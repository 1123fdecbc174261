#pragma once

#include "http/Answer.h"

#include <optional>
#include <span>
#include <string_view>

namespace demo {

/// A file of the folder "pages", part of the program.
struct EmbeddedPage {
    std::string_view path; ///< Relative to the folder.
    std::string_view text;
};

std::span<const EmbeddedPage> embeddedPages();

/// The file as it stands, or nothing when there is none of this path.
std::optional<std::string_view> embeddedPage(std::string_view path);

/// The page of the application itself, complete for its first picture: the style sheet is in it,
/// and so is the signed-in user, so that the page never shows itself signed out for a moment.
/// Placeholders: "<!--style-->" and "/*currentUser*/null".
std::string applicationPage(std::string_view path, const Request&);

/// An asset by its path, with its type and with caching. "assets/online.js" is all parts of the
/// application's script in one, so that one request brings it.
Answer assetAnswer(std::string_view path, const Request&);

/// A page that tells of a failure in the product's own look.
Answer failurePage(unsigned status, std::string_view title, std::string_view explanation);

} // namespace demo
