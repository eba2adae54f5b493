#include <web/host/SkyViews.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <velmora/almanac/Events.h>
#include <velmora/almanac/Positions.h>
#include <velmora/phases/Phase.h>
#include <velmora/phases/PhaseItem.h>
#include <velmora/views/CompassView.h>
#include <velmora/views/MoonAzimuthElevationView.h>
#include <velmora/views/MoonPhaseIconView.h>
#include <velmora/views/MoonPositionView.h>
#include <velmora/views/TimelineDayView.h>
#include <velmora/views/VelmoraTheme.h>

namespace velmora::web {
namespace {

using almanac::Body;
using almanac::EventKind;

constexpr double quarterTurn = std::numbers::pi / 2;
constexpr double dueEast = 90, dueWest = 270;  // degrees from north
constexpr double margin = 10;

constexpr double reachOfMoon = 10;     // of its disc from its place, in points
constexpr double reachOfLetters = 32;  // of the compass's letters outwards from its ring
constexpr double reachOfTicks = 20;    // inwards

double radians(double degrees) { return degrees * std::numbers::pi / 180; }

/// The largest square in the middle of the size.
Rect squareIn(Size size) {
  const double side = std::min(size.width, size.height);
  return {(size.width - side) * 0.5, (size.height - side) * 0.5, side, side};
}

/// The Moon's way over the sky around a moment: where it rises and where it sets, if it does.
struct Way {
  std::optional<double> rise, set;  ///< azimuths, degrees
  bool isHighestInTheNorth = false;

  explicit Way(Instant at) {
    constexpr std::chrono::hours day{24};
    const almanac::Place place = Session::shared().place();
    const auto around = almanac::day(place, at - day, at + 2 * day, {.twilight = false});
    if (!around) return;
    rise = nearest(around->events, EventKind::rise, at);
    set = nearest(around->events, EventKind::set, at);
    const auto highest = nearest(around->events, EventKind::transit, at);
    isHighestInTheNorth = highest && (*highest < dueEast || *highest > dueWest);
  }

 private:
  static std::optional<double> nearest(const std::vector<almanac::Event>& events, EventKind kind,
                                       Instant at) {
    std::optional<double> azimuth;
    Seconds least{INFINITY};
    for (const almanac::Event& event : events) {
      if (event.body != Body::moon || event.kind != kind || std::chrono::abs(event.at - at) >= least)
        continue;
      least = std::chrono::abs(event.at - at);
      azimuth = event.azimuth;
    }
    return azimuth;
  }
};

/// Changes right and left where the Moon is highest in the north; the views take it to be in the south.
AffineTransform mirrorFor(const Way& way) {
  return AffineTransform::scaling(way.isHighestInTheNorth ? -1 : 1, 1);
}

/// The turn of the half circle, which ends below and above its middle, that brings its lower end to the
/// compass's point at the start angle.
double turnToStart(const MoonAzimuthElevationView& view) {
  const Point start = MoonAzimuthElevationView::pointOnCircleWithCenter(
      view.bounds().center(), radians(view.startAngle()), view.radius());
  const Point fromMiddle = start - view.arcCenter();
  return std::atan2(fromMiddle.y, fromMiddle.x) - quarterTurn;
}

std::shared_ptr<MoonAzimuthElevationView> makeWayView(double side, double radius, std::optional<double> rise,
                                                      std::optional<double> set, Instant at) {
  const auto theme = VelmoraTheme::calendarTheme();
  const bool hasEnds = rise && set;
  auto view = std::make_shared<MoonAzimuthElevationView>();
  view->setFrame({0, 0, side, side});
  view->setStrokeColor(hasEnds ? theme->moonLightColor : Color::clear());
  view->setCircleFillColor(theme->selectedBackgroundColor);
  view->setRadius(static_cast<float>(std::max(radius, 0.0)), static_cast<float>(hasEnds ? *rise : dueEast),
                  static_cast<float>(hasEnds ? *set : dueWest));
  view->updateLayer();
  if (const auto moon = almanac::position(Session::shared().place(), Body::moon, at)) {
    view->setObjectAzimuth(static_cast<float>(moon->azimuth), static_cast<float>(moon->apparentAltitude));
  }
  return view;
}

class Compass : public HostedView {
  // The way lies inside the ring and its ticks: its circle reaches at most √2 radii from the middle, where
  // rise and set are a quarter of the horizon apart. The ring has to lie at the origin.
  void fill(View& screen) override {
    const Rect square = squareIn(screen.bounds().size());
    const double ring = square.width * 0.5 - reachOfLetters;
    const double horizon = (ring - reachOfTicks - reachOfMoon) / std::numbers::sqrt2;
    const Way way(moment());
    const auto moon = makeWayView(square.width, horizon, way.rise, way.set, moment());
    moon->setAnchorPoint(moon->rotationPoint());
    moon->setTransform(mirrorFor(way).concat(AffineTransform::rotation(turnToStart(*moon))));

    // Each is turned by itself, since the ring says which bearing is up from its own turn.
    const auto turn = AffineTransform::rotation(-radians(options().heading) - quarterTurn);
    const auto sky = makeHolder(square), turned = makeHolder({0, 0, square.width, square.height});
    const auto circle = makeRing(square.width, ring);
    circle->setTransform(turn);
    turned->setTransform(turn);
    turned->addSubview(moon);
    sky->addSubview(circle);
    sky->addSubview(turned);
    screen.addSubview(sky);
  }

  /// The letters are light in every theme.
  static void darken(TextLayer& letter) {
    TextAttributes attributes = letter.attributedText().paragraph();
    attributes.color = VelmoraTheme::calendarTheme()->darkTextColor;
    letter.setAttributedText(AttributedText(letter.attributedText().text(), attributes));
  }

  static std::shared_ptr<View> makeHolder(Rect frame) {
    auto holder = std::make_shared<View>();
    holder->setFrame(frame);
    return holder;
  }

  static std::shared_ptr<CompassView> makeRing(double side, double radius) {
    auto ring = std::make_shared<CompassView>();
    ring->setFrame({0, 0, side, side});
    ring->setRadius(static_cast<float>(std::max(radius, 0.0)));
    ring->setStrokeColor(VelmoraTheme::calendarTheme()->darkTextColor);
    ring->updateLayer();
    for (const auto& letter :
         {ring->northLabel(), ring->eastLabel(), ring->southLabel(), ring->westLabel()}) {
      if (Session::shared().settings().isLight) darken(*letter);
    }
    return ring;
  }
};

class Arc : public HostedView {
  void fill(View& screen) override {
    const Rect square = squareIn(screen.bounds().size());
    const auto view = makeWayView(square.width, square.width * 0.5 - reachOfMoon, dueEast, dueWest, moment());
    view->setFrame(square);
    view->setTransform(AffineTransform::rotation(quarterTurn).concat(mirrorFor(Way(moment()))));
    screen.addSubview(view);
  }
};

/// How the Moon is lit, as the views take a day's phase.
PhaseItem phaseItemOf(const almanac::Illumination& moon, Date day) {
  constexpr double leastShownPart = 0.005;
  PhaseItem item;
  item.day = static_cast<unsigned>(day.day());
  item.month = static_cast<unsigned>(day.month());
  item.year = static_cast<int>(day.year());
  item.fullFactor = static_cast<float>(moon.fraction);
  if (moon.fraction < leastShownPart) {
    item.phase = kNewMoon;
  } else if (moon.fraction > 1 - leastShownPart) {
    item.phase = kFullMoon;
  } else if (moon.fraction < 0.5) {
    item.phase = moon.isWaxing ? kWaxingCrescent : kWaningCrescent;
  } else {
    item.phase = moon.isWaxing ? kWaxingGibbous : kWaningGibbous;
  }
  return item;
}

class Disc : public HostedView {
  void fill(View& screen) override {
    const Session& session = Session::shared();
    const auto moon = almanac::illumination(session.place(), moment());
    const auto theme = VelmoraTheme::calendarTheme();
    auto disc = std::make_shared<MoonPhaseIconView>();
    disc->setFrame(squareIn(screen.bounds().size()).inset(margin, margin));
    disc->setStrokeColor(theme->lightTextColor);
    disc->setFillColor(theme->lightTextColor);
    disc->setPhaseBackgroundColor(theme->backgroundColor);
    if (moon) {
      disc->setPhaseItem(std::make_shared<PhaseItem>(phaseItemOf(*moon, session.dateAt(moment()))));
      disc->setIsSouthernHemisphere(!options().isTilted && session.place().latitude < 0);
      if (options().isTilted) disc->setTransform(AffineTransform::rotation(turnOf(*moon)));
    }
    screen.addSubview(disc);
  }

  /// From how the north shows it, lit on the right or the left, to how it is seen.
  static double turnOf(const almanac::Illumination& moon) {
    constexpr double right = 270, left = 90;  // from straight up, counterclockwise
    return radians((moon.isWaxing ? right : left) - moon.tilt);
  }
};

template <class ViewClass>
class Simple : public HostedView {
 protected:
  void fill(View& screen) override {
    auto view = std::make_shared<ViewClass>();
    view->setFrame(frameIn(screen.bounds()));
    screen.addSubview(view);
  }
  virtual Rect frameIn(Rect bounds) const { return bounds; }
};

/// Its labels are right in the first drawing alone.
class Chart : public Simple<MoonPositionView> {
  bool isDrawnOnce() const override { return true; }
};

class Timeline : public Simple<TimelineDayView> {
  Rect frameIn(Rect bounds) const override {
    constexpr double verticalMargin = 6;
    return bounds.inset(margin, verticalMargin);
  }
};

}  // namespace

std::unique_ptr<HostedView> makeCompass() { return std::make_unique<Compass>(); }
std::unique_ptr<HostedView> makeArc() { return std::make_unique<Arc>(); }
std::unique_ptr<HostedView> makeDisc() { return std::make_unique<Disc>(); }
std::unique_ptr<HostedView> makeTimeline() { return std::make_unique<Timeline>(); }
std::unique_ptr<HostedView> makeChart() { return std::make_unique<Chart>(); }

}  // namespace velmora::web
