#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <tests/almanac/HeightOverHorizon.h>
#include <velmora/almanac/Events.h>
#include <velmora/almanac/Sky.h>

namespace velmora::almanac {
namespace {

using namespace std::chrono;
using velmora::testing::HeightOverHorizon;
using velmora::testing::pathOverEarth;

constexpr double daySeconds = 86400;

class Chance {
 public:
  explicit Chance(unsigned seed) : _engine(seed) {}
  double from(double low, double high) {  // the library's own distributions differ from one to another
    return low + (high - low) * (static_cast<double>(_engine()) / 4294967296.0);
  }
  int sign() { return from(0, 1) < 0.5 ? -1 : 1; }
  Instant midnight() {
    return sys_days(1900y / January / 2) + std::chrono::days(static_cast<int>(from(0, 73000)));
  }

 private:
  std::mt19937 _engine;
};

/// Rise and set of the body in the hours after the start, as seconds after it.
std::vector<double> passages(const Place& place, Body body, Instant start, double seconds) {
  std::vector<double> found;
  const auto day =
      almanac::day(place, start, start + Seconds(seconds), {.twilight = false, .transits = false});
  EXPECT_TRUE(day);
  for (const Event& event : day->events) {
    if (event.body == body) found.push_back((event.at - start).count());
  }
  return found;
}

/// The ends of the steps of four seconds in which the body passes the horizon. Steps that it cannot reach the
/// horizon in, as fast as it is, are not looked at.
std::vector<double> passedSteps(const HeightOverHorizon& height) {
  constexpr double step = 4;
  std::vector<double> ends;
  double last = height(0);
  for (double seconds = 0; seconds < daySeconds;) {
    seconds = std::min(daySeconds,
                       seconds + step * std::max(1.0, std::floor(std::abs(last) / height.fastest() / step)));
    const double here = height(seconds);
    if ((here >= 0) != (last >= 0)) ends.push_back(seconds);
    last = here;
  }
  return ends;
}

TEST(NoneMissed, LookingEveryFourSecondsFrom50DegreesToThePoles) {
  Chance chance(1);
  int compared = 0;
  for (int k = 0; k < 500; ++k) {
    const Place place{chance.sign() * chance.from(50, 90), chance.from(-180, 180)};
    const Body body = k % 2 == 0 ? Body::sun : Body::moon;
    const Instant start = chance.midnight();
    const std::vector<double> ends = passedSteps(HeightOverHorizon(place, body, pathOverEarth(body, start)));
    const std::vector<double> found = passages(place, body, start, daySeconds);
    ASSERT_EQ(found.size(), ends.size())
        << place.latitude << ' ' << place.longitude << ' ' << unixSeconds(start);
    for (std::size_t i = 0; i < ends.size(); ++i) EXPECT_NEAR(found[i], ends[i] - 2, 2.01);
    compared += static_cast<int>(ends.size());
  }
  EXPECT_GT(compared, 500);
}

/// The extreme of a curve that has one between the ends: its highest for a sign of 1, its lowest for −1.
double extremeOf(const HeightOverHorizon& height, double low, double high, int sign) {
  constexpr double golden = 0.6180339887498949;
  double a = high - golden * (high - low), b = low + golden * (high - low);
  double atA = sign * height(a), atB = sign * height(b);
  while (high - low > 0.1) {
    if (atA > atB) {
      high = b, b = a, atB = atA;
      a = high - golden * (high - low), atA = sign * height(a);
    } else {
      low = a, a = b, atA = atB;
      b = low + golden * (high - low), atB = sign * height(b);
    }
  }
  return (low + high) / 2;
}

/// The sky that the finder looks at. What passes by a thousandth of a second of arc it must find there, while
/// the paths themselves differ from it by as much.
class FindersSky {
 public:
  explicit FindersSky(Instant start)
      : _start(start),
        _paths(*ephemeris::Paths::over(start, start + hours(48))),
        _sky(_paths, ephemeris::blocksOf(start, start + hours(24)), start, start + hours(24)) {}

  velmora::testing::PathOverEarth path(Body body) const {
    return [this, body](double seconds) {
      const double since = seconds + (_start - _sky.timeOf(0)).count();
      const double sample = std::floor(since / Sky::sampleSeconds);
      return _sky.motion(body, static_cast<std::size_t>(sample), since - sample * Sky::sampleSeconds).at;
    };
  }

 private:
  Instant _start;
  ephemeris::Paths _paths;
  Sky _sky;
};

/// A body that at its highest (sign 1) just rises at some latitude, or at its lowest (−1) just sets.
class Graze {
 public:
  Graze(Body body, Instant start, double longitude, double nearer, double farther, int sign)
      : place{0, longitude},
        extreme(0),
        _sky(start),
        _height(place, body, _sky.path(body)),
        _nearer(nearer),
        _farther(farther),
        _sign(sign) {}

  /// Moves the place to where the body is beyond the horizon for that many seconds; fewer than none: just
  /// not.
  void last(double seconds) {
    constexpr double beside = 60;
    reach(0, 20);
    const double around = (_height(extreme - beside) + _height(extreme + beside)) / 2;
    const double bend = _sign * (_height(extreme) - around) / (beside * beside);
    reach(bend * seconds * std::abs(seconds) / 4, 45);
  }

  Place place;
  double extreme;  ///< seconds after the start

 private:
  void reach(double beyond, int steps) {
    double nearer = _nearer, farther = _farther;
    for (int step = 0; step < steps; ++step) {
      place.latitude = (nearer + farther) / 2;
      _height.setPlace(place);
      extreme = extremeOf(_height, 3 * 3600, 21 * 3600, _sign);
      (_sign * _height(extreme) > beyond ? nearer : farther) = place.latitude;
    }
  }

  FindersSky _sky;
  HeightOverHorizon _height;
  double _nearer, _farther;
  int _sign;
};

double declination(Body body, Instant at) {
  return ephemeris::apparent(body, at)->declination * 180 / std::numbers::pi;
}

TEST(NoneMissed, WhereABodyGrazesTheHorizonForSeconds) {
  Chance chance(2);
  int grazes = 0;
  while (grazes < 1000) {
    const Body body = chance.sign() > 0 ? Body::sun : Body::moon;
    const double longitude = chance.from(-180, 180);
    const Instant transit = next({0, longitude}, body, EventKind::transit, chance.midnight())->at;
    const double tilt = declination(body, transit);
    if (std::abs(tilt) < 6) continue;
    ++grazes;
    const int sign = chance.sign();
    const double middle = 90 - std::abs(tilt), hemisphere = tilt * sign > 0 ? -1 : 1;
    const Instant start = sign > 0 ? transit - hours(12) : transit;
    Graze graze(body, start, longitude, hemisphere * (middle - 5), hemisphere * std::min(90.0, middle + 5),
                sign);
    const double seconds =
        std::array{2.0, 5.0, 60.0, 600.0, -2.0, -30.0}[static_cast<std::size_t>(grazes % 6)];
    graze.last(seconds);
    const auto found = passages(graze.place, body, start, daySeconds);
    ASSERT_EQ(found.size(), seconds > 0 ? 2U : 0U)
        << grazes << ": " << graze.place.latitude << ' ' << longitude << ' ' << unixSeconds(start) << ' '
        << seconds;
    if (seconds < 0) continue;
    EXPECT_NEAR(found[1] - found[0], seconds, 0.1 + 0.02 * seconds);
    EXPECT_NEAR((found[0] + found[1]) / 2, graze.extreme, 1 + 0.02 * seconds);
  }
}

}  // namespace
}  // namespace velmora::almanac
