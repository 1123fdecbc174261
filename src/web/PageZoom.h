#pragma once

#include "platform/ui/AppStorage.h"

namespace velmaro {

// How large pages are shown, in all tabs and again at the next launch. It changes in the steps that
// browsers have.
class PageZoom {
public:
    static constexpr auto key = "vl.page.zoom";
    static constexpr int actualSize = 100; // percent

    // The stored zoom, clamped to the allowed range.
    int percent() const;

    // The next step from here; the same at the end of the steps.
    int larger() const;
    int smaller() const;

    void setPercent(int percent) const { stored_.set(percent); }

private:
    ui::AppStorage<int> stored_{key, actualSize};
};

} // namespace velmaro
