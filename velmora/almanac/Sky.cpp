#include <velmora/almanac/Sky.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

using ephemeris::Body;

Sky::Sky(const ephemeris::Paths& paths, ephemeris::Blocks blocks, Instant from, Instant to)
    : _first(blocks.first),
      _sampleCount(static_cast<std::size_t>(blocks.count) * samplesPerBlock + 1),
      _firstSample(sampleFrom(from)),
      _lastSample(sampleFrom(to)) {
  if (_firstSample > 0) --_firstSample;
  const Turn step = Turn::ofSmall(turnPerSecond * sampleSeconds);
  Values terrestrial;
  for (std::size_t first = 0; first < _sampleCount; first += samplesPerBlock) {
    const Instant start = timeOf(first);
    const ephemeris::Stretch& stretch = stretchAt(paths.data(), start);  // which ends with a block
    _turns[first] = Turn::of(siderealAt(stretch, start));
    const std::size_t past = std::min(first + samplesPerBlock, _sampleCount);
    for (std::size_t sample = first; sample < past; ++sample) {
      if (sample > first) _turns[sample] = _turns[sample - 1] + step;
      terrestrial[sample] = terrestrialAt(stretch, timeOf(sample));
    }
  }
  for (const Body body : {Body::sun, Body::moon}) follow(paths, body, terrestrial);
}

void Sky::follow(const ephemeris::Paths& paths, Body body, const Values& terrestrial) {
  BodyInSky& result = _bodies[static_cast<std::size_t>(body)];
  std::array<Vector, samplesPerBlock + 1> v;  // of a block, in the frame of the stars
  for (std::size_t sample = 0; sample < _sampleCount; ++sample) {
    const std::size_t inBlock = sample % samplesPerBlock;
    const Vector place = vectorAt(paths.data(), body, terrestrial[sample]);
    const Vector turned = _turns[sample].applied(place);
    result.x[sample] = turned.x;
    result.y[sample] = turned.y;
    result.z[sample] = turned.z;
    if (inBlock == 0 && sample > 0) {
      v[samplesPerBlock] = place;
      result.pieces[sample / samplesPerBlock - 1] = {
          .x = Quartic::through(v[0].x, v[1].x, v[2].x, v[3].x, v[4].x),
          .y = Quartic::through(v[0].y, v[1].y, v[2].y, v[3].y, v[4].y),
          .z = Quartic::through(v[0].z, v[1].z, v[2].z, v[3].z, v[4].z)};
    }
    v[inBlock] = place;
  }
}

std::size_t Sky::sampleFrom(Instant at) const {
  const double last = static_cast<double>(_sampleCount - 1);
  const double samples = std::clamp((at - timeOf(0)).count() / sampleSeconds, 0.0, last);
  const auto sample = static_cast<std::size_t>(samples);
  return samples < last && timeOf(sample) < at ? sample + 1 : sample;
}

}  // namespace almanac
}  // namespace velmora
