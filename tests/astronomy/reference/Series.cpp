#include <tests/astronomy/reference/Reference.h>

#include <cmath>

namespace velmora::reference {
namespace {

// The short figures of the printed series; nothing may replace them by more precise ones.
constexpr double twoPi = 6.283185307;
constexpr double arcsecondsPerTurn = 1296000;
constexpr double arcsecondsPerRadian = 206264.8062;
constexpr double cosObliquity = 0.91748;
constexpr double sinObliquity = 0.39778;
constexpr double degreesPerRadian = 57.29577951471995;         // 360 / twoPi
constexpr double hoursPerHalfAngleRadian = 7.639437268629327;  // 48 / twoPi
constexpr double radiansPerDegree = 0.0174532925;

constexpr double moon = 1.0;  // every other object is the Sun

double angleOf(double turns) { return twoPi * frac(turns); }

/// The direction of a unit vector in the frame of the equator.
EquatorialCoordinates equatorial(double x, double y, double z) {
  const double rho = std::sqrt(1 - z * z);
  const double declination = degreesPerRadian * std::atan(z / rho);
  const double rightAscension = hoursPerHalfAngleRadian * std::atan(y / (x + rho));
  return {declination, rightAscension < 0 ? rightAscension + 24 : rightAscension};
}

double centuriesSinceJ2000(double mjd) { return (mjd - 51544.5) / 36525; }

double reduced(double degrees) {
  const double turns = degrees / 360;
  const double angle = (turns - std::trunc(turns)) * 360;
  return angle < 0 ? angle + 360 : angle;
}

}  // namespace

double frac(double x) { return x - std::floor(x); }

double siderealDegrees(double mjd) {
  const double d = mjd - 51544.5;
  const double T = d / 36525;
  return reduced(280.46061837 + 360.98564736629 * d + 0.000387933 * (T * T) + (T * T * T) / -38710000);
}

EquatorialCoordinates minisun(double centuries) {
  const double T = centuries;
  const double M = angleOf(0.993133 + 99.997361 * T);
  const double DL = 6893 * std::sin(M) + 72 * std::sin(2 * M);
  const double L = angleOf(0.7859453 + M / twoPi + (6191.2 * T + DL) / arcsecondsPerTurn);
  const double SL = std::sin(L);
  return equatorial(std::cos(L), cosObliquity * SL, sinObliquity * SL);
}

EquatorialCoordinates minimoon(double centuries) {
  using std::cos, std::sin;
  const double T = centuries;
  const double L0 = frac(0.606433 + 1336.855225 * T);    // mean longitude, turns
  const double l = angleOf(0.374897 + 1325.55241 * T);   // mean anomaly of the Moon
  const double ls = angleOf(0.993133 + 99.997361 * T);   // mean anomaly of the Sun
  const double D = angleOf(0.827361 + 1236.853086 * T);  // mean elongation
  const double F = angleOf(0.259086 + 1342.227825 * T);  // argument of latitude

  // Perturbations in longitude and latitude, arc seconds.
  const double DL = 22640 * sin(l) - 4586 * sin(l - 2 * D) + 2370 * sin(2 * D) + 769 * sin(2 * l) -
                    668 * sin(ls) - 412 * sin(2 * F) - 212 * sin(2 * l - 2 * D) - 206 * sin(l + ls - 2 * D) +
                    192 * sin(l + 2 * D) - 165 * sin(ls - 2 * D) - 125 * sin(D) - 110 * sin(l + ls) +
                    148 * sin(l - ls) - 55 * sin(2 * F - 2 * D);
  const double S = F + (DL + 412 * sin(2 * F) + 541 * sin(ls)) / arcsecondsPerRadian;
  const double H = F - 2 * D;
  const double N = -526 * sin(H) + 44 * sin(l + H) - 31 * sin(H - l) - 23 * sin(ls + H) + 11 * sin(H - ls) -
                   25 * sin(F - 2 * l) + 21 * sin(F - l);

  const double longitude = angleOf(L0 + DL / arcsecondsPerTurn);
  const double latitude = (18520 * sin(S) + N) / arcsecondsPerRadian;
  const double CB = cos(latitude);
  const double X = CB * cos(longitude);
  const double V = CB * sin(longitude);
  const double W = sin(latitude);
  return equatorial(X, cosObliquity * V - sinObliquity * W, sinObliquity * V + cosObliquity * W);
}

double sinAlt(double object, double mjd0, double hour, double longitude, double cosLatitude,
              double sinLatitude) {
  const double mjd = mjd0 + hour / 24;
  const double T = centuriesSinceJ2000(mjd);
  const EquatorialCoordinates body = object == moon ? minimoon(T) : minisun(T);
  const double hourAngle =
      15 * ((siderealDegrees(mjd) / 15 + longitude / 15) - body.rightAscension) * radiansPerDegree;
  const double declination = body.declination * radiansPerDegree;
  return sinLatitude * std::sin(declination) + cosLatitude * std::cos(declination) * std::cos(hourAngle);
}

}  // namespace velmora::reference
