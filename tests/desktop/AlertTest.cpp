// Alerts and questions as the user answers them.

#include "harness/Desktop.h"
#include "harness/ShownWindow.h"
#include "harness/UserInput.h"
#include "platform/gtk/appkit/AlertPresenter.h"
#include "platform/gtk/corelocation/LocationPermission.h"
#include "platform/gtk/corelocation/LocationQuestion.h"
#include "webview/WebViewTest.h"

namespace desktop {

namespace {

// Null while there is none that has the keyboard.
GtkWidget* alertOnScreen()
{
    return shownWindow([](GtkWidget* window) {
        return GTK_IS_DIALOG(window) && gtk_window_is_active(GTK_WINDOW(window));
    });
}

std::string messageOf(GtkWidget* alert)
{
    g_autofree char* text = nullptr;
    g_object_get(alert, "text", &text, nullptr);
    return text;
}

void press(GtkResponseType button)
{
    auto* alert = GTK_DIALOG(alertOnScreen());
    g_signal_emit_by_name(gtk_dialog_get_widget_for_response(alert, button), "clicked");
}

} // namespace

TEST(Alerts, takeTurnsAndAreAnsweredWithTheKeyboard)
{
    const auto application = Gtk::Application::create();
    ASSERT_TRUE(gtk_init_check());
    struct Case {
        std::vector<std::string> buttons;
        std::vector<std::string> keys;
        int answer;
    };
    const Case table[] = {
        {{"Save", "Cancel", "Discard"}, {"Return"}, 0},
        {{"Save", "Cancel", "Discard"}, {"Escape"}, 1},
        {{"Save", "Cancel", "Discard"}, {"Tab", "Tab", "Return"}, 2},
        {{"Yes", "No"}, {"Escape"}, 1},
        {{}, {"Escape"}, 0},
        {{}, {"Return"}, 0},
    };
    gtk::AlertPresenter alerts;
    std::vector<int> answers;
    for (std::size_t turn = 0; turn < std::size(table); ++turn)
        alerts.run({.messageText = "Alert " + std::to_string(turn),
                       .informativeText = "Something happened.",
                       .buttons = table[turn].buttons},
            [&](int button) { answers.push_back(button); });

    for (std::size_t turn = 0; turn < std::size(table); ++turn) {
        SCOPED_TRACE(turn);
        const auto message = "Alert " + std::to_string(turn);
        ASSERT_TRUE(until([&] {
            return alertOnScreen() && messageOf(alertOnScreen()) == message
                && Desktop::windows().size() == 1;
        }));
        for (const auto& key : table[turn].keys)
            UserInput::press(key);
        ASSERT_TRUE(until([&] { return answers.size() == turn + 1; }));
        EXPECT_EQ(answers.back(), table[turn].answer);
    }
    EXPECT_TRUE(until([] { return Desktop::windows().empty(); }));
}

TEST(Alerts, askForTheLocationAndTakeAnyEndButAllowForANo)
{
    const auto application = Gtk::Application::create();
    ASSERT_TRUE(gtk_init_check());
    struct Case {
        const char* name;
        void (*decide)();
        bool isAllowed;
    };
    const Case cases[] = {
        {"allow", [] { press(GTK_RESPONSE_ACCEPT); }, true},
        {"deny", [] { press(GTK_RESPONSE_REJECT); }, false},
        {"close", [] { gtk_window_close(GTK_WINDOW(alertOnScreen())); }, false},
        {"Escape", [] { UserInput::press("Escape"); }, false},
    };
    for (const auto& [name, decide, isAllowed] : cases) {
        SCOPED_TRACE(name);
        std::vector<bool> answers;
        gtk::askForLocation([&](bool answer) { answers.push_back(answer); });
        ASSERT_TRUE(until([] { return alertOnScreen() != nullptr; }));
        EXPECT_TRUE(answers.empty());
        EXPECT_EQ(messageOf(alertOnScreen()), gtk::LocationPermission::question);

        decide();
        EXPECT_TRUE(until([&] { return !answers.empty() && !alertOnScreen(); }));
        EXPECT_EQ(answers, std::vector{isAllowed});
    }
}

} // namespace desktop
