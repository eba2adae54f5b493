#include <algorithm>
#include <cmath>

#include <velmora/phases/MonthQuery.h>
#include <velmora/phases/Months.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/phases/Phase.h>

namespace velmora {
namespace {

using MonthEvents = MoonPhaseCalc::MonthEvents;
using ImageCalendar = MoonPhaseCalc::ImageCalendar;

constexpr std::int32_t pictureCount = 56;
constexpr std::int32_t lastPicture = pictureCount - 1;

/// A day and the number of its picture.
struct PictureDay {
  std::int64_t day;
  std::int32_t picture;
};

constexpr PictureDay noPreviousEvent = {-1, -1};
constexpr PictureDay noNextEvent = {9999, 9999};

/// The days whose picture is a fixed point of the month: those of its events, its first and its last. A day
/// may stand here without a picture.
struct FixedDays {
  std::vector<std::int64_t> days;  ///< ascending
  ImageCalendar pictures;

  void add(std::int64_t day) { days.insert(std::upper_bound(days.begin(), days.end(), day), day); }

  bool has(std::int64_t day) const { return std::binary_search(days.begin(), days.end(), day); }

  std::optional<std::int32_t> picture(std::int64_t day) const {
    const auto found = pictures.find(day);
    return found == pictures.end() ? std::nullopt : std::optional(found->second);
  }
};

std::optional<std::int32_t> pictureOfPhase(std::int64_t phase) {
  switch (phase) {
    case kNewMoon:
      return 0;
    case kFirstQuarter:
      return 15;
    case kFullMoon:
      return 27;
    case kLastQuarter:
      return 40;
    default:
      return std::nullopt;
  }
}

/// The picture of a day on the straight line that starts at `from` and covers, in that many days, the way to
/// the picture `to`, or to the end of the lunation where `to` lies lower. Both sums are fused multiply-adds:
/// a picture may differ by one otherwise.
std::int32_t pictureOnLine(const PictureDay& from, std::int32_t to, std::int64_t days, std::int64_t day) {
  const std::int32_t target = from.picture <= to ? to : lastPicture;
  const double slope = static_cast<double>(target - from.picture) / static_cast<double>(days);
  const double origin = std::fma(-static_cast<double>(from.day), slope, static_cast<double>(from.picture));
  const auto picture = static_cast<std::int32_t>(std::fma(static_cast<double>(day), slope, origin));
  return picture > lastPicture ? picture % pictureCount : picture;
}

/// The latest event of the previous month. One of an unknown phase keeps the picture of the event before it.
PictureDay lastOf(const MonthEvents& events) {
  PictureDay last = noPreviousEvent;
  for (const auto& event : events) {
    if (event->day > last.day) last = {event->day, pictureOfPhase(event->phase).value_or(last.picture)};
  }
  return last;
}

/// The earliest event of the next month, likewise.
PictureDay firstOf(const MonthEvents& events) {
  PictureDay first = noNextEvent;
  for (const auto& event : events) {
    if (event->day < first.day) first = {event->day, pictureOfPhase(event->phase).value_or(first.picture)};
  }
  return first;
}

FixedDays daysOfEvents(const MonthEvents& events) {
  FixedDays fixed;
  for (const auto& event : events) {
    fixed.add(event->day);
    if (const auto picture = pictureOfPhase(event->phase)) fixed.pictures[event->day] = *picture;
  }
  return fixed;
}

/// Adds the first of the month, on the line from the previous month's last event to the first of this.
void addFirstDay(const PictureDay& previous, std::int64_t previousLength, FixedDays& fixed) {
  if (previous.day != noPreviousEvent.day) {
    const std::int64_t first = fixed.days.front();
    fixed.pictures[1] = pictureOnLine(previous, fixed.picture(first).value_or(0),
                                      (previousLength - previous.day) + first, previousLength + 1);
  }
  fixed.add(1);
}

/// Adds the last day of the month, on the line from its last event to the next month's first.
void addLastDay(const PictureDay& next, std::int64_t length, FixedDays& fixed) {
  if (next.day != noNextEvent.day) {
    const std::int64_t last = fixed.days.back();
    fixed.pictures[length] = pictureOnLine({last, fixed.picture(last).value_or(0)}, next.picture,
                                           (length + next.day) - last, length);
  }
  fixed.add(length);
}

/// Fills the days from `a` to `b`. A picture that one of them lacks is made up from the other's, for these
/// days alone.
/// Kept: it is not brought into the range of pictures.
void fillBetween(std::int64_t a, std::int64_t b, std::int64_t length, const FixedDays& fixed,
                 ImageCalendar& calendar) {
  const std::optional<std::int32_t> knownA = fixed.picture(a);
  const std::optional<std::int32_t> knownB = fixed.picture(b);
  if (!knownA && !knownB) return;
  const auto dayB = static_cast<std::int32_t>(b);
  const std::int32_t pictureA = knownA ? *knownA : *knownB - dayB + (*knownB < dayB ? lastPicture : 0);
  const std::int32_t pictureB = knownB ? *knownB : *knownA + static_cast<std::int32_t>(length - a);
  calendar[a] = pictureA;
  calendar[b] = pictureB;
  for (std::int64_t day = a + 1; day < b; ++day) {
    calendar[day] = pictureOnLine({a, pictureA}, pictureB, b - a, day);
  }
}

}  // namespace

MoonPhaseCalc::ImageCalendar MoonPhaseCalc::GetImageCalendar(const YearTable& table, std::int64_t month,
                                                             std::int64_t year, Instant date,
                                                             const GeoLocationData& location,
                                                             bool use24HourTimeFormat) {
  MonthQuery query(date, location, use24HourTimeFormat);
  // Kept: unlike the phase calendar, no neighbouring year is opened for January and December.
  const PictureDay previous =
      month > zeroBasedJanuary ? lastOf(query.events(table, year, month - 1)) : noPreviousEvent;
  const PictureDay next =
      month < zeroBasedDecember ? firstOf(query.events(table, year, month + 1)) : noNextEvent;
  const std::int64_t length = GetNumberOfDaysInMonth(month, year);
  FixedDays fixed = daysOfEvents(query.events(table, year, month));
  if (fixed.days.empty()) return {};

  if (!fixed.has(1)) addFirstDay(previous, GetNumberOfDaysInMonth(month - 1, year), fixed);
  if (!fixed.has(length)) addLastDay(next, length, fixed);
  ImageCalendar calendar;
  for (std::size_t i = 1; i < fixed.days.size(); ++i) {
    fillBetween(fixed.days[i - 1], fixed.days[i], length, fixed, calendar);
  }
  return calendar;
}

}  // namespace velmora
