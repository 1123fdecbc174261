#include "tabs/ActiveTabShell.h"

#include "location/LocationPickerView.h"
#include "platform/ui/Views.h"
#include "tabs/DownloadsButton.h"
#include "tabs/FocusedValueKeys.h"
#include "tabs/TabBar.h"
#include "tabs/WindowSizer.h"
#include "tabs/WindowToolbar.h"
#include "web/TabContent.h"

namespace velmaro {

using ui::HStack;
using ui::View;
using ui::VStack;
using ui::ZStack;

namespace {

using Tab = std::shared_ptr<WebModel>;

// Every open tab keeps its page; only the active one is seen and clicked. A tab that has no page
// yet and needs none has no layer.
View layers(const TabbedAppModel& app, const Tab& active, const PageMessageRules& pageMessages)
{
    const auto tabId = [](const Tab& tab) { return tab->id.string(); };
    const auto layer = [&](const Tab& tab) {
        const bool isActive = tab == active;
        if (!isActive && !tab->isLoadedAhead() && tab->webView.expired())
            return View();
        return View(TabContent{.model = tab, .pageMessages = pageMessages})
            .opacity(isActive ? 1 : 0)
            .allowsHitTesting(isActive);
    };
    return ZStack{{}, ui::ForEach(app.tabs(), tabId, layer)};
}

// The location picker, for the tab that was in front when it was opened. A picked place goes to
// that tab, and is dropped when the tab has been closed meanwhile.
struct StationPicker {
    StationKind kind;
    ui::State<std::weak_ptr<WebModel>> opener;
    std::function<void()> close;

    auto state() { return std::tie(opener); }

    View body() const
    {
        const auto handOff = [kind = kind, opener = opener(), close = close](
                                 const PickedLocation& location) {
            close();
            if (const auto tab = opener.lock())
                tab->handOffLocation(kind, location);
        };
        return LocationPickerView{.kind = kind, .onPick = handOff, .onCancel = close};
    }
};

} // namespace

View ActiveTabShell::body() const
{
    const auto closePicker = [close = pickerTarget.setter()] { close(std::nullopt); };
    const auto picker = [&](StationKind kind) {
        return View(
            StationPicker{.kind = kind, .opener = std::weak_ptr(active), .close = closePicker})
            .id(std::string(rawValue(kind)));
    };
    const auto& target = pickerTarget();

    return VStack{{.spacing = 0}, TabBar{app}, layers(*app, active, pageMessages)}
        .background(WindowSizer{})
        .focusedSceneValue<WebModelFocusedKey>(active)
        .focusedSceneValue<TabbedAppModelFocusedKey>(app)
        .sheet(target ? picker(*target) : View(), closePicker)
        .toolbar(NavigationToolbar{active},
            HStack{
                {.spacing = 6}, DownloadsButton{}, StationToolbar{active, pickerTarget.binding()}});
}

} // namespace velmaro
