#pragma once

#include "platform/ui/View.h"
#include "web/WebModel.h"

#include <memory>

namespace velmaro {

// The text field of the find bar, which takes the keyboard when it appears. Return goes on to the
// next match, Shift-Return to the previous one, and Escape closes the bar.
struct AutoFocusedFindField {
    std::shared_ptr<WebModel> model;

    bool operator==(const AutoFocusedFindField&) const = default;
    ui::View body() const;
};

} // namespace velmaro
