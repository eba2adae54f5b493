#pragma once

#include <vector>

#include "Catalogue.h"
#include "SurfaceMap.h"

namespace moonpictures {

/// Distance from a crater's centre, as a share of its radius, up to which its ejecta lift the ground.
inline constexpr double ejectaReach = 2.4;

/// The many small craters without a name: the same ones at every call, dense in the highlands, few in the
/// maria.
std::vector<Crater> smallCraters(const SurfaceMap& mareCover);

/// Distance of a place from the crater's centre as a share of its radius; 1 on the somewhat uneven rim.
double distanceInRadii(const Crater& crater, const Vector& place);

/// Share of the radius that the flat floor takes.
double floorShare(const Crater& crater);

/// Height in kilometres over the ground around the crater, at a distance given as a share of its radius.
/// Depth, rim, floor and peak follow R. J. Pike, "Size-dependence in the shape of fresh impact craters on the
/// Moon" (1977).
double craterHeight(const Crater& crater, double distance);

}  // namespace moonpictures
