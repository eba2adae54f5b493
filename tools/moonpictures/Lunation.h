#pragma once

namespace moonpictures {

/// The lunation is shown in pictures 0 … 55.
inline constexpr int pictureCount = 56;

/// Angle of the Moon from the Sun in degrees, 0 … 360, that a picture shows: 0 new moon, 15 first quarter,
/// 27 full moon, 40 last quarter and evenly spaced between these.
double elongationOf(int picture);

}  // namespace moonpictures
