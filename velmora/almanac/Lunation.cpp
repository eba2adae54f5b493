#include <velmora/almanac/Lunation.h>

#include <cmath>
#include <numbers>

#include <velmora/almanac/Trigonometry.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

constexpr double secondsPerDay = 86400;
constexpr double firstNewMoon = 947168374;  // the mean one, Unix seconds
constexpr double lunation = 29.530588861;   // days
constexpr double lunationsPerCentury = 1236.85;

constexpr double radians(double degrees) { return degrees * std::numbers::pi / 180; }

/// The mean arguments of a phase, radians.
struct Arguments {
  double sun, moon, latitude;  // anomalies of Sun and Moon, distance of the Moon from its node
};

Arguments argumentsAt(double lunations) {
  return {radians(2.5534 + 29.10535670 * lunations), radians(201.5643 + 385.81693528 * lunations),
          radians(160.7108 + 390.67050284 * lunations)};
}

/// Days from the mean to the true new or full moon.
double syzygyCorrection(const Arguments& a) {
  return -0.4068 * sine(a.moon) + 0.1727 * sine(a.sun) + 0.0161 * sine(2 * a.moon) +
         0.0104 * sine(2 * a.latitude) + 0.0074 * sine(a.moon - a.sun) - 0.0051 * sine(a.moon + a.sun) +
         0.0021 * sine(2 * a.sun);
}

/// Days from the mean to the true first or last quarter.
double halfMoonCorrection(const Arguments& a, bool isFirst) {
  const double evection = 0.0031 - 0.0004 * cosine(a.sun) + 0.0003 * cosine(a.moon);
  return -0.6280 * sine(a.moon) + 0.1717 * sine(a.sun) - 0.0118 * sine(a.moon + a.sun) +
         0.0086 * sine(2 * a.moon) + 0.0080 * sine(2 * a.latitude) + 0.0045 * sine(a.moon - a.sun) +
         0.0020 * sine(2 * a.sun) + (isFirst ? evection : -evection);
}

/// Degrees a day, fitted to the rates at the phases of 1900 to 2100.
double elongationRate(const Arguments& a, bool isSyzygy) {
  const double reduction = -0.05 * cosine(2 * a.latitude);
  return isSyzygy ? reduction + 12.533 + 1.733 * cosine(a.moon) + 0.045 * cosine(2 * a.moon) -
                        0.021 * cosine(a.sun)
                  : reduction + 12.029 + 1.163 * cosine(a.moon) - 0.016 * cosine(2 * a.moon) -
                        0.050 * cosine(a.sun);
}

}  // namespace

Quarter meanQuarterBefore(Instant instant) {
  const double days = (unixSeconds(instant) - firstNewMoon) / secondsPerDay;
  return static_cast<Quarter>(std::floor(days / lunation * 4));
}

RoughPhase roughPhase(Quarter quarter) {
  const double lunations = static_cast<double>(quarter) / 4;
  const double centuries = lunations / lunationsPerCentury;
  const Arguments arguments = argumentsAt(lunations);
  const bool isSyzygy = quarter % 2 == 0;
  const double correction =
      isSyzygy ? syzygyCorrection(arguments) : halfMoonCorrection(arguments, (quarter - 1) % 4 == 0);
  const double days = lunation * lunations + 0.00015437 * centuries * centuries + correction;
  return {instantFromUnixSeconds(firstNewMoon + days * secondsPerDay),
          radians(elongationRate(arguments, isSyzygy)) / secondsPerDay, arguments.latitude};
}

}  // namespace almanac
}  // namespace velmora
