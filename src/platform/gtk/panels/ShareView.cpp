#include "platform/gtk/panels/ShareView.h"

#include "platform/ui/Views.h"

namespace gtk {

namespace {

constexpr double width = 316;
constexpr double margin = 12;

// As wide as the list, however long the name is.
ui::View heading(const std::vector<std::string>& files)
{
    const auto text = files.size() == 1 ? files.front() : std::to_string(files.size()) + " files";
    return ui::Text(text,
        {.font = {.size = 14.67, .weight = ui::Font::Weight::bold},
            .truncation = ui::Truncation::middle})
        .frame({.idealWidth = 0, .maxWidth = ui::infinity});
}

} // namespace

ui::View ShareView::body() const
{
    const auto programEntry = [this](const Program& program) {
        return entry("Open with " + program.name, program.icon, program.open);
    };
    return ui::VStack{
        {.spacing = 0},
        heading(files).padding({.bottom = margin}),
        ui::ForEach(programs, &Program::name, programEntry),
        ui::Divider(),
        entry("Send by E-Mail", "mail-send-symbolic", sendByMail),
        entry("Copy File", "edit-copy-symbolic", copy),
    }
        .frame({.minWidth = width})
        .padding({.horizontal = margin, .vertical = margin});
}

ui::View ShareView::entry(
    const std::string& title, const std::string& icon, const std::function<void()>& action) const
{
    const ui::TextOptions look{
        .font = {.size = ui::Font::desktopSize}, .alignment = ui::Alignment::leading};
    return ui::Button({.style = ui::ButtonStyle::borderless, .title = title},
        ui::HStack{{.spacing = margin}, ui::Icon(icon), ui::Text(title, look)}.frame(
            {.maxWidth = ui::infinity, .alignment = ui::Alignment::leading}),
        [dismiss = dismiss, action] {
            dismiss();
            action();
        });
}

} // namespace gtk
