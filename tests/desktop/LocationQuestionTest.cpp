// The question whether the application may use the user's location.

#include "platform/gtk/corelocation/LocationQuestion.h"
#include "harness/Eventually.h"
#include "platform/gtk/corelocation/LocationPermission.h"

#include <glibmm/init.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <gtkmm/init.h>
#include <optional>

namespace desktop {

namespace {

bool eventuallyInLoop(const std::function<bool()>& condition)
{
    return eventually([&] {
        while (g_main_context_iteration(nullptr, FALSE)) { }
        return condition();
    });
}

// The alert on the screen; null when there is none.
GtkDialog* alert()
{
    GListModel* windows = gtk_window_get_toplevels();
    for (guint index = 0; index < g_list_model_get_n_items(windows); ++index) {
        auto* window = static_cast<GtkWidget*>(g_list_model_get_item(windows, index));
        g_object_unref(window); // the list keeps it
        if (GTK_IS_DIALOG(window) && gtk_widget_get_mapped(window))
            return GTK_DIALOG(window);
    }
    return nullptr;
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
        ASSERT_TRUE(eventuallyInLoop([] { return alert() != nullptr; }));
        EXPECT_EQ(answers, 0);
        char* text = nullptr;
        g_object_get(alert(), "text", &text, nullptr);
        EXPECT_STREQ(text, gtk::LocationPermission::question);
        g_free(text);

        decide();
        EXPECT_TRUE(eventuallyInLoop([&] { return answers > 0 && !alert(); }));
        EXPECT_EQ(answer, isAllowed);
        EXPECT_EQ(answers, 1);
    }
}

} // namespace desktop
