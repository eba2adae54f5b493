#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include <velmora/almanac/Quartic.h>
#include <velmora/almanac/Vectors.h>
#include <velmora/ephemeris/PathData.h>
#include <velmora/ephemeris/Sines.h>
#include <velmora/platform/time/Instant.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

/// Radians that the Earth turns from the mean equinox in a second of UT1: the rate of its rotation angle, and
/// that of the precession in right ascension (IAU 2006).
inline constexpr double turnPerSecond = 7.29211514670698e-5 + 7.0856e-12;

/// The Sun and the Moon in the frame that turns with the Earth, the same for every place: samples every
/// three hours, and any moment between them. Samples and blocks of them lie on a grid that is fixed in time,
/// so that what is found between two samples never depends on the interval that was asked for.
class Sky {
 public:
  static constexpr std::size_t samplesPerBlock = 4;
  static constexpr double sampleSeconds = ephemeris::blockSeconds / samplesPerBlock;
  static constexpr std::int64_t maximumBlocks = 64;  ///< of one sky: 32 days
  static constexpr std::size_t maximumSamples = maximumBlocks * samplesPerBlock + 1;

  /// Of `maximumBlocks` at most, which the paths must cover, to be looked at between two instants.
  Sky(const ephemeris::Paths& paths, ephemeris::Blocks blocks, Instant from, Instant to);

  /// From the last sample before the one instant to the first at the other or after, as far as the blocks
  /// reach.
  std::size_t firstSample() const { return _firstSample; }
  std::size_t lastSample() const { return _lastSample; }
  Instant timeOf(std::size_t sample) const {
    return ephemeris::startOfBlock(_first) + Seconds(sampleSeconds * static_cast<double>(sample));
  }

  /// Where the body is at a sample, kilometres.
  Vector at(ephemeris::Body body, std::size_t sample) const {
    const BodyInSky& places = of(body);
    return {places.x[sample], places.y[sample], places.z[sample]};
  }

  /// Where the body is, that many seconds after a sample and before the next, and how it moves: km, km/s.
  Motion motion(ephemeris::Body body, std::size_t sample, double seconds) const {
    const Piece& piece = of(body).pieces[sample / samplesPerBlock];
    const double u = static_cast<double>(sample % samplesPerBlock) + seconds / sampleSeconds;
    const Turn turn = _turns[sample] + Turn::ofSmall(turnPerSecond * seconds);
    const Vector place = turn.applied({piece.x.at(u), piece.y.at(u), piece.z.at(u)});
    const Vector own = turn.applied({piece.x.slope(u), piece.y.slope(u), piece.z.slope(u)});
    constexpr double perSecond = 1 / sampleSeconds;
    return {place,
            {own.x * perSecond + turnPerSecond * place.y, own.y * perSecond - turnPerSecond * place.x,
             own.z * perSecond}};
  }

 private:
  /// How far the frame has turned, by cosine and sine.
  struct Turn {
    double cosine, sine;

    static Turn of(double turns) {
      const auto direction = ephemeris::cosineAndSine(turns);
      return {direction.re, direction.im};
    }
    /// Of up to 0.8 radians, by Taylor's series.
    static Turn ofSmall(double x) {
      const double xx = x * x;
      return {ephemeris::polynomial(ephemeris::taylorOfCosine<double>, xx),
              x * ephemeris::polynomial(ephemeris::taylorOfSine<double>, xx)};
    }
    Turn operator+(const Turn& b) const {
      return {cosine * b.cosine - sine * b.sine, sine * b.cosine + cosine * b.sine};
    }
    Vector applied(const Vector& v) const {
      return {cosine * v.x + sine * v.y, cosine * v.y - sine * v.x, v.z};
    }
  };
  /// A block of a path in the frame of the stars, where all is slow, over the number of samples since its
  /// start: 0.0004″ of the Moon at most from the path itself.
  struct Piece {
    Quartic x, y, z;
  };
  using Values = std::array<double, maximumSamples>;
  struct BodyInSky {
    std::array<Piece, maximumBlocks> pieces;
    Values x, y, z;  ///< at the samples
  };

  const BodyInSky& of(ephemeris::Body body) const { return _bodies[static_cast<std::size_t>(body)]; }
  /// The first sample at the instant or after; the last of all if none is.
  std::size_t sampleFrom(Instant at) const;
  /// Fills in the body's places at those seconds of Terrestrial Time.
  void follow(const ephemeris::Paths& paths, ephemeris::Body body, const Values& terrestrial);

  // Of the arrays only what is in use is ever set.
  std::int64_t _first;
  std::size_t _sampleCount;  ///< of all blocks, and the first of the block after
  std::size_t _firstSample, _lastSample;
  std::array<Turn, maximumSamples> _turns;  ///< at each sample
  std::array<BodyInSky, 2> _bodies;
};

}  // namespace almanac
}  // namespace velmora
