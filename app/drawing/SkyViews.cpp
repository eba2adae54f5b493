#include <app/drawing/SkyViews.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include <app/drawing/Hosting.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/CompassView.h>
#include <velmora/views/MoonAzimuthElevationView.h>

namespace velmora::app {
namespace {

constexpr double quarterTurn = std::numbers::pi / 2;
constexpr double dueEast = 90, dueWest = 270;  // degrees from north

constexpr double reachOfMoon = 10;     // of its disc from its place, in points
constexpr double reachOfLetters = 32;  // of the compass's letters outwards from its ring
constexpr double reachOfTicks = 20;    // inwards

MoonPhaseData& service() { return MoonPhaseData::sharedInstance(); }

Instant present() { return service().currentDate().value(); }

/// Where the Moon stands when it rises or sets, whichever field it is, on the day; if it does not, on the
/// next or the former day; none where it does on none of them.
std::optional<double> azimuthAt(std::int64_t RiseSetData::*minutesFromMidnight) {
  for (const int days : {0, 1, -1}) {
    const Instant day = service().calendar().dateByAddingDays(days, present());
    const std::int64_t minutes = service().GetRiseSetDataForDate(day).*minutesFromMidnight;
    if (minutes < 0) continue;
    return service().GetMoonPositionDataForDate(day, static_cast<double>(minutes)).value().azimuth;
  }
  return std::nullopt;
}

bool isHighestInTheNorth() {
  const auto hours = service().Get24HourMoonPositionsForDate(present()).value();
  const auto highest = std::max_element(hours.begin(), hours.end(), [](const auto& one, const auto& other) {
    return one.altitude < other.altitude;
  });
  return highest->azimuth < dueEast || highest->azimuth > dueWest;
}

/// Changes right and left where the Moon is highest in the north; the views take it to be in the south.
AffineTransform mirror() { return AffineTransform::scaling(isHighestInTheNorth() ? -1 : 1, 1); }

/// The turn of the half circle, which ends below and above its middle, that brings its lower end to the
/// compass's point at the start angle.
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
  const PositionData moon = service().GetMoonPositionDataForDate(present()).value();
  way->setObjectAzimuth(static_cast<float>(moon.azimuth), static_cast<float>(moon.altitude));
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

}  // namespace

// The way lies inside the ring and its ticks: its circle reaches at most √2 radii from the middle, where rise
// and set are a quarter of the horizon apart. The ring has to lie at the origin; it is turned with what holds
// it.
std::shared_ptr<View> makeCompass(const Query& query, Size size) {
  const Rect square = squareIn(size);
  const double ring = square.width * 0.5 - reachOfLetters;
  const double horizon = (ring - reachOfTicks - reachOfMoon) / std::numbers::sqrt2;
  const auto way = makeWay(query, square.width, horizon, azimuthAt(&RiseSetData::moonRiseMinutesFromMidnight),
                           azimuthAt(&RiseSetData::moonSetMinutesFromMidnight));
  way->setAnchorPoint(way->rotationPoint());
  way->setTransform(mirror().concat(AffineTransform::rotation(turnToStart(*way))));

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

std::shared_ptr<View> makeElevationArc(const Query& query, Size size) {
  const Rect square = squareIn(size);
  const auto way = makeWay(query, square.width, square.width * 0.5 - reachOfMoon, dueEast, dueWest);
  way->setFrame(square);
  way->setTransform(AffineTransform::rotation(quarterTurn).concat(mirror()));
  return way;
}

}  // namespace velmora::app
