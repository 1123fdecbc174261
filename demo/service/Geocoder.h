#pragma once

#include "http/Answer.h"

namespace demo {

/// Answers a search for places as a Photon service does: a GeoJSON FeatureCollection of at most
/// "limit" places whose words begin with the words of "q". A number in "q" is a house number where
/// the place is a street. With "lat" and "lon", nearer places come first.
Answer searchAnswer(const Request&);

/// The places nearest to "lat" and "lon", at most "limit" (1 when left out), nearest first.
Answer reverseAnswer(const Request&);

} // namespace demo
