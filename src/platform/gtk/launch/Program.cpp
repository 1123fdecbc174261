#include "platform/gtk/launch/Program.h"

#include <cstdio>
#include <cstdlib>
#include <gtkmm/init.h>

namespace gtk {

namespace {

constexpr auto programKey = "velmaro-program";

const Program::Handlers& handlersOf(GApplication* object)
{
    return static_cast<Program*>(g_object_get_data(G_OBJECT(object), programKey))->handlers();
}

// Nothing that would have to be wound up exists yet.
[[noreturn]] void giveUp(const std::string& reason)
{
    std::fprintf(stderr, "velmaro-online: %s\n", reason.c_str());
    std::_Exit(EXIT_FAILURE);
}

void notificationClicked(GSimpleAction*, GVariant* target, gpointer object)
{
    Program::UserInfo userInfo;
    GVariantIter entries;
    g_variant_iter_init(&entries, target);
    const char* key = nullptr;
    const char* value = nullptr;
    while (g_variant_iter_next(&entries, "{&s&s}", &key, &value))
        userInfo[key] = value;
    handlersOf(G_APPLICATION(object)).notificationClicked(userInfo);
}

void addNotificationAction(GApplication* object)
{
    auto* action = g_simple_action_new(Program::notificationAction, G_VARIANT_TYPE("a{ss}"));
    g_signal_connect(action, "activate", G_CALLBACK(notificationClicked), object);
    g_action_map_add_action(G_ACTION_MAP(object), G_ACTION(action));
    g_object_unref(action);
}

void startup(GApplication* object)
{
    gtk_disable_setlocale(); // the program has chosen its locale
    if (!gtk_init_check())
        giveUp("there is no display to open a window on");
    Gtk::init_gtkmm_internals();
    if (const auto reason = handlersOf(object).startup())
        giveUp(*reason);
    G_APPLICATION_CLASS(g_type_class_peek_static(GTK_TYPE_APPLICATION))->startup(object);
}

void activate(GApplication* object)
{
    handlersOf(object).activate();
}

void open(GApplication* object, GFile** files, gint count, const gchar*)
{
    std::vector<std::string> addresses;
    for (gint i = 0; i < count; ++i) {
        auto* address = g_file_get_uri(files[i]);
        addresses.emplace_back(address);
        g_free(address);
    }
    handlersOf(object).open(addresses);
}

void shutdown(GApplication* object)
{
    handlersOf(object).shutdown();
    G_APPLICATION_CLASS(g_type_class_peek_static(GTK_TYPE_APPLICATION))->shutdown(object);
}

// gtkmm's application object would open the display as soon as it is made.
GType programType()
{
    const auto initialize = [](gpointer programClass, gpointer) {
        auto* functions = G_APPLICATION_CLASS(programClass);
        functions->startup = startup;
        functions->activate = activate;
        functions->open = open;
        functions->shutdown = shutdown;
    };
    static const auto type = g_type_register_static_simple(GTK_TYPE_APPLICATION, "VelmaroProgram",
        sizeof(GtkApplicationClass), initialize, sizeof(GtkApplication), nullptr, GTypeFlags());
    return type;
}

} // namespace

Program::Program(std::string identifier, Handlers handlers)
    : identifier_(std::move(identifier))
    , handlers_(std::move(handlers))
    , object_(GTK_APPLICATION(g_object_new(programType(), "application-id", identifier_.c_str(),
          "flags", G_APPLICATION_HANDLES_OPEN, "register-session", TRUE, nullptr)))
{
    g_object_set_data(G_OBJECT(object_), programKey, this);
    addNotificationAction(G_APPLICATION(object_)); // before it can be asked for
}

Program::~Program()
{
    g_object_unref(object_);
}

int Program::run(std::optional<std::string> address)
{
    std::vector<char*> arguments{identifier_.data()};
    if (address)
        arguments.push_back(address->data());
    return g_application_run(
        G_APPLICATION(object_), static_cast<int>(arguments.size()), arguments.data());
}

void Program::addAction(const std::string& name, std::function<void()> activated)
{
    const auto perform = +[](GSimpleAction* action, GVariant*, gpointer self) {
        static_cast<Program*>(self)->actions_[g_action_get_name(G_ACTION(action))]();
    };
    actions_[name] = std::move(activated);
    auto* action = g_simple_action_new(name.c_str(), nullptr);
    g_signal_connect(action, "activate", G_CALLBACK(perform), this);
    g_action_map_add_action(G_ACTION_MAP(object_), G_ACTION(action));
    g_object_unref(action);
}

void Program::quit()
{
    g_application_quit(G_APPLICATION(object_));
}

void Program::hold()
{
    g_application_hold(G_APPLICATION(object_));
}

void Program::add(Gtk::Window& window)
{
    gtk_application_add_window(object_, window.gobj());
}

std::vector<GtkWindow*> Program::windows() const
{
    std::vector<GtkWindow*> windows;
    for (auto* item = gtk_application_get_windows(object_); item; item = item->next)
        windows.push_back(GTK_WINDOW(item->data));
    return windows;
}

} // namespace gtk
