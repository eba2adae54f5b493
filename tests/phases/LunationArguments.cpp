#include "LunationArguments.h"

#include <cmath>

namespace velmora::meeus {
namespace {

constexpr double lunationsPerCentury = 1236.85;

double polynomial(double T, double c2, double c3, double c4 = 0) { return T * T * (c2 + T * (c3 + T * c4)); }

}  // namespace

double radians(double degrees) { return std::remainder(degrees, 360) * (std::acos(-1.0) / 180); }

LunationArguments::LunationArguments(double k)
    : meanPhase(2451550.09766 + 29.530588861 * k), T(k / lunationsPerCentury) {
  meanPhase += polynomial(T, 0.00015437, -0.000000150, 0.00000000073);
  E = 1 - 0.002516 * T - 0.0000074 * T * T;
  sun = radians(2.5534 + 29.10535670 * k + polynomial(T, -0.0000014, -0.00000011));
  moon = radians(201.5643 + 385.81693528 * k + polynomial(T, 0.0107582, 0.00001238, -0.000000058));
  latitude = radians(160.7108 + 390.67050284 * k + polynomial(T, -0.0016118, -0.00000227, 0.000000011));
  node = radians(124.7746 - 1.56375588 * k + polynomial(T, 0.0020672, 0.00000215));
}

}  // namespace velmora::meeus
