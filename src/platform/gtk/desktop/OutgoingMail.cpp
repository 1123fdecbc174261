#include "platform/gtk/desktop/OutgoingMail.h"

#include "platform/appkit/NSWorkspace.h"
#include "platform/gtk/foundation/BusConversation.h"

#include <fcntl.h>
#include <unistd.h>

namespace gtk {

namespace {

using Files = std::vector<Glib::RefPtr<Gio::File>>;

constexpr double portalPatience = 5; // seconds

std::string escaped(const std::string& text)
{
    g_autofree char* result = g_uri_escape_string(text.c_str(), nullptr, FALSE);
    return result;
}

// The script of most desktops knows how each mail program wants its attachments.
bool sendWithScript(const Files& files)
{
    g_autofree char* script = g_find_program_in_path("xdg-email");
    if (!script)
        return false;
    std::vector<std::string> arguments = {script, "--subject", files.front()->get_basename()};
    for (const auto& file : files)
        arguments.insert(arguments.end(), {"--attach", file->get_path()});
    std::vector<char*> pointers;
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return g_spawn_async(
        nullptr, pointers.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, nullptr);
}

void sendWithAddress(const Files& files)
{
    auto address = "mailto:?subject=" + escaped(files.front()->get_basename());
    for (const auto& file : files)
        address += "&attach=" + escaped(file->get_path());
    if (const auto url = platform::URL::fromString(address))
        platform::NSWorkspace::shared().open(*url);
}

// Opens the files that can be read and adds them to `descriptors`. Returns their places in it,
// which stand for the files among the arguments.
Glib::VariantBase handles(const Files& files, Gio::UnixFDList& descriptors)
{
    GVariantBuilder numbers;
    g_variant_builder_init(&numbers, G_VARIANT_TYPE("ah"));
    for (const auto& file : files) {
        const int descriptor = ::open(file->get_path().c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0)
            continue;
        g_variant_builder_add(&numbers, "h", descriptors.append(descriptor));
        ::close(descriptor);
    }
    return Glib::VariantBase(g_variant_builder_end(&numbers));
}

} // namespace

void sendByMail(const Files& files)
{
    const auto descriptors = Gio::UnixFDList::create();
    const BusDictionary options{
        {"subject", busValue(files.front()->get_basename())},
        {"attachment_fds", handles(files, *descriptors)},
    };
    constexpr auto parentWindow = "";
    const auto portal = std::make_shared<BusConversation>(
        Gio::DBus::BusType::SESSION, "org.freedesktop.portal.Desktop");
    portal->call(
        {
            .method = {"/org/freedesktop/portal/desktop", "org.freedesktop.portal.Email",
                "ComposeEmail"},
            .arguments = busValues(parentWindow, options),
            .resultType = "(o)",
            .patience = portalPatience,
            .onFailure =
                [files](const auto&) {
                    if (!sendWithScript(files))
                        sendWithAddress(files);
                },
            .files = descriptors,
        },
        [portal](const auto&) {}); // keeps the conversation until the answer
}

} // namespace gtk
