// Chapter 54, Eclipses.

#include <cmath>

#include "Lunation.h"
#include "LunationArguments.h"

namespace velmora::meeus {
namespace {

using std::cos;
using std::sin;

struct Geometry {
  double greatest;  ///< Julian date in Terrestrial Time
  double gamma;     ///< least distance of the shadow's axis from the centre, in the Earth's equatorial radii
  double u;         ///< radius of the Moon's umbral cone in the fundamental plane, negative where it reaches
};

double greatestInstant(const LunationArguments& a, double k, bool isLunar, double F1) {
  const double A1 = radians(299.77 + 0.107408 * k - 0.009173 * a.T * a.T);
  return a.meanPhase + (isLunar ? -0.4065 : -0.4075) * sin(a.moon) +
         (isLunar ? 0.1727 : 0.1721) * a.E * sin(a.sun) + 0.0161 * sin(2 * a.moon) - 0.0097 * sin(2 * F1) +
         0.0073 * a.E * sin(a.moon - a.sun) - 0.0050 * a.E * sin(a.moon + a.sun) -
         0.0023 * sin(a.moon - 2 * F1) + 0.0021 * a.E * sin(2 * a.sun) + 0.0012 * sin(a.moon + 2 * F1) +
         0.0006 * a.E * sin(2 * a.moon + a.sun) - 0.0004 * sin(3 * a.moon) -
         0.0003 * a.E * sin(a.sun + 2 * F1) + 0.0003 * sin(A1) - 0.0002 * a.E * sin(a.sun - 2 * F1) -
         0.0002 * a.E * sin(2 * a.moon - a.sun) - 0.0002 * sin(a.node);
}

double gammaOf(const LunationArguments& a, double F1) {
  const double P = 0.2070 * a.E * sin(a.sun) + 0.0024 * a.E * sin(2 * a.sun) - 0.0392 * sin(a.moon) +
                   0.0116 * sin(2 * a.moon) - 0.0073 * a.E * sin(a.moon + a.sun) +
                   0.0067 * a.E * sin(a.moon - a.sun) + 0.0118 * sin(2 * F1);
  const double Q = 5.2207 - 0.0048 * a.E * cos(a.sun) + 0.0020 * a.E * cos(2 * a.sun) - 0.3299 * cos(a.moon) -
                   0.0060 * a.E * cos(a.moon + a.sun) + 0.0041 * a.E * cos(a.moon - a.sun);
  return (P * cos(F1) + Q * sin(F1)) * (1 - 0.0048 * std::abs(cos(F1)));
}

Geometry geometryOf(double k, bool isLunar) {
  const LunationArguments a(k);
  const double F1 = a.latitude - radians(0.02665) * sin(a.node);
  const double u = 0.0059 + 0.0046 * a.E * cos(a.sun) - 0.0182 * cos(a.moon) + 0.0004 * cos(2 * a.moon) -
                   0.0005 * cos(a.sun + a.moon);
  return {greatestInstant(a, k, isLunar, F1), std::abs(gammaOf(a, F1)), u};
}

std::string centralSolarCode(double gamma, double u) {
  if (u < 0) return "TSE";
  if (u > 0.0047) return "ASE";
  return u < 0.00464 * std::sqrt(1 - gamma * gamma) ? "HSE" : "ASE";
}

std::string solarCode(double gamma, double u) {
  if (gamma > 1.5433 + u) return "";
  if (gamma < 0.9972) return centralSolarCode(gamma, u);
  if (gamma < 0.9972 + std::abs(u)) return u < 0 ? "TSE" : "ASE";  // seen at a pole's edge, axis passing by
  return "PSE";
}

std::string lunarCode(double gamma, double u) {
  const double penumbralMagnitude = (1.5573 + u - gamma) / 0.5450;
  const double umbralMagnitude = (1.0128 - u - gamma) / 0.5450;
  if (penumbralMagnitude < 0) return "";
  if (umbralMagnitude < 0) return "NLE";
  return umbralMagnitude < 1 ? "PLE" : "TLE";
}

}  // namespace

std::optional<Eclipse> eclipse(double k) {
  const bool isLunar = k != std::floor(k);
  const Geometry at = geometryOf(k, isLunar);
  const std::string code = isLunar ? lunarCode(at.gamma, at.u) : solarCode(at.gamma, at.u);
  if (code.empty()) return std::nullopt;
  return Eclipse{code, at.greatest};
}

}  // namespace velmora::meeus
