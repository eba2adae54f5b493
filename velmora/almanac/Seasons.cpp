#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

#include <velmora/almanac/CoveredPart.h>
#include <velmora/almanac/Phases.h>
#include <velmora/almanac/Trigonometry.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace velmora::almanac {
namespace {

using ephemeris::Body;

constexpr double secondsPerDay = 86400;

/// The mean beginnings of a season: Meeus, "Astronomical Algorithms", 2nd edition, table 27.B, without its
/// small terms. They are within half an hour of the true ones.
struct MeanSeason {
  double of2000;   ///< days since 1970
  double year;     ///< days to the next
  double sunRate;  ///< of the Sun's longitude then, degrees a day
};
constexpr std::array<MeanSeason, 4> meanSeasons{{{11036.30984, 365.24237404, 0.9934},
                                                 {11129.06767, 365.24162603, 0.9542},
                                                 {11222.71715, 365.24201767, 0.9787},
                                                 {11312.55952, 365.24274049, 1.0184}}};

/// Newton's method on the Sun's longitude, whose second step is one of some seconds.
Instant seasonInstant(int year, Season season) {
  const MeanSeason& mean = meanSeasons[static_cast<std::size_t>(season)];
  Instant at = instantFromUnixSeconds((mean.of2000 + mean.year * (year - 2000)) * secondsPerDay);
  const double longitude = static_cast<double>(season) * std::numbers::pi / 2;
  const double rate = mean.sunRate * std::numbers::pi / 180 / secondsPerDay;
  for (int step = 0; step < 2; ++step) {
    const auto sun = ephemeris::apparent(Body::sun, at);
    if (!sun) break;
    at -= Seconds(withinHalfTurn(sun->longitude - longitude) / rate);
  }
  return at;
}

int yearOf(Instant instant) {
  return static_cast<int>(std::floor(1970 + unixSeconds(instant) / secondsPerDay / 365.2425));
}

}  // namespace

std::vector<SeasonEvent> seasons(Instant from, Instant to) {
  std::vector<SeasonEvent> found;
  const auto part = coveredPart(from, to);
  if (!part) return found;
  const auto [begin, end] = *part;
  for (int year = yearOf(begin) - 1; year <= yearOf(end) + 1; ++year) {
    for (const Season season :
         {Season::marchEquinox, Season::juneSolstice, Season::septemberEquinox, Season::decemberSolstice}) {
      const Instant at = seasonInstant(year, season);
      if (begin <= at && at < end) found.push_back({at, season});
    }
  }
  return found;
}

}  // namespace velmora::almanac
