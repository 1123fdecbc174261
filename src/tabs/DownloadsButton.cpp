#include "tabs/DownloadsButton.h"

#include "platform/appkit/NSWorkspace.h"
#include "platform/ui/Views.h"
#include "web/DownloadList.h"

#include <algorithm>

namespace velmaro {

using platform::NSWorkspace;
using ui::Alignment;
using ui::Color;
using ui::HStack;
using ui::Text;
using ui::View;
using ui::VStack;

namespace {

constexpr double listWidth = 320;
constexpr double maximumListHeight = 300;
constexpr double rowHeight = 40;

View smallButton(const char* symbol, const std::string& help, std::function<void()> action)
{
    return ui::Button({.style = ui::ButtonStyle::borderless, .help = help},
        ui::Symbol(symbol, {.font = {.size = 11}}), std::move(action));
}

View caption(const std::string& text)
{
    return Text(text,
        {.font = {.size = 11}, .color = Color::secondaryLabel, .alignment = Alignment::leading})
        .help(text);
}

// One download in the list.
struct DownloadRow {
    DownloadItem item;

    View body() const
    {
        const auto name = item.file.lastPathComponent();
        return HStack{
            {.spacing = 8},
            VStack{
                {.spacing = 3, .alignment = Alignment::leading},
                Text(name, {.font = {.size = 13}, .alignment = Alignment::leading}).help(name),
                status(),
            }
                .frame({.maxWidth = ui::infinity, .alignment = Alignment::leading}),
            button(),
        }
            .frame({.height = rowHeight});
    }

    View status() const
    {
        switch (item.state) {
        case DownloadItem::State::running:
            if (const auto fraction = item.download->fractionCompleted())
                return ui::ProgressBar(*fraction).frame({.height = 3});
            return caption("Downloading…");
        case DownloadItem::State::finished:
            return caption("Saved");
        case DownloadItem::State::failed:
            return caption(item.failureReason);
        }
        return {};
    }

    View button() const
    {
        const auto name = item.file.lastPathComponent();
        switch (item.state) {
        case DownloadItem::State::running:
            return smallButton(
                "xmark", "Cancel " + name, [download = item.download] { download->cancel(); });
        case DownloadItem::State::finished:
            return smallButton("magnifyingglass", "Show " + name + " in its folder",
                [file = item.file] { NSWorkspace::shared().activateFileViewerSelecting({file}); });
        case DownloadItem::State::failed:
            break;
        }
        return {};
    }
};

View downloadsPanel(const DownloadList& list, std::function<void()> clear)
{
    const auto id = [](const DownloadItem& item) { return item.id.string(); };
    const auto row = [](const DownloadItem& item) { return View(DownloadRow{item}); };
    const auto& items = list.items();
    const double height =
        std::min(rowHeight * static_cast<double>(items.size()), maximumListHeight);
    return VStack{
        {.spacing = 8},
        HStack{
            {.spacing = 8},
            Text("Downloads", {.font = {.size = 13, .weight = ui::Font::Weight::semibold}}),
            ui::Spacer(),
            ui::Button({.help = "Clear the list of downloads"}, Text("Clear"), std::move(clear)),
        },
        ui::ScrollArea({}, VStack{{.spacing = 0}, ui::ForEach(items, id, row)})
            .frame({.height = height}),
    }
        .padding({.horizontal = 6, .vertical = 4})
        .frame({.width = listWidth});
}

} // namespace

View DownloadsButton::body() const
{
    auto& list = DownloadList::shared();
    if (list.items().empty())
        return {};

    const auto setOpen = isOpen.setter();
    const auto toggle = [setOpen, isOpen = isOpen()] { setOpen(!isOpen); };
    const auto clear = [&list, setOpen] {
        list.clear();
        setOpen(!list.items().empty());
    };
    return ui::Button({.style = ui::ButtonStyle::borderless, .help = "Downloads"},
        ui::Symbol("arrow.down.circle", {.font = {.size = 13}}), toggle)
        .overlay(list.isRunning() ? ui::ProgressBar(list.fractionCompleted()).frame({.height = 3})
                                  : View(),
            Alignment::bottom)
        .popover(isOpen() ? downloadsPanel(list, clear) : View(), [setOpen] { setOpen(false); });
}

} // namespace velmaro
