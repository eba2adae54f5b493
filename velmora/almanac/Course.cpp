#include <velmora/almanac/Course.h>

#include <algorithm>
#include <cmath>

namespace [[gnu::visibility("hidden")]] velmora {
namespace almanac {
namespace {

using ephemeris::Body;

constexpr double shortestPass = 0.25;  // seconds
constexpr double tolerance = 1e-4;     // seconds, of a passage

/// Bound of the second derivative of a sine of altitude, a day squared: that of a point that the Earth's
/// rotation turns by 2π a day, with the Moon's own motion and parallax; at a pole the Moon's motion alone.
constexpr double turning = 1.02 * 4 * 9.8696044;
constexpr double ownMotion = 0.05;
constexpr double secondsPerDay = 86400;

/// A cubic through the four samples of a block, over seconds since its start.
class Cubic {
 public:
  explicit Cubic(const std::array<double, 4>& f)
      : _f0(f[0]),
        _d1(f[1] - f[0]),
        _d2((f[2] - 2 * f[1] + f[0]) / 2),
        _d3((f[3] - 3 * f[2] + 3 * f[1] - f[0]) / 6) {}

  struct Value {
    double value, slope;
  };
  Value at(double seconds) const {
    const double u = seconds / Sky::sampleSeconds, v = u - 1, w = u - 2;
    const double inner = _d2 + w * _d3;
    return {_f0 + u * (_d1 + v * inner), (_d1 + v * inner + u * (inner + v * _d3)) / Sky::sampleSeconds};
  }

 private:
  double _f0, _d1, _d2, _d3;
};

}  // namespace

/// Finds where a function of the body's place changes sign in a block.
template <class Height>
class Course::Search {
 public:
  Search(const Course& course, std::size_t block, const Height& height, double curvature)
      : _course(course),
        _block(block),
        _height(height),
        _curvature(curvature),
        _samples(sampled()),
        _cubic(_samples) {}

  /// Every sign change of the block; upward and downward alternate.
  void run(std::vector<Passage>& passages) const {
    for (std::size_t k = 0; k < Sky::samplesPerBlock; ++k) {
      const double a = Sky::sampleSeconds * static_cast<double>(k);
      scan({a, _samples[k]}, {a + Sky::sampleSeconds, _samples[k + 1]}, passages);
    }
  }

 private:
  struct Point {
    double seconds, height;
  };
  struct Moment {
    Local local;
    double height;
  };

  std::array<double, 4> sampled() const {
    std::array<double, 4> values{};
    const std::size_t first = _block * Sky::samplesPerBlock;
    for (std::size_t k = 0; k < values.size(); ++k) {
      values[k] = _height(_course._sine[first + k], _course._east[first + k], _course._inverse[first + k]);
    }
    return values;
  }

  Moment at(double seconds) const {
    const Local local = _course._observer.seen(_course._sky.at(_course._body, _block, seconds));
    const double inverse = 1 / local.distance();
    return {local, _height(local.up * inverse, local.east * inverse, inverse)};
  }

  static bool isAbove(double height) { return height >= 0; }

  /// Looks at [a, b] alone, or at its halves where the bound does not tell how often the sign changes.
  void scan(Point a, Point b, std::vector<Passage>& passages) const {
    const double width = b.seconds - a.seconds;
    const double bend = 0.5 * _curvature * width * width;
    const double change = std::abs(b.height - a.height);
    const bool isOneWay = change >= bend || width <= shortestPass;
    if (isAbove(a.height) != isAbove(b.height)) {
      if (isOneWay) return passages.push_back(crossing(a, b));
    } else {
      const double nearer = std::min(std::abs(a.height), std::abs(b.height));
      const double rest = bend - change;
      if (isOneWay || nearer * 4 * bend > rest * rest) return;
    }
    const double middle = a.seconds + width / 2;
    const Point m{middle, at(middle).height};
    scan(a, m, passages);
    scan(m, b, passages);
  }

  /// A first guess of the root between a and b, from the cubic.
  double guess(Point a, Point b) const {
    double seconds = a.seconds + (b.seconds - a.seconds) * (a.height / (a.height - b.height));
    for (int step = 0; step < 4; ++step) {
      const auto [value, slope] = _cubic.at(seconds);
      seconds = std::clamp(seconds - value / slope, a.seconds, b.seconds);
    }
    return seconds;
  }

  /// Newton's first step with the slope of the cubic, then secants; halves where they leave the bracket.
  Passage crossing(Point a, Point b) const {
    const bool isRising = isAbove(b.height);
    double seconds = guess(a, b), slope = _cubic.at(seconds).slope;
    Moment here = at(seconds);
    double former = seconds;
    Local formerLocal = here.local;
    while (true) {
      (isAbove(here.height) == isRising ? b.seconds : a.seconds) = seconds;
      const double secant = seconds - here.height / slope;
      const bool isInside = secant >= a.seconds && secant <= b.seconds;
      const double next = isInside ? secant : a.seconds + (b.seconds - a.seconds) / 2;
      if (next == seconds || b.seconds - a.seconds <= tolerance) return {next, isRising, here.local};
      const double error = 0.5 * _curvature / std::abs(slope) * std::abs((next - seconds) * (next - former));
      if (isInside && former != seconds && error <= tolerance) {
        return {next, isRising, between(formerLocal, here.local, (next - former) / (seconds - former))};
      }
      former = seconds;
      formerLocal = here.local;
      const double height = here.height;
      seconds = next;
      here = at(seconds);
      slope = (here.height - height) / (seconds - former);
    }
  }

  /// Of two places the one that is reached at a part of the way, which may lie beyond the second.
  static Local between(const Local& a, const Local& b, double part) {
    return {a.east + part * (b.east - a.east), a.north + part * (b.north - a.north),
            a.up + part * (b.up - a.up)};
  }

  const Course& _course;
  std::size_t _block;
  const Height& _height;
  double _curvature;
  std::array<double, 4> _samples;
  Cubic _cubic;
};

Course::Course(const Sky& sky, Body body, const Observer& observer)
    : _sky(sky),
      _body(body),
      _observer(observer),
      _curvature((turning * observer.cosLatitude + ownMotion) / (secondsPerDay * secondsPerDay)) {
  const Sky::Samples& samples = sky.samples(body);
  for (std::size_t i = 0; i < samples.x.size(); ++i) {
    const Local local = observer.seen({samples.x[i], samples.y[i], samples.z[i]});
    _inverse[i] = 1 / local.distance();
    _sine[i] = local.up * _inverse[i];
    _east[i] = local.east * _inverse[i];
  }
}

bool Course::startsAbove(const Mark& mark) const { return _sine[0] - mark.sineOfAltitude(_inverse[0]) >= 0; }

void Course::addPassages(std::size_t block, const Mark& mark, std::vector<Passage>& passages) const {
  const auto height = [&mark](double sine, double, double inverse) {
    return sine - mark.sineOfAltitude(inverse);
  };
  Search(*this, block, height, _curvature).run(passages);
}

void Course::addTransits(std::size_t block, std::vector<Passage>& passages) const {
  constexpr double curvature = (turning + ownMotion) / (secondsPerDay * secondsPerDay);
  const auto first = static_cast<std::ptrdiff_t>(passages.size());
  Search(
      *this, block, [](double, double east, double) { return -east; }, curvature)
      .run(passages);
  passages.erase(std::remove_if(passages.begin() + first, passages.end(),
                                [](const Passage& passage) { return !passage.isRising; }),
                 passages.end());
}

}  // namespace almanac
}  // namespace velmora
