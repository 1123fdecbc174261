#include "platform/gtk/panels/AlertPresenter.h"

#include "platform/gtk/panels/Panel.h"
#include "platform/gtk/ui/WidgetStyle.h"

#include <algorithm>
#include <glibmm/main.h>
#include <gtkmm/image.h>
#include <gtkmm/messagedialog.h>

namespace gtk {

namespace {

constexpr auto cancelTitle = "Cancel";
constexpr int iconSize = 32; // points
constexpr int iconMargin = 12; // points

Gtk::MessageType messageType(platform::NSAlert::Style style)
{
    switch (style) {
    case platform::NSAlert::Style::warning:
        return Gtk::MessageType::WARNING;
    case platform::NSAlert::Style::informational:
        return Gtk::MessageType::INFO;
    case platform::NSAlert::Style::critical:
        return Gtk::MessageType::ERROR;
    }
    return Gtk::MessageType::INFO;
}

// The button that Escape presses.
int cancelButton(const platform::NSAlert& alert)
{
    const auto found = std::ranges::find(alert.buttons, cancelTitle);
    const auto last = std::prev(alert.buttons.end());
    return static_cast<int>((found == alert.buttons.end() ? last : found) - alert.buttons.begin());
}

// The toolkit draws no sign of its own for any kind of message.
const char* iconName(platform::NSAlert::Style style)
{
    switch (style) {
    case platform::NSAlert::Style::warning:
        return "dialog-warning-symbolic";
    case platform::NSAlert::Style::informational:
        return "dialog-information-symbolic";
    case platform::NSAlert::Style::critical:
        return "dialog-error-symbolic";
    }
    return "";
}

void addIcon(Gtk::MessageDialog& dialog, platform::NSAlert::Style style)
{
    auto& icon = *Gtk::make_managed<Gtk::Image>();
    icon.set_from_icon_name(iconName(style));
    icon.set_pixel_size(iconSize);
    icon.set_margin_top(iconMargin);
    dialog.get_message_area()->prepend(icon);
}

} // namespace

AlertPresenter::AlertPresenter() = default;
AlertPresenter::~AlertPresenter() = default;

void AlertPresenter::run(platform::NSAlert alert, std::function<void(int button)> completion)
{
    if (alert.buttons.empty())
        alert.buttons.emplace_back("OK");
    waiting_.push_back({std::move(alert), std::move(completion)});
    if (!dialog_)
        showFirst();
}

void AlertPresenter::showFirst()
{
    const auto& alert = waiting_.front().alert;
    dialog_ = std::make_shared<Gtk::MessageDialog>(
        alert.messageText, false, messageType(alert.alertStyle), Gtk::ButtonsType::NONE, true);
    if (!alert.informativeText.empty())
        dialog_->set_secondary_text(alert.informativeText);
    for (std::size_t number = 0; number < alert.buttons.size(); ++number) {
        const auto& title = alert.buttons[number];
        setAccessibleName(*dialog_->add_button(title, static_cast<int>(number)), title);
    }
    dialog_->set_default_response(platform::NSAlert::firstButton);
    dialog_->get_widget_for_response(platform::NSAlert::firstButton)
        ->add_css_class("suggested-action");
    addIcon(*dialog_, alert.alertStyle);
    setAccessibleName(*dialog_, alert.messageText);
    if (auto* window = activeWindow())
        dialog_->set_transient_for(*window);
    dialog_->signal_response().connect([this](int response) { answered(response); });
    dialog_->present();
}

void AlertPresenter::answered(int response)
{
    auto [alert, completion] = std::move(waiting_.front());
    waiting_.pop_front();
    dialog_->hide();
    // The toolkit still uses the dialog when it was closed with Escape.
    Glib::signal_idle().connect_once([dialog = std::move(dialog_)] {});
    dialog_ = nullptr;

    if (!waiting_.empty())
        showFirst();
    if (completion)
        completion(response >= 0 ? response : cancelButton(alert));
}

} // namespace gtk
