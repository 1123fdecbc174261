#pragma once

namespace velmaro {

// Where the settings store keeps how far the user got in the welcome tour.
namespace OnboardingKeys {

inline constexpr auto shown = "vl.onboarding.shown";
inline constexpr auto completed = "vl.onboarding.completed";

} // namespace OnboardingKeys

} // namespace velmaro
