#include "platform/gtk/usernotifications/NotificationService.h"

#include <algorithm>
#include <glib.h>

namespace gtk {

namespace {
constexpr std::size_t mostBytes = 8000;
}

std::string notificationText(std::string text)
{
    if (text.size() > mostBytes) {
        const auto* end = g_utf8_find_prev_char(text.c_str(), text.c_str() + mostBytes + 1);
        text.resize(end ? static_cast<std::size_t>(end - text.c_str()) : mostBytes);
    }
    std::erase(text, '\0');
    return text;
}

std::string notificationMarkup(std::string text)
{
    g_autofree char* markup = g_markup_escape_text(notificationText(std::move(text)).c_str(), -1);
    return markup;
}

} // namespace gtk
