// The question whether the application may use the user's location.

#include "platform/gtk/corelocation/LocationQuestion.h"
#include "harness/MainLoop.h"
#include "harness/ShownWindow.h"
#include "platform/gtk/corelocation/LocationPermission.h"

#include <glibmm/init.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <gtkmm/init.h>
#include <optional>

namespace desktop {

namespace {

// The alert on the screen; null when there is none.
GtkDialog* alert()
{
    auto* window = shownWindow([](GtkWidget* window) { return GTK_IS_DIALOG(window); });
    return window ? GTK_DIALOG(window) : nullptr;
}

void press(GtkResponseType button)
{
    g_signal_emit_by_name(gtk_dialog_get_widget_for_response(alert(), button), "clicked");
}

struct Case {
    const char* name;
    void (*decide)();
    bool isAllowed;
};

constexpr Case cases[] = {
    {"allow", [] { press(GTK_RESPONSE_ACCEPT); }, true},
    {"deny", [] { press(GTK_RESPONSE_REJECT); }, false},
    {"close", [] { gtk_window_close(GTK_WINDOW(alert())); }, false},
    {"Escape", [] { g_signal_emit_by_name(alert(), "close"); }, false},
};

} // namespace

TEST(LocationQuestion, isAnsweredWithAButtonOrByClosing)
{
    Glib::set_init_to_users_preferred_locale(false);
    Gtk::init_gtkmm_internals();
    gtk_init();
    for (const auto& [name, decide, isAllowed] : cases) {
        SCOPED_TRACE(name);
        std::optional<bool> answer;
        int answers = 0;
        gtk::askForLocation([&](bool isAllowed) {
            answer = isAllowed;
            ++answers;
        });
        ASSERT_TRUE(until([] { return alert() != nullptr; }));
        EXPECT_EQ(answers, 0);
        char* text = nullptr;
        g_object_get(alert(), "text", &text, nullptr);
        EXPECT_STREQ(text, gtk::LocationPermission::question);
        g_free(text);

        decide();
        EXPECT_TRUE(until([&] { return answers > 0 && !alert(); }));
        EXPECT_EQ(answer, isAllowed);
        EXPECT_EQ(answers, 1);
    }
}

} // namespace desktop
