// What the panels and the updater's window show, and what a press in them does.

#include "platform/gtk/panels/PermissionsView.h"
#include "platform/gtk/panels/ShareView.h"
#include "platform/gtk/sparkle/UpdateView.h"
#include "ui/Stage.h"

#include <gtest/gtest.h>

namespace {

using gtk::PermissionsView;
using gtk::ShareView;
using gtk::UpdatePane;

struct PanelViews : Stage, testing::Test {
    std::function<void()> note(const std::string& word)
    {
        return [this, word] { done += word + ' '; };
    }

    ui::Binding<bool> bind(bool& value)
    {
        return {[&value] { return value; }, [&value](bool isOn) { value = isOn; }};
    }

    std::string done;
};

// The lines of all widgets below `content` that show a `Node`, without their indentation.
template <class Node> std::string linesOf(const simulated::SimulatedWindow& window)
{
    std::string lines;
    for (const auto* widget : window.content().findAll<Node>())
        lines += widget->describe().substr(0, widget->describe().find('\n')) + '\n';
    return lines;
}

const ui::ToggleNode& toggle(const simulated::SimulatedWindow& window, std::size_t index)
{
    return *window.content().findAll<ui::ToggleNode>().at(index)->node<ui::ToggleNode>();
}

struct UpdateViews : PanelViews {
    void say(UpdatePane pane)
    {
        model->pane = std::make_shared<const UpdatePane>(std::move(pane));
        settle();
    }

    // The buttons, the default one in brackets, that with the accent colour marked.
    std::string buttons() const
    {
        std::string titles;
        for (const auto* widget : window.content().findAll<ui::ButtonNode>()) {
            const auto& options = widget->node<ui::ButtonNode>()->options;
            const bool isDefault = options.shortcut == ui::KeyboardShortcut::defaultAction;
            EXPECT_EQ(isDefault, options.focusesWhenShown);
            const bool isProminent = options.style == ui::ButtonStyle::borderedProminent;
            titles += (isDefault ? '[' + options.title + ']' : options.title)
                + (isProminent ? "! " : " ");
        }
        return titles;
    }

    bool checks = true;
    const std::shared_ptr<gtk::UpdateModel> model =
        std::make_shared<gtk::UpdateModel>(bind(checks));
    simulated::SimulatedWindow& window = show(gtk::UpdateView{model});
};

} // namespace

TEST_F(PanelViews, permissionsAreShownAndChanged)
{
    bool first = false;
    bool second = true;
    const auto& window = show(
        PermissionsView{{{"Places", "For maps.", bind(first)}, {"Sounds", "Loud.", bind(second)}}});
    EXPECT_EQ(linesOf<ui::ToggleNode>(window), "toggle \"Places\" off\ntoggle \"Sounds\" on\n");
    toggle(window, 0).isOn.set(true);
    toggle(window, 1).isOn.set(false);
    EXPECT_TRUE(first && !second);
}

TEST_F(PanelViews, shareListIsPutAwayBeforeWhatWasChosenIsDone)
{
    const auto list = [this](std::vector<std::string> files) -> auto&
    {
        return show(ShareView{std::move(files), {{"Editor", "text-editor", note("open")}},
            note("mail"), note("copy"), note("away")});
    };
    EXPECT_EQ(
        textsOf(list({"a", "b"}).content()), "2 files Open with Editor Send by E-Mail Copy File");
    const auto& window = list({"trip.pdf"});
    EXPECT_TRUE(window.content().showsText("trip.pdf"));
    for (const auto* title : {"Open with Editor", "Send by E-Mail", "Copy File"})
        EXPECT_TRUE(press(window.content(), title));
    EXPECT_EQ(done, "away open away mail away copy ");
}

TEST_F(UpdateViews, showWhatTheirPaneHolds)
{
    EXPECT_EQ(textsOf(window.content()), "");
    say({.title = "Failed", .text = "No network.", .buttons = {{"OK", note("ok")}}});
    EXPECT_EQ(textsOf(window.content()), "Failed No network.");
    EXPECT_EQ(buttons(), "[OK] ");
    EXPECT_EQ(linesOf<ui::TextAreaNode>(window) + linesOf<ui::ToggleNode>(window)
            + linesOf<ui::ProgressBarNode>(window),
        "");

    say({.title = "News",
        .notes = "More\nof it",
        .offersAutomaticChecks = true,
        .buttons = {{"Skip", note("skip")}, {"Later", note("later")}, {"Install", note("go")}}});
    EXPECT_EQ(linesOf<ui::TextAreaNode>(window), "textArea \"More\n");
    EXPECT_EQ(linesOf<ui::ToggleNode>(window), "toggle \"Check for updates automatically\" on\n");
    EXPECT_EQ(buttons(), "Skip Later [Install]! ");
    toggle(window, 0).isOn.set(false);
    EXPECT_FALSE(checks);

    say({.title = "Loading", .showsProgress = true, .buttons = {}});
    EXPECT_EQ(linesOf<ui::ProgressBarNode>(window), "progressBar fraction 0\n");
    model->progress = {0.5, "1 of 2"};
    settle();
    EXPECT_EQ(linesOf<ui::ProgressBarNode>(window), "progressBar fraction 0.5 \"1 of 2\"\n");
    model->progress = {std::nullopt};
    settle();
    EXPECT_EQ(linesOf<ui::ProgressBarNode>(window), "progressBar\n");
}

TEST_F(UpdateViews, doNothingForAPaneThatHasGone)
{
    say({.title = "News", .buttons = {{"Install", note("install")}}});
    EXPECT_TRUE(press(window.content(), "Install"));
    model->pane = std::make_shared<const UpdatePane>(UpdatePane{.title = "Next", .buttons = {}});
    EXPECT_TRUE(press(window.content(), "Install")); // a double click, before the redraw
    EXPECT_EQ(done, "install ");
    settle();
    EXPECT_FALSE(press(window.content(), "Install"));
}
