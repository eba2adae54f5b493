#include <velmora/posters/NightSky.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr Seconds sampleStep{300};

std::vector<Instant> momentsOf(const almanac::Day& day) {
  std::vector<Instant> moments;
  for (Instant at = day.start; at < day.end; at += sampleStep) moments.push_back(at);
  moments.push_back(day.end);
  for (const almanac::Event& event : day.events) moments.push_back(event.at);
  std::sort(moments.begin(), moments.end());
  return moments;
}

std::vector<SkySample> samplesAt(const almanac::Place& place, const std::vector<Instant>& moments) {
  std::vector<almanac::Position> sun(moments.size()), moon(moments.size());
  almanac::positions(place, ephemeris::Body::sun, moments, sun);
  almanac::positions(place, ephemeris::Body::moon, moments, moon);
  std::vector<SkySample> samples;
  for (std::size_t i = 0; i < moments.size(); ++i)
    samples.push_back({moments[i], sun[i].altitude, sun[i].apparentAltitude, moon[i].apparentAltitude});
  return samples;
}

bool changesDaypart(const almanac::Event& event) {
  return event.body == ephemeris::Body::sun && event.kind != almanac::EventKind::transit;
}

}  // namespace

almanac::Interval nightOf(const TimeZone& zone, std::chrono::year_month_day evening) {
  const LocalTime noon = LocalTime(std::chrono::local_days(evening)) + std::chrono::hours(12);
  return {zone.lookup(noon).before, zone.lookup(noon + std::chrono::days(1)).before};
}

std::optional<NightSky> NightSky::of(const PosterPlace& place, std::chrono::year_month_day date) {
  const auto [start, end] = nightOf(place.zone, date);
  const auto events = almanac::day(place.place, start, end);
  const auto moon = almanac::illumination(place.place, start + (end - start) / 2);
  if (!events || !moon) return std::nullopt;
  return NightSky{start, end, *events, samplesAt(place.place, momentsOf(*events)), *moon};
}

double NightSky::sunAt(Instant at) const {
  const auto after = std::find_if(samples.begin() + 1, samples.end() - 1,
                                  [&](const SkySample& sample) { return sample.at >= at; });
  const SkySample &a = *(after - 1), &b = *after;
  return a.sun + (b.sun - a.sun) * ((at - a.at) / (b.at - a.at));
}

std::vector<DaypartStretch> daypartStretches(const NightSky& night) {
  std::vector<Instant> bounds = {night.start};
  for (const almanac::Event& event : night.events.events)
    if (changesDaypart(event)) bounds.push_back(event.at);
  bounds.push_back(night.end);
  std::vector<DaypartStretch> stretches;
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i) {
    const almanac::Interval interval = {bounds[i], bounds[i + 1]};
    if (!(interval.start < interval.end)) continue;
    const Instant middle = interval.start + (interval.end - interval.start) / 2;
    stretches.push_back({daypartAt(night.sunAt(middle)), interval});
  }
  return stretches;
}

double moonlight(double litFraction, double moonHeight) {
  return litFraction * std::max(0.0, std::sin(moonHeight * std::numbers::pi / 180));
}

}  // namespace velmora
