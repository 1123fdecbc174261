#pragma once

#include "location/LocationPickerModel.h"
#include "location/PickedLocation.h"
#include "location/StationKind.h"
#include "platform/ui/State.h"
#include "platform/ui/View.h"

#include <functional>
#include <tuple>

namespace velmaro {

// The sheet in which the user picks a place: by typing an address and choosing a suggestion, or by
// being there. It never dismisses itself: its presenter does, in both callbacks.
struct LocationPickerView {
    StationKind kind;
    std::function<void(const PickedLocation&)> onPick;
    std::function<void()> onCancel;
    ui::StateObject<LocationPickerModel> model = {};
    ui::State<bool> queryFocused = false;

    auto state() { return std::tie(model, queryFocused); }
    ui::View body() const;
};

} // namespace velmaro
