#pragma once

#include "Picture.h"

namespace moonpictures {

enum class Body { sun, moon };
enum class Crossing { rise, set };

/// A rise or set icon of 60 × 60 pixels (20 points at scale 3): the body over the horizon and an arrow up or
/// down.
Picture iconOf(Body body, Crossing crossing);

}  // namespace moonpictures
