#include "platform/gtk/panels/PermissionsPanel.h"

#include "platform/gtk/panels/Panel.h"

#include <gtkmm/checkbutton.h>
#include <gtkmm/label.h>

namespace gtk {

namespace {

constexpr int margin = 18;
constexpr int gap = 12;
constexpr int indentation = 28; // to where the title of a check box begins
constexpr int longestLine = 46; // characters

} // namespace

PermissionsPanel::PermissionsPanel(const std::vector<Entry>& entries)
{
    entries_.set_margin(margin);
    entries_.set_spacing(gap);
    for (const auto& entry : entries)
        addEntry(entry);

    window_.set_child(entries_);
    presentPanel(window_, "Permissions");
}

void PermissionsPanel::addEntry(const Entry& entry)
{
    auto& check = *Gtk::make_managed<Gtk::CheckButton>(entry.title);
    check.set_active(entry.permission.isAllowed().value_or(false));
    check.signal_toggled().connect(
        [&check, &permission = entry.permission] { permission.decide(check.get_active()); });

    auto& explanation = *Gtk::make_managed<Gtk::Label>(entry.explanation);
    explanation.add_css_class("dim-label");
    explanation.set_wrap();
    explanation.set_max_width_chars(longestLine);
    explanation.set_xalign(0);
    explanation.set_margin_start(indentation);

    auto& texts = *Gtk::make_managed<Gtk::Box>(Gtk::Orientation::VERTICAL);
    texts.append(check);
    texts.append(explanation);
    entries_.append(texts);
}

} // namespace gtk
