#include "ShadowAxis.h"

#include <cmath>

namespace almanac {
namespace {

constexpr double halfStep = 1.0 / 1440;  // days
constexpr double precision = 1e-7;       // days, about 0.01 s

double dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

Vector sum(const Vector& a, double factor, const Vector& b) {
  return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

// From the Earth's centre across to the axis of the Moon's shadow, or from the axis of the Earth's shadow
// across to the Moon's centre: the part of the Moon's position that is square to the axis.
Vector offset(const Ephemeris& ephemeris, bool isLunar, JulianDateTT date) {
  const Vector sun = ephemeris.sun(date);
  const Vector moon = ephemeris.moon(date);
  const Vector axis = isLunar ? sun : sum(sun, -1, moon);
  return sum(moon, -dot(moon, axis) / dot(axis, axis), axis);
}

}  // namespace

JulianDateTT greatestEclipse(const Ephemeris& ephemeris, const Eclipse& eclipse) {
  const bool isLunar = eclipse.kind <= EclipseKind::penumbralLunar;
  for (JulianDateTT date = eclipse.greatest;;) {
    const Vector before = offset(ephemeris, isLunar, date - halfStep);
    const Vector after = offset(ephemeris, isLunar, date + halfStep);
    const Vector motion = sum(after, -1, before);
    const Vector middle = sum(before, 0.5, motion);
    const double step = -dot(middle, motion) / dot(motion, motion) * 2 * halfStep;
    date += step;
    if (std::abs(step) < precision) return date;
  }
}

}  // namespace almanac
