#pragma once

#include <array>
#include <cstddef>

#include <velmora/astronomy/HourlySeries.h>

namespace [[gnu::visibility("hidden")]] velmora {

// The samples of the rise and set search; not for other folders.

/// The sine of a body's altitude at local midnight and at the 48 hours after it, each computed when it or a
/// neighbour is first asked for. They are those of `_sin_alt` within 2e-10, which is what the rounding of its
/// sidereal time leaves certain.
template <class HourlyBody>
class HourlyAltitudes {
 public:
  static constexpr int lastHour = 48;

  /// `localMidnight`: a Modified Julian Date of universal time. Longitude and latitude in degrees.
  HourlyAltitudes(double localMidnight, double longitude, double latitude);

  double at(int hour) {
    const auto wanted = static_cast<std::size_t>(hour);
    while (_known <= wanted) sampleHours();
    return _sines[wanted];
  }

 private:
  static constexpr std::size_t capacity = (lastHour / FourNumbers::count + 1) * FourNumbers::count;

  void sampleHours();

  HourlyBody _body;
  HourlyAngle _siderealAngle;  ///< local
  Angle<double> _latitude;
  std::array<double, capacity> _sines;
  std::size_t _known = 0;
};

}  // namespace velmora
