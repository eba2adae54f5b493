#include <velmora/almanac/Sky.h>

#include <algorithm>
#include <cmath>

#include <velmora/ephemeris/PathData.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

using ephemeris::Body;

Sky::Blocks Sky::blocksOf(Instant start, Instant end) {
  auto first = static_cast<std::int64_t>(std::floor(unixSeconds(start) / blockSeconds));
  auto past = static_cast<std::int64_t>(std::ceil(unixSeconds(end) / blockSeconds));
  // The quotient of an instant next to a block's start is rounded to that block.
  if (start < startOfBlock(first)) --first;
  if (startOfBlock(past) < end) ++past;
  return {first, past - first};
}

Sky::Sky(const ephemeris::Paths& paths, Blocks blocks)
    : _first(blocks.first), _turns(static_cast<std::size_t>(blocks.count) * samplesPerBlock + 1) {
  const Turn step = Turn::ofSmall(turnPerSecond * sampleSeconds);
  std::vector<double> terrestrial(sampleCount());
  for (std::size_t first = 0; first < sampleCount(); first += samplesPerBlock) {
    const Instant start = timeOf(first);
    const ephemeris::Stretch& stretch = stretchAt(paths.data(), start);  // which ends with a block
    _turns[first] = Turn::of(siderealAt(stretch, start));
    const std::size_t past = std::min(first + samplesPerBlock, sampleCount());
    for (std::size_t sample = first; sample < past; ++sample) {
      if (sample > first) _turns[sample] = _turns[sample - 1] + step;
      terrestrial[sample] = terrestrialAt(stretch, timeOf(sample));
    }
  }
  _bodies = {over(paths, Body::sun, terrestrial), over(paths, Body::moon, terrestrial)};
}

Sky::BodyInSky Sky::over(const ephemeris::Paths& paths, Body body,
                         const std::vector<double>& terrestrial) const {
  BodyInSky result{std::vector<Piece>(sampleCount() / samplesPerBlock), std::vector<Vector>(sampleCount())};
  std::array<Vector, samplesPerBlock + 1> v;  // of a block, in the frame of the stars
  for (std::size_t sample = 0; sample < sampleCount(); ++sample) {
    const std::size_t inBlock = sample % samplesPerBlock;
    const Vector place = vectorAt(paths.data(), body, terrestrial[sample]);
    result.samples[sample] = _turns[sample].applied(place);
    if (inBlock == 0 && sample > 0) {
      v[samplesPerBlock] = place;
      result.pieces[sample / samplesPerBlock - 1] = {
          .x = Quartic::through(v[0].x, v[1].x, v[2].x, v[3].x, v[4].x),
          .y = Quartic::through(v[0].y, v[1].y, v[2].y, v[3].y, v[4].y),
          .z = Quartic::through(v[0].z, v[1].z, v[2].z, v[3].z, v[4].z)};
    }
    v[inBlock] = place;
  }
  return result;
}

}  // namespace almanac
}  // namespace velmora
