#pragma once

#include "Ephemeris.h"

namespace almanac {

/// The instant of greatest eclipse: the axis of the shadow passes closest to the Earth's centre (of a solar
/// eclipse), the Moon's centre passes closest to the axis of the Earth's shadow (of a lunar one). Found from
/// an instant within an hour of it, to a hundredth of a second.
JulianDateTT greatestEclipse(const Ephemeris& ephemeris, const Eclipse& eclipse);

}  // namespace almanac
