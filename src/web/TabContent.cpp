#include "web/TabContent.h"

#include "platform/ui/Views.h"
#include "web/FindBar.h"
#include "web/PageZoom.h"
#include "web/TabLoadingSplash.h"
#include "web/WebView.h"

namespace velmaro {

using ui::Alignment;
using ui::ProgressBar;
using ui::View;
using ui::ZStack;

namespace {

// The pieces read different fields, so that a load's progress redraws nothing but its line.

struct Splash {
    std::shared_ptr<WebModel> model;

    bool operator==(const Splash&) const = default;

    View body() const
    {
        if (!model->pageTitle().empty())
            return {};
        return View(TabLoadingSplash{}).transition({.fades = true, .duration = 0.2});
    }
};

struct ProgressLine {
    std::shared_ptr<WebModel> model;

    bool operator==(const ProgressLine&) const = default;

    View body() const
    {
        if (!model->isLoading())
            return {};
        return ProgressBar(model->estimatedProgress())
            .frame({.height = 2, .maxWidth = ui::infinity});
    }
};

struct FindBarPlace {
    std::shared_ptr<WebModel> model;

    bool operator==(const FindBarPlace&) const = default;

    View body() const
    {
        if (!model->findBarVisible())
            return {};
        return View(FindBar{model})
            .padding({.top = 8, .trailing = 12})
            .transition({.fades = true, .movesFrom = ui::Edge::top, .duration = 0.18});
    }
};

} // namespace

View TabContent::body() const
{
    const WebView page{
        .model = model, .pageMessages = pageMessages, .zoomPercent = PageZoom().percent()};

    return ZStack{{}, page, Splash{model}}
        .overlay(ProgressLine{model}, Alignment::top)
        .overlay(FindBarPlace{model}, Alignment::topTrailing);
}

} // namespace velmaro
