#include "platform/gtk/sparkle/UpdateWindow.h"

#include "platform/gtk/ui/Pictures.h"
#include "platform/gtk/ui/WidgetStyle.h"

#include <glibmm/main.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/shortcut.h>
#include <gtkmm/shortcutaction.h>
#include <gtkmm/shortcutcontroller.h>
#include <gtkmm/shortcuttrigger.h>
#include <gtkmm/textview.h>

namespace gtk {

namespace {

constexpr int margin = 20;
constexpr int iconSide = 64;
constexpr int leastWidth = 380; // of the texts
constexpr int notesHeight = 150;
constexpr int charactersInLine = 52;
constexpr double titleSize = 15;

Gtk::Label& makeLabel(const std::string& text)
{
    auto& label = *Gtk::make_managed<Gtk::Label>(text);
    label.set_wrap();
    label.set_xalign(0);
    label.set_max_width_chars(charactersInLine);
    return label;
}

void standOverActiveWindow(Gtk::Window& window)
{
    auto* application = g_application_get_default();
    auto* active = GTK_IS_APPLICATION(application)
        ? gtk_application_get_active_window(GTK_APPLICATION(application))
        : nullptr;
    gtk_window_set_transient_for(window.gobj(), active);
}

} // namespace

UpdateWindow::UpdateWindow(
    std::function<bool()> checksAutomatically, std::function<void(bool)> setChecksAutomatically)
    : checksAutomatically_(std::move(checksAutomatically))
    , setChecksAutomatically_(std::move(setChecksAutomatically))
{
}

UpdateWindow::~UpdateWindow() = default;

void UpdateWindow::show(UpdatePane pane)
{
    if (!window_)
        makeWindow();
    const bool isNew = !pane_;
    pane_ = std::make_shared<const UpdatePane>(std::move(pane));
    progress_ = nullptr;
    defaultButton_ = nullptr;

    auto& row = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, margin);
    row.set_margin(margin);
    auto& icon = *Gtk::make_managed<Gtk::Image>(applicationIcon());
    icon.set_pixel_size(iconSide);
    icon.set_valign(Gtk::Align::START);
    row.append(icon);
    auto& column = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL, 10);
    column.set_size_request(leastWidth, -1);
    row.append(column);

    window_->set_child(row);
    fill(column);
    if (defaultButton_) {
        window_->set_default_widget(*defaultButton_);
        defaultButton_->grab_focus();
    }
    if (isNew) {
        standOverActiveWindow(*window_);
        window_->present();
    }
}

void UpdateWindow::setProgress(std::optional<double> fraction, const std::string& text)
{
    if (!progress_)
        return;
    fraction ? progress_->set_fraction(*fraction) : progress_->pulse();
    progress_->set_show_text(!text.empty());
    progress_->set_text(text);
}

void UpdateWindow::close()
{
    pane_.reset();
    if (window_)
        window_->set_visible(false);
}

void UpdateWindow::makeWindow()
{
    window_ = std::make_unique<Gtk::Window>();
    installTheme(window_->get_display());
    window_->set_title("Software Update");
    window_->set_resizable(false);
    window_->signal_close_request().connect(
        [this] {
            if (pane_)
                press(pane_->onClose);
            return true;
        },
        false);

    const auto escape = Gtk::ShortcutController::create();
    const auto close = [this](Gtk::Widget&, const Glib::VariantBase&) {
        window_->close();
        return true;
    };
    escape->add_shortcut(Gtk::Shortcut::create(
        Gtk::KeyvalTrigger::create(GDK_KEY_Escape), Gtk::CallbackAction::create(close)));
    window_->add_controller(escape);
}

void UpdateWindow::fill(Gtk::Box& column)
{
    auto& title = makeLabel(pane_->title);
    auto attributes = fontAttributes({.size = titleSize, .weight = ui::Font::Weight::bold});
    title.set_attributes(attributes);
    column.append(title);
    if (!pane_->text.empty())
        column.append(makeLabel(pane_->text));
    if (!pane_->notes.empty())
        column.append(makeNotes());
    if (pane_->showsProgress) {
        progress_ = Gtk::make_managed<Gtk::ProgressBar>();
        setAccessibleName(*progress_, pane_->title);
        column.append(*progress_);
    }
    if (pane_->offersAutomaticChecks) {
        auto& box = *Gtk::make_managed<Gtk::CheckButton>("Check for updates automatically");
        box.set_active(checksAutomatically_());
        box.signal_toggled().connect([this, &box] { setChecksAutomatically_(box.get_active()); });
        column.append(box);
    }
    column.append(makeButtons());
}

Gtk::Widget& UpdateWindow::makeNotes()
{
    auto& text = *Gtk::make_managed<Gtk::TextView>();
    text.get_buffer()->set_text(pane_->notes);
    text.set_editable(false);
    text.set_cursor_visible(false);
    text.set_wrap_mode(Gtk::WrapMode::WORD_CHAR);
    text.set_left_margin(8);
    text.set_right_margin(8);
    text.set_top_margin(8);
    text.set_bottom_margin(8);
    setAccessibleName(text, "What is new");
    auto& area = *Gtk::make_managed<Gtk::ScrolledWindow>();
    area.set_child(text);
    area.set_has_frame();
    area.set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
    area.set_size_request(-1, notesHeight);
    return area;
}

Gtk::Widget& UpdateWindow::makeButtons()
{
    auto& row = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::HORIZONTAL, 8);
    row.set_margin_top(6);
    row.set_halign(Gtk::Align::END);
    for (const auto& [title, action] : pane_->buttons) {
        auto& button = *Gtk::make_managed<Gtk::Button>(title);
        button.signal_clicked().connect([this, action = action] { press(action); });
        row.append(button);
        defaultButton_ = &button;
    }
    if (pane_->buttons.size() > 1)
        defaultButton_->add_css_class("suggested-action");
    return row;
}

// Later, since the pane, and with it the button that is being pressed, may go over this. What was
// pressed on a pane that has gone since does not count.
void UpdateWindow::press(const std::function<void()>& action)
{
    Glib::signal_idle().connect_once([weakPane = std::weak_ptr(pane_), action] {
        if (!weakPane.expired() && action)
            action();
    });
}

} // namespace gtk
