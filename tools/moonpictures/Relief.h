#pragma once

#include "Catalogue.h"
#include "SurfaceMap.h"

namespace moonpictures {

/// Heights in kilometres: rough highlands, lower and smoother maria, mountain ranges, craters.
SurfaceMap reliefOf(const Catalogue& catalogue, const SurfaceMap& mareCover);

}  // namespace moonpictures
