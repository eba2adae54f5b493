#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <velmora/almanac/Observer.h>
#include <velmora/ephemeris/Ephemeris.h>
#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// The Sun and the Moon in the frame that turns with the Earth, the same for every place: samples every two
/// hours, and any moment between them. Samples and blocks of them lie on a grid that is fixed in time, so
/// that what is found between two of them never depends on the interval that was asked for.
class Sky {
 public:
  static constexpr double sampleSeconds = 7200;
  static constexpr std::size_t samplesPerBlock = 3;  ///< and the first of the next block
  static constexpr double blockSeconds = sampleSeconds * samplesPerBlock;
  static constexpr std::int64_t maximumBlocks = 128;  ///< of one sky: 32 days
  static constexpr std::size_t maximumSamples = maximumBlocks * samplesPerBlock + 1;

  /// The blocks that a stretch of time touches, numbered from 1970.
  struct Blocks {
    std::int64_t first, count;
  };
  static Blocks blocksOf(Instant start, Instant end);

  static Instant startOfBlock(std::int64_t block) {
    return instantFromUnixSeconds(blockSeconds * static_cast<double>(block));
  }

  /// Of `maximumBlocks` at most, which the paths must cover.
  Sky(const ephemeris::Paths& paths, Blocks blocks);

  std::size_t blockCount() const { return _turns.size() - 1; }
  Instant startOf(std::size_t block) const { return startOfBlock(_first + static_cast<std::int64_t>(block)); }

  /// The coordinates of a body at every sample, kilometres.
  struct Samples {
    std::vector<double> x, y, z;
  };
  const Samples& samples(ephemeris::Body body) const { return _samples[static_cast<std::size_t>(body)]; }

  /// Where the body is, that many seconds after the start of the block.
  ephemeris::Vector at(ephemeris::Body body, std::size_t block, double seconds) const;

 private:
  void sample(ephemeris::Body body);

  const ephemeris::Paths* _paths;
  std::int64_t _first;
  std::vector<double>
      _turns;  ///< mean sidereal time at the start of each block and of the one after the last
  std::array<Samples, 2> _samples;
};

}  // namespace almanac
}  // namespace velmora
