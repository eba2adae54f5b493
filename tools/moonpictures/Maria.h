#pragma once

#include <vector>

#include "Catalogue.h"
#include "SurfaceMap.h"

namespace moonpictures {

/// How much of each place is mare: 0 bright highland … 1 the darkest plain, with soft and uneven shores.
SurfaceMap mareCover(const std::vector<Mare>& maria);

}  // namespace moonpictures
