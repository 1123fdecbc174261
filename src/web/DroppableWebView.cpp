#include "web/DroppableWebView.h"

#include "platform/foundation/FileManager.h"
#include "platform/foundation/Unicode.h"

#include <algorithm>
#include <array>

namespace velmaro {

using platform::FileManager;
using platform::NSDraggingInfo;
using platform::URL;

namespace {

constexpr std::array<std::string_view, 2> importableExtensions = {"csv", "txt"};

bool isImportable(const URL& file)
{
    const auto extension = platform::lowercasingASCII(file.pathExtension());
    return std::ranges::find(importableExtensions, extension) != importableExtensions.end();
}

// Every file has a text: what is not UTF-8 is taken for ISO Latin-1.
std::optional<std::string> textOf(const URL& file)
{
    auto contents = FileManager::defaultManager().contents(file);
    if (contents && !platform::isUTF8(*contents))
        contents = platform::fromLatin1(*contents);
    return contents;
}

} // namespace

std::optional<URL> acceptableDroppedFile(const NSDraggingInfo& dragging)
{
    const auto file = std::ranges::find_if(dragging.fileURLs, isImportable);
    return file == dragging.fileURLs.end() ? std::nullopt : std::optional(*file);
}

bool DroppableWebView::takesDrag(const NSDraggingInfo& dragging) const
{
    return acceptableDroppedFile(dragging).has_value();
}

bool DroppableWebView::performDragOperation(const NSDraggingInfo& dragging)
{
    const auto file = acceptableDroppedFile(dragging);
    auto text = file ? textOf(*file) : std::nullopt;
    if (!text)
        return false;
    if (const auto router = dropRouter.lock())
        router->didDropFile(webView_, *file, std::move(*text));
    return true;
}

} // namespace velmaro
