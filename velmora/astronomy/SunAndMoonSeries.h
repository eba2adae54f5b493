#pragma once

#include <array>

#include <velmora/astronomy/Angle.h>
#include <velmora/astronomy/FourNumbers.h>
#include <velmora/astronomy/RiseAndSetCalc.h>

namespace [[gnu::visibility("hidden")]] velmora {

// The short series of the Sun and the Moon, as the files of the engine share them; not for other folders.
// They are written without branches, so that a compiler can work on several hours at once.

// The short figures of the printed series; nothing may replace them by more precise ones.
inline constexpr double seriesTwoPi = 6.283185307;
inline constexpr double turnsPerArcsecond = 1.0 / 1296000;
inline constexpr double radiansPerArcsecond = 1.0 / 206264.8062;
inline constexpr double cosObliquity = 0.91748;
inline constexpr double sinObliquity = 0.39778;

/// A full turn less the given angle, in radians.
constexpr double shortfallOfTurn(double radians) { return 6.283185307179586 - radians; }

/// An argument of a series, in turns: its value at the epoch and its growth.
struct MeanArgument {
  double atEpoch = 0.0;
  double perCentury = 0.0;
};

inline constexpr MeanArgument sunLongitude{0.7859453 + 0.993133, 99.997361 + 6191.2 * turnsPerArcsecond};
inline constexpr MeanArgument sunAnomaly{0.993133, 99.997361};
inline constexpr MeanArgument moonLongitude{0.606433, 1336.855225};
inline constexpr MeanArgument moonAnomaly{0.374897, 1325.55241};
inline constexpr MeanArgument moonElongation{0.827361, 1236.853086};
inline constexpr MeanArgument moonLatitudeArgument{0.259086, 1342.227825};

/// Each the angle of one of four numbers of 0 to 2π radians, computed together.
inline std::array<Angle<double>, FourNumbers::count> anglesSideBySide(const FourNumbers& radians) {
  const Angle<FourNumbers> angles = angleWithinTurn(radians);
  std::array<Angle<double>, FourNumbers::count> each;
  for (std::size_t i = 0; i < each.size(); ++i) each[i] = {cos(angles)[i], sin(angles)[i]};
  return each;
}

/// The value of an argument at one moment, or at several hours.
template <class Number>
struct ArgumentValue {
  Number turns;  ///< [0, 1)
  Angle<Number> angle;
};

inline void setHour(ArgumentValue<FourNumbers>& values, std::size_t hour,
                    const ArgumentValue<double>& value) {
  values.turns.set(hour, value.turns);
  values.angle.cosine.set(hour, cos(value.angle));
  values.angle.sine.set(hour, sin(value.angle));
}

ArgumentValue<double> valueAt(const MeanArgument& argument, double centuries);
ArgumentValue<FourNumbers> valueAt(const MeanArgument& argument, const FourNumbers& centuries);

/// Those of several arguments at one moment.
std::array<ArgumentValue<double>, FourNumbers::count> valuesAt(
    const std::array<MeanArgument, FourNumbers::count>& arguments, double centuries);

/// A direction in the frame of the equator and equinox of date. A unit vector but for the short figures of
/// the obliquity, which make x and y up to 1e-6 too small.
template <class Number>
struct Direction {
  Number x, y, z;
};

inline Direction<double> directionOfHour(const Direction<FourNumbers>& directions, std::size_t hour) {
  return {directions.x[hour], directions.y[hour], directions.z[hour]};
}

/// The mean longitude with its perturbation in arc seconds. A turn of the printed 2π is not quite a full one,
/// which shows where the perturbation passes the end or the beginning of a turn.
template <class Number>
constexpr Angle<Number> trueLongitude(const ArgumentValue<Number>& mean, const Number& perturbation) {
  const Number turns = perturbation * turnsPerArcsecond;
  const Number sum = mean.turns + turns;
  const Number wholeTurns = selectLess(sum, 0, -1, selectLess(sum, 1, 0, 1));
  return mean.angle + smallAngle<Number>(seriesTwoPi * turns + shortfallOfTurn(seriesTwoPi) * wholeTurns);
}

/// The Sun. M: its mean anomaly.
template <class Number>
constexpr Direction<Number> sunDirection(const ArgumentValue<Number>& longitude, const Angle<Number>& M) {
  const Number DL = 6893 * sin(M) + 72 * sin(M + M);
  const Angle<Number> L = trueLongitude(longitude, DL);
  return {cos(L), cosObliquity * sin(L), sinObliquity * sin(L)};
}

/// The Moon. l and ls: mean anomaly of the Moon and of the Sun, D: mean elongation, F: argument of latitude.
template <class Number>
constexpr Direction<Number> moonDirection(const ArgumentValue<Number>& longitude, const Angle<Number>& l,
                                          const Angle<Number>& ls, const Angle<Number>& D,
                                          const Angle<Number>& F) {
  const Angle<Number> l2 = l + l, D2 = D + D, F2 = F + F;

  // Perturbations in longitude and latitude, arc seconds.
  const Number DL = 22640 * sin(l) - 4586 * sin(l - D2) + 2370 * sin(D2) + 769 * sin(l2) - 668 * sin(ls) -
                    412 * sin(F2) - 212 * sin(l2 - D2) - 206 * sin(l + ls - D2) + 192 * sin(l + D2) -
                    165 * sin(ls - D2) - 125 * sin(D) - 110 * sin(l + ls) + 148 * sin(l - ls) -
                    55 * sin(F2 - D2);
  const Angle<Number> S = F + smallAngle<Number>((DL + 412 * sin(F2) + 541 * sin(ls)) * radiansPerArcsecond);
  const Angle<Number> H = F - D2;
  const Number N = -526 * sin(H) + 44 * sin(l + H) - 31 * sin(H - l) - 23 * sin(ls + H) + 11 * sin(H - ls) -
                   25 * sin(F - l2) + 21 * sin(F - l);

  const Angle<Number> lambda = trueLongitude(longitude, DL);
  const Angle<Number> beta = smallAngle<Number>((18520 * sin(S) + N) * radiansPerArcsecond);
  const Number X = cos(beta) * cos(lambda);
  const Number V = cos(beta) * sin(lambda);
  const Number& W = sin(beta);
  return {X, cosObliquity * V - sinObliquity * W, sinObliquity * V + cosObliquity * W};
}

/// The Moon at one moment, or at several: the same to the last bit.
Direction<double> moonDirectionAt(double centuries);
Direction<FourNumbers> moonDirectionAt(const FourNumbers& centuries);

/// The printed half-angle formula, in hours, [0, 24). `rho`: cosine of the declination.
double rightAscensionHours(const Direction<double>& direction, double rho);

}  // namespace velmora
