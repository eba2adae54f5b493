#pragma once

#include "Catalogue.h"
#include "SurfaceMap.h"

namespace moonpictures {

/// Brightness of the ground, 0 black … 1 white, as it looks at full Moon.
SurfaceMap albedoOf(const Catalogue& catalogue, const SurfaceMap& mareCover);

}  // namespace moonpictures
