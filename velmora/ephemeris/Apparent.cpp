#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include <velmora/ephemeris/Places.h>
#include <velmora/ephemeris/Series.h>
#include <velmora/ephemeris/TimeScales.h>

namespace velmora::ephemeris {
namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr double arcsecond = turn / 1296000.0;
constexpr double secondsOfTurn = 1296000.0;

using Arguments = std::array<double, 9>;

double polynomial(std::span<const double> powers, double t) {
  double sum = 0.0;
  for (std::size_t i = powers.size(); i-- > 0;) sum = sum * t + powers[i];
  return sum;
}

Arguments argumentsAt(double t) {
  constexpr double delaunay[4][5] = {{485868.249036, 1717915923.2178, 31.8792, 0.051635, -0.00024470},
                                     {1287104.793048, 129596581.0481, -0.5532, 0.000136, -0.00001149},
                                     {335779.526232, 1739527262.8478, -12.7512, -0.001037, 0.00000417},
                                     {1072260.703692, 1602961601.2090, -6.3706, 0.006593, -0.00003169}};
  constexpr double planets[5][2] = {{3.176146697, 1021.3285546211},
                                    {1.753470314, 628.3075849991},
                                    {6.203480913, 334.0612426700},
                                    {0.599546497, 52.9690962641},
                                    {0.874016757, 21.3299104960}};
  Arguments angles;
  for (std::size_t i = 0; i < 4; ++i) {
    angles[i] = std::fmod(polynomial(delaunay[i], t), secondsOfTurn) * arcsecond;
  }
  for (std::size_t i = 0; i < 5; ++i) angles[4 + i] = std::fmod(planets[i][0] + planets[i][1] * t, turn);
  return angles;
}

double sum(const Series& series, const Arguments& angles, double t) {
  double total = polynomial(series.powers, t);
  for (const Term& term : series.terms) {
    double angle = 0.0;
    for (std::size_t i = 0; i < angles.size(); ++i) angle += term.multiples[i] * angles[i];
    const double value = term.cosine * std::cos(angle) + term.sine * std::sin(angle);
    total += term.power == 0 ? value : value * std::pow(t, term.power);
  }
  return total;
}

double normalized(double angle) { return angle - std::floor(angle / turn) * turn; }

}  // namespace

MeanPlace meanPlace(Body body, double t) {
  const Arguments angles = argumentsAt(t);
  if (body == Body::moon) {
    return {std::fmod(sum(moonLongitude, angles, t), secondsOfTurn) * arcsecond,
            sum(moonLatitude, angles, t) * arcsecond, sum(moonDistance, angles, t)};
  }
  return {std::fmod(sum(sunLongitude, angles, t), secondsOfTurn) * arcsecond,
          sum(sunLatitude, angles, t) * arcsecond,
          sum(sunDistance, angles, t) * 1e-8 * kilometresPerAstronomicalUnit};
}

std::optional<Apparent> apparent(Body body, Instant instant) {
  if (!covers(instant)) return std::nullopt;
  const MeanPlace mean = meanPlace(body, terrestrialCenturies(instant));
  const Nutation n = nutation(instant);
  const double longitude = mean.longitude + n.longitude;
  const double cosE = std::cos(n.trueObliquity), sinE = std::sin(n.trueObliquity);
  const double x = std::cos(mean.latitude) * std::cos(longitude);
  const double y = std::cos(mean.latitude) * std::sin(longitude), z = std::sin(mean.latitude);
  const double north = sinE * y + cosE * z;
  return Apparent{.rightAscension = normalized(std::atan2(cosE * y - sinE * z, x)),
                  .declination = std::asin(north),
                  .longitude = normalized(longitude),
                  .latitude = mean.latitude,
                  .distance = mean.distance};
}

void apparent(Body body, std::span<const Instant> instants, std::span<Apparent> out) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  for (std::size_t i = 0; i < instants.size(); ++i) {
    out[i] = apparent(body, instants[i]).value_or(Apparent{none, none, none, none, none});
  }
}

}  // namespace velmora::ephemeris
