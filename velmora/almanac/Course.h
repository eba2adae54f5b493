#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include <velmora/almanac/Level.h>
#include <velmora/almanac/Observer.h>
#include <velmora/almanac/Sky.h>
#include <velmora/ephemeris/Ephemeris.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {

class Course;

/// A body that passes a level once between two moments, which are counted in seconds after a sample.
struct Passage {
  const Course* course;
  const Level* level;
  std::size_t line;  ///< the number that was given with the level
  std::size_t sample;
  double earliest, latest;
  bool isRising;
  double seconds;  ///< the best that is known so far
  bool isFound = false;
  Local local{};  ///< where the body is then; once found
};

/// Narrows all of them down to the moment. They do not wait for one another, so that a processor works at
/// several at a time.
void find(std::span<Passage> passages);

/// The path of a body over a place, which must outlive it, as must the sky.
class Course {
 public:
  Course(const Sky& sky, ephemeris::Body body, const Observer& observer);

  /// Appends the passages of the level between two samples, in time order. Upward and downward alternate,
  /// from one stretch of samples to the next too, but that the meridian is passed upward alone. None is
  /// missed but such as come back within a quarter of a second. They refer to the course and to the level.
  void addPassages(const Level& level, std::size_t line, std::size_t firstSample, std::size_t lastSample,
                   std::vector<Passage>& passages) const&;
  void addPassages(const Level& level, std::size_t line, std::size_t firstSample, std::size_t lastSample,
                   std::vector<Passage>& passages) const&& = delete;

  /// Whether the body is above the level at the sky's first sample.
  bool startsAbove(const Level& level) const { return level.heightOf(sampled(_sky.firstSample())) >= 0; }

  /// Takes the passage one step nearer.
  void approach(Passage& passage) const;

 private:
  struct Point;
  struct Moment;
  struct Question;

  Direction sampled(std::size_t sample) const { return {_up[sample], _east[sample], _inverse[sample]}; }
  Moment at(const Level& level, std::size_t sample, double seconds) const;
  void scan(const Question& question, Point a, Point b, std::vector<Passage>& passages) const;

  using Values = std::array<double, Sky::maximumSamples>;
  const Sky& _sky;
  const ephemeris::Body _body;
  const Observer& _observer;
  Values _up, _east, _inverse;  ///< directions at the samples
  double _curvature;  ///< bound of the second derivative of the sine of the altitude, a second squared
};

}  // namespace almanac
}  // namespace velmora
