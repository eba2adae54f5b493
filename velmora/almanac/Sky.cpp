#include <velmora/almanac/Sky.h>

#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

using ephemeris::Body;
using ephemeris::Vector;

/// Radians that the Earth turns from the mean equinox in a second of UT1: the rate of its rotation angle, and
/// that of the precession in right ascension (IAU 2006).
constexpr double turnPerSecond = 7.29211514670698e-5 + 7.0856e-12;

}  // namespace

Sky::Blocks Sky::blocksOf(Instant start, Instant end) {
  const auto first = static_cast<std::int64_t>(std::floor(unixSeconds(start) / blockSeconds));
  const auto past = static_cast<std::int64_t>(std::ceil(unixSeconds(end) / blockSeconds));
  return {first, past - first};
}

Sky::Sky(const ephemeris::Paths& paths, Blocks blocks) : _paths(&paths), _first(blocks.first) {
  _turns.resize(static_cast<std::size_t>(blocks.count) + 1);
  for (std::size_t block = 0; block < _turns.size(); ++block) {
    _turns[block] = ephemeris::meanSiderealTime(startOf(block));
  }
  sample(Body::sun);
  sample(Body::moon);
}

Vector Sky::at(Body body, std::size_t block, double seconds) const {
  const double angle = _turns[block] + turnPerSecond * seconds;
  return turned(_paths->vector(body, startOf(block) + Seconds(seconds)), std::cos(angle), std::sin(angle));
}

void Sky::sample(Body body) {
  Samples& samples = _samples[static_cast<std::size_t>(body)];
  const auto add = [&](const Vector& v) {
    samples.x.push_back(v.x);
    samples.y.push_back(v.y);
    samples.z.push_back(v.z);
  };
  for (std::size_t block = 0; block < blockCount(); ++block) {
    for (std::size_t k = 0; k < samplesPerBlock; ++k)
      add(at(body, block, sampleSeconds * static_cast<double>(k)));
  }
  add(at(body, blockCount(), 0));
}

}  // namespace almanac
}  // namespace velmora
