// Alerts as the user answers them.

#include "harness/Desktop.h"
#include "harness/ShownWindow.h"
#include "harness/UserInput.h"
#include "platform/gtk/panels/AlertPresenter.h"
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
        {{}, {"Escape"}, 0},
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

} // namespace desktop
