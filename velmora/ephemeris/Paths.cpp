#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>

#include <velmora/ephemeris/EarthRotation.h>
#include <velmora/ephemeris/Evaluation.h>
#include <velmora/ephemeris/Geocentric.h>
#include <velmora/ephemeris/PathData.h>

namespace velmora::ephemeris {
namespace {

using namespace std::chrono;

using Square = std::array<std::array<double, nodesOfSegment>, nodesOfSegment>;

/// Chebyshev's nodes, x from −1 to 1.
constexpr std::array<double, nodesOfSegment> nodes = [] {
  std::array<double, nodesOfSegment> result{};
  for (std::size_t i = 0; i < nodesOfSegment; ++i) {
    result[i] = -cosineAndSine((static_cast<double>(i) + 0.5) / (2.0 * nodesOfSegment)).re;
  }
  return result;
}();

/// The coefficients of the powers of x in Chebyshev's polynomials, a row each.
constexpr Square chebyshev = [] {
  Square rows{};
  rows[0][0] = rows[1][1] = 1;
  for (std::size_t n = 2; n < nodesOfSegment; ++n) {
    for (std::size_t power = 0; power < nodesOfSegment; ++power) {
      rows[n][power] = (power > 0 ? 2 * rows[n - 1][power - 1] : 0) - rows[n - 2][power];
    }
  }
  return rows;
}();

/// What the value at a node (column) gives to the coefficient of a power of x (row) of the polynomial through
/// all.
constexpr Square shares = [] {
  Square result{};
  for (std::size_t node = 0; node < nodesOfSegment; ++node) {
    for (std::size_t n = 0; n < nodesOfSegment; ++n) {
      const double weight = polynomial(chebyshev[n], nodes[node]) * (n == 0 ? 1.0 : 2.0) / nodesOfSegment;
      for (std::size_t power = 0; power < nodesOfSegment; ++power) {
        result[power][node] += weight * chebyshev[n][power];
      }
    }
  }
  return result;
}();

/// The places of the body at eight times in the frame of `Paths::vector`.
Rectangular<Doubles> placesAt(Body body, const Doubles& centuries) {
  const auto place = geocentric(body, centuries);
  // The equation of the equinoxes, of which the cube is nothing.
  const Doubles turn = place.equationOfTheEquinoxes * radiansOfTurn;
  const Doubles cosine = 1.0 - 0.5 * turn * turn;
  return {(place.x * cosine + place.y * turn) * place.distance,
          (place.y * cosine - place.x * turn) * place.distance, place.z * place.distance};
}

Segment segmentOf(Body body, double number) {
  static_assert(nodesOfSegment == laneCount);
  std::array<double, laneCount> centuries;
  for (std::size_t i = 0; i < laneCount; ++i) {
    centuries[i] = (number + (nodes[i] + 1) / 2) * (segmentSeconds(body) / secondsPerCentury);
  }
  const auto places = placesAt(body, doublesOf(centuries));
  Segment segment{};
  for (std::size_t i = 0; i < laneCount; ++i) {
    const Vector place = {lane(places.x, i), lane(places.y, i), lane(places.z, i)};
    for (std::size_t power = 0; power < nodesOfSegment; ++power) {
      segment.coefficients[power] = segment.coefficients[power] + place * shares[power][i];
    }
  }
  return segment;
}

/// What was made for some numbers. A thread keeps it, so that questions about one time do not begin anew.
template <class Made>
class Kept {
 public:
  template <class Make>
  const Made& at(double number, Make make) {
    Entry& here = _entries[static_cast<std::size_t>(static_cast<std::int64_t>(number)) % _entries.size()];
    if (here.number != number) here = {number, make()};
    return here.made;
  }

 private:
  struct Entry {
    double number = std::numeric_limits<double>::quiet_NaN();
    Made made;
  };
  std::array<Entry, 8> _entries;
};

std::vector<Segment> segmentsOf(Body body, double first, double last) {
  thread_local std::array<Kept<Segment>, 2> kept;
  std::vector<Segment> segments;
  segments.reserve(static_cast<std::size_t>(last - first) + 1);
  for (double number = first; number <= last; ++number) {
    segments.push_back(
        kept[static_cast<std::size_t>(body)].at(number, [=] { return segmentOf(body, number); }));
  }
  return segments;
}

/// The stretch between two instants that no jump or bend of a time scale divides.
Stretch stretchOf(Instant since, Instant until) {
  const Instant middle = since + (until - since) / 2;
  const double seconds = (middle - since).count();
  const double terrestrial = terrestrialSeconds(since), sidereal = siderealTurns(since);
  return {since, terrestrial, (terrestrialSeconds(middle) - terrestrial) / seconds, sidereal,
          (siderealTurns(middle) - sidereal) / seconds};
}

/// The first day of a half-year, which are numbered from the year 0.
sys_days startOfHalf(int number) { return year(number / 2) / (number % 2 == 0 ? January : July) / 1; }

/// Time scales jump and bend at the beginnings of half-years alone.
std::vector<Stretch> stretchesOf(Instant from, Instant to) {
  thread_local Kept<Stretch> kept;
  std::vector<Stretch> stretches;
  const year_month_day date(floor<days>(from));
  for (int number = 2 * int(date.year()) + (date.month() < July ? 0 : 1); startOfHalf(number) <= to;
       ++number) {
    stretches.push_back(
        kept.at(number, [=] { return stretchOf(startOfHalf(number), startOfHalf(number + 1)); }));
  }
  return stretches;
}

}  // namespace

Blocks blocksOf(Instant start, Instant end) {
  auto first = static_cast<std::int64_t>(std::floor(unixSeconds(start) / blockSeconds));
  auto past = static_cast<std::int64_t>(std::ceil(unixSeconds(end) / blockSeconds));
  // The quotient of an instant next to a block's start is rounded to that block.
  if (start < startOfBlock(first)) --first;
  if (startOfBlock(past) < end) ++past;
  return {first, past - first};
}

std::optional<Paths> Paths::over(Instant from, Instant to) {
  if (!covers(from) || !(covers(to) || to == endInstant()) || to < from) return std::nullopt;
  PathData data;
  data.from = from;
  data.to = to;
  const auto [firstBlock, blockCount] = blocksOf(from, to);
  const Instant first = startOfBlock(firstBlock), last = startOfBlock(firstBlock + blockCount);
  data.stretches = stretchesOf(first, last);
  constexpr double second = 1;  // more than the rounding of a time
  const double begin = terrestrialSeconds(first) - second, end = terrestrialSeconds(last) + second;
  data.firstMoonSegment = std::floor(segmentsAt(Body::moon, begin));
  data.firstSunSegment = std::floor(segmentsAt(Body::sun, begin));
  data.moonSegments = segmentsOf(Body::moon, data.firstMoonSegment, std::floor(segmentsAt(Body::moon, end)));
  data.sunSegments = segmentsOf(Body::sun, data.firstSunSegment, std::floor(segmentsAt(Body::sun, end)));
  return Paths(std::make_shared<const PathData>(std::move(data)));
}

Vector Paths::vector(Body body, Instant instant) const {
  return vectorAt(*_data, body, terrestrialAt(stretchAt(*_data, instant), instant));
}

Instant Paths::from() const { return _data->from; }

Instant Paths::to() const { return _data->to; }

}  // namespace velmora::ephemeris
