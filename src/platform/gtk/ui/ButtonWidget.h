#pragma once

#include "platform/gtk/ui/Container.h"

#include <functional>
#include <gtkmm/button.h>
#include <gtkmm/shortcutcontroller.h>
#include <optional>
#include <string>

namespace ui {
enum class KeyboardShortcut;
struct ButtonNode;
}

namespace gtk {

class ButtonWidget final : public Container {
public:
    ButtonWidget();
    ~ButtonWidget() override;

    Gtk::Widget& native() override { return button_; }
    void apply(const ui::Node& node) override;

private:
    void appear();
    void disappear();
    void setNames(const ui::ButtonNode& button);
    void setShortcut(std::optional<ui::KeyboardShortcut> shortcut);

    Gtk::Button button_;
    std::function<void()> action_;
    std::string help_;
    std::string name_;
    bool focusesWhenShown_ = false;
    std::optional<ui::KeyboardShortcut> shortcut_;
    Glib::RefPtr<Gtk::ShortcutController> shortcuts_;
};

} // namespace gtk
