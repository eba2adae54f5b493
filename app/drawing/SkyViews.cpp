#include <app/drawing/SkyViews.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include <app/answers/Days.h>
#include <app/answers/SkyPositions.h>
#include <app/drawing/Hosting.h>
#include <velmora/almanac/Events.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/views/CompassView.h>
#include <velmora/views/MoonAzimuthElevationView.h>

namespace velmora::app {
namespace {

constexpr double quarterTurn = std::numbers::pi / 2;
constexpr double dueEast = 90, dueWest = 270;  // degrees from north

constexpr double reachOfMoon = 10;     // of its disc from its place, in points
constexpr double reachOfLetters = 32;  // of the compass's letters outwards from its ring
constexpr double reachOfTicks = 20;    // inwards

/// Where the Moon rises or sets on the day; if it does not, on the next or the former day; none where it does
/// on none of them.
std::optional<double> azimuthOf(almanac::EventKind kind, const Query& query) {
  const CivilDate today = dateAt(presentOf(query), query.place.zone);
  for (const int days : {0, 1, -1}) {
    const CivilDate date(std::chrono::local_days(today) + std::chrono::days(days));
    const auto day = almanac::day(query.place.observer(), query.place.zone, date, {.twilight = false});
    if (!day) continue;
    for (const almanac::Event& event : day->events)
      if (event.body == almanac::Body::moon && event.kind == kind) return event.azimuth;
  }
  return std::nullopt;
}

/// Judged by the Moon's next transit, or by the hemisphere where the almanac knows of none.
bool isHighestInTheNorth(const Query& query) {
  const Instant now = presentOf(query);
  const auto transit =
      almanac::next(query.place.observer(), almanac::Body::moon, almanac::EventKind::transit, now);
  if (!transit) return query.place.location.latitude < 0;
  return transit->azimuth < dueEast || transit->azimuth > dueWest;
}

/// Swaps left and right where the Moon is highest in the north, as the views draw it highest in the south.
AffineTransform mirror(const Query& query) {
  return AffineTransform::scaling(isHighestInTheNorth(query) ? -1 : 1, 1);
}

/// The angle by which to turn the half circle, whose ends lie below and above its middle, so that its lower
/// end comes to the compass's point at the start angle.
double turnToStart(const MoonAzimuthElevationView& way) {
  const Point start = MoonAzimuthElevationView::pointOnCircleWithCenter(
      way.bounds().center(), radiansFromDegrees(way.startAngle()), way.radius());
  const Point fromMiddle = start - way.arcCenter();
  return std::atan2(fromMiddle.y, fromMiddle.x) - quarterTurn;
}

std::shared_ptr<MoonAzimuthElevationView> makeWay(const Query& query, double side, double radius,
                                                  std::optional<double> rise, std::optional<double> set) {
  const auto theme = themeOf(query);
  const bool hasEnds = rise && set;
  auto way = std::make_shared<MoonAzimuthElevationView>();
  way->setFrame({0, 0, side, side});
  way->setStrokeColor(hasEnds ? theme->moonLightColor : Color::clear());
  way->setCircleFillColor(theme->selectedBackgroundColor);
  way->setRadius(static_cast<float>(std::max(radius, 0.0)), static_cast<float>(hasEnds ? *rise : dueEast),
                 static_cast<float>(hasEnds ? *set : dueWest));
  way->updateLayer();
  const almanac::Position moon = positionAt(presentOf(query), almanac::Body::moon, query.place).position;
  way->setObjectAzimuth(static_cast<float>(moon.azimuth), static_cast<float>(moon.apparentAltitude));
  return way;
}

std::shared_ptr<CompassView> makeRing(const Query& query, double side, double radius) {
  auto ring = std::make_shared<CompassView>();
  ring->setFrame({0, 0, side, side});
  ring->setRadius(static_cast<float>(std::max(radius, 0.0)));
  ring->setStrokeColor(themeOf(query)->darkTextColor);
  ring->updateLayer();
  return ring;
}

using Making = std::shared_ptr<View> (*)(const Query&, Size);

/// Some parts of the view have a fixed length, so a small picture shows a larger view, scaled down.
std::shared_ptr<View> fromAfar(Making make, const Query& query, Size size) {
  constexpr double leastSide = 160;
  const double factor = std::min(std::min(size.width, size.height) / leastSide, 1.0);
  const Size large = {size.width / factor, size.height / factor};
  if (factor == 1) return make(query, size);
  auto inner = makeHost(large);
  inner->addSubview(make(query, large));
  inner->setFrame(
      {(size.width - large.width) * 0.5, (size.height - large.height) * 0.5, large.width, large.height});
  inner->setTransform(AffineTransform::scaling(factor, factor));
  auto host = makeHost(size);
  host->addSubview(inner);
  return host;
}

// The way lies inside the ring and its ticks: its circle reaches at most √2 radii from the middle, where rise
// and set are a quarter of the horizon apart. The ring has to lie at the origin; it is turned with what holds
// it.
std::shared_ptr<View> compassOf(const Query& query, Size size) {
  const Rect square = squareIn(size);
  const double ring = square.width * 0.5 - reachOfLetters;
  const double horizon = (ring - reachOfTicks - reachOfMoon) / std::numbers::sqrt2;
  const auto way = makeWay(query, square.width, horizon, azimuthOf(almanac::EventKind::rise, query),
                           azimuthOf(almanac::EventKind::set, query));
  way->setAnchorPoint(way->rotationPoint());
  way->setTransform(mirror(query).concat(AffineTransform::rotation(turnToStart(*way))));

  auto sky = makeHost({square.width, square.height});
  sky->addSubview(makeRing(query, square.width, ring));
  sky->addSubview(way);
  sky->setFrame(square);
  sky->setTransform(
      AffineTransform::rotation(-radiansFromDegrees(query.request.drawing.heading) - quarterTurn));
  auto host = makeHost(size);
  host->addSubview(sky);
  return host;
}

std::shared_ptr<View> elevationArcOf(const Query& query, Size size) {
  const Rect square = squareIn(size);
  const auto way = makeWay(query, square.width, square.width * 0.5 - reachOfMoon, dueEast, dueWest);
  way->setFrame(square);
  way->setTransform(AffineTransform::rotation(quarterTurn).concat(mirror(query)));
  return way;
}

}  // namespace

std::shared_ptr<View> makeCompass(const Query& query, Size size) { return fromAfar(compassOf, query, size); }

std::shared_ptr<View> makeElevationArc(const Query& query, Size size) {
  return fromAfar(elevationArcOf, query, size);
}

std::string moonText(const Query& query) {
  const almanac::Position moon = positionAt(presentOf(query), almanac::Body::moon, query.place).position;
  const long height = std::lround(moon.apparentAltitude), bearing = std::lround(moon.azimuth) % 360;
  const std::string up = std::to_string(std::abs(height)) + "°";
  const std::string direction = std::to_string(bearing) + "° " + compassPoint(moon.azimuth);
  return height < 0 ? words("%1 below the horizon, %2", {up, direction})
                    : words("%1 above the horizon, %2", {up, direction});
}

}  // namespace velmora::app
