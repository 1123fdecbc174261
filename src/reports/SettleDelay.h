#pragma once

namespace velmaro {

// Seconds that a report gets between the end of its loading and its way to paper or file.
inline constexpr double settleDelay = 0.35;

} // namespace velmaro
