#include <velmora/almanac/Sky.h>

#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

using ephemeris::Body;

Sky::Blocks Sky::blocksOf(Instant start, Instant end) {
  const auto first = static_cast<std::int64_t>(std::floor(unixSeconds(start) / blockSeconds));
  const auto past = static_cast<std::int64_t>(std::ceil(unixSeconds(end) / blockSeconds));
  return {first, past - first};
}

Sky::Sky(const ephemeris::Paths& paths, Blocks blocks) : _first(blocks.first) {
  const std::size_t count = static_cast<std::size_t>(blocks.count) * samplesPerBlock + 1;
  _turns.reserve(count);
  const Turn step = Turn::ofSmall(turnPerSecond * sampleSeconds);
  for (std::size_t sample = 0; sample < count; ++sample) {
    if (sample % samplesPerBlock == 0) {
      const double angle = ephemeris::meanSiderealTime(timeOf(sample));
      _turns.push_back({std::cos(angle), std::sin(angle)});
    } else {
      _turns.push_back(_turns.back() + step);
    }
  }
  _bodies = {over(paths, Body::sun), over(paths, Body::moon)};
}

Sky::BodyInSky Sky::over(const ephemeris::Paths& paths, Body body) const {
  std::vector<Vector> places;  // in the frame of the stars
  places.reserve(sampleCount());
  BodyInSky result;
  result.samples.reserve(sampleCount());
  for (std::size_t sample = 0; sample < sampleCount(); ++sample) {
    places.push_back(paths.vector(body, timeOf(sample)));
    result.samples.push_back(_turns[sample].applied(places.back()));
  }
  result.pieces.reserve(sampleCount() / samplesPerBlock);
  for (const Vector* v = places.data(); v + samplesPerBlock < places.data() + places.size();
       v += samplesPerBlock) {
    result.pieces.push_back({.x = Quartic::through(v[0].x, v[1].x, v[2].x, v[3].x, v[4].x),
                             .y = Quartic::through(v[0].y, v[1].y, v[2].y, v[3].y, v[4].y),
                             .z = Quartic::through(v[0].z, v[1].z, v[2].z, v[3].z, v[4].z)});
  }
  return result;
}

}  // namespace almanac
}  // namespace velmora
