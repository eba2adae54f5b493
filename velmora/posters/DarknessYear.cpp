#include <velmora/posters/DarknessYear.h>

#include <algorithm>

#include <velmora/almanac/Positions.h>
#include <velmora/posters/DarkHours.h>
#include <velmora/posters/NightSky.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

using std::chrono::local_days;
using std::chrono::year_month_day;

constexpr std::chrono::minutes valueStep{30};
constexpr double horizonRefraction = 34.0 / 60;
constexpr double brightTwilight = -6, darkTwilight = -12;  // between them moonlight begins to show

/// The first instant of each reading of the clocks from noon to noon.
std::vector<Instant> readingsOf(const TimeZone& zone, year_month_day evening) {
  const LocalTime noon = LocalTime(local_days(evening)) + std::chrono::hours(12);
  std::vector<Instant> readings;
  for (std::size_t i = 0; i < DarknessYear::valuesOfRow; ++i)
    readings.push_back(zone.lookup(noon + static_cast<int>(i) * valueStep).before);
  return readings;
}

double shareOfMoonlight(double sunAltitude) {
  return std::clamp((brightTwilight - sunAltitude) / (brightTwilight - darkTwilight), 0.0, 1.0);
}

void addPositions(const PosterPlace& place, const std::vector<Instant>& moments, double litFraction,
                  NightRow& row) {
  std::vector<almanac::Position> suns(moments.size()), moons(moments.size());
  almanac::positions(place.place, ephemeris::Body::sun, moments, suns);
  almanac::positions(place.place, ephemeris::Body::moon, moments, moons);
  for (std::size_t i = 0; i < moments.size(); ++i) {
    row.sun.push_back(suns[i].altitude);
    row.moon.push_back(moons[i].altitude + moons[i].semidiameter + horizonRefraction);
    row.moonlight.push_back(moonlight(litFraction, moons[i].apparentAltitude) *
                            shareOfMoonlight(suns[i].altitude));
  }
}

std::optional<NightRow> rowOf(const PosterPlace& place, year_month_day evening) {
  const std::vector<Instant> moments = readingsOf(place.zone, evening);
  const almanac::Interval interval = {moments.front(), moments.back()};
  const auto moon = almanac::illumination(place.place, interval.start + (interval.end - interval.start) / 2);
  if (!moon || !ephemeris::covers(interval.start) || !ephemeris::covers(interval.end)) return std::nullopt;
  NightRow row;
  row.evening = evening;
  row.interval = interval;
  addPositions(place, moments, moon->fraction, row);
  return row;
}

/// Whether the clocks change between the noons before and after the night's first.
void markSteps(std::vector<NightRow>& nights, const TimeZone& zone) {
  for (std::size_t i = 1; i < nights.size(); ++i) {
    const auto offset = [&](Instant at) { return zone.secondsFromGMT(at); };
    nights[i].isStep = offset(nights[i - 1].interval.start) != offset(nights[i].interval.end);
  }
}

std::size_t monthOf(const NightRow& night) { return static_cast<unsigned>(night.evening.month()) - 1; }

void findDarkest(const PosterPlace& place, DarknessYear& year) {
  const auto events = almanac::day(place.place, year.nights.front().interval.start,
                                   year.nights.back().interval.end, {.twilight = true, .transits = false});
  if (!events) return;
  const auto dark = darkHours(*events);
  for (const NightRow& night : year.nights) {
    auto stretches = within(dark, night.interval);
    auto& darkest = year.darkest[monthOf(night)];
    if (darkest) stretches.insert(stretches.begin(), *darkest);
    darkest = longest(stretches);
  }
}

}  // namespace

std::optional<DarknessYear> DarknessYear::of(const PosterPlace& place, std::chrono::year year) {
  DarknessYear sky;
  const local_days end = local_days((year + std::chrono::years(1)) / 1 / 1);
  for (local_days day = local_days(year / 1 / 1); day < end; day += std::chrono::days(1)) {
    auto row = rowOf(place, year_month_day(day));
    if (!row) return std::nullopt;
    sky.nights.push_back(*std::move(row));
  }
  markSteps(sky.nights, place.zone);
  findDarkest(place, sky);
  return sky;
}

}  // namespace velmora
