#include <filesystem>

#include <velmora/Version.h>
#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/c/Answering.h>
#include <velmora/c/CopiedText.h>
#include <velmora/c/Zone.h>
#include <velmora/foundation/GeoLocationData.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/platform/resources/Bundle.h>

using namespace velmora;
using namespace velmora::c;

namespace {

constexpr int firstTableYear = 2000, lastTableYear = 2040, months = 12, twilights = 3;

GeoLocationData locationOf(const almanac::Place& place, const TimeZone& zone) {
  GeoLocationData location;
  location.latitude = place.latitude;
  location.longitude = place.longitude;
  location.timezone = zone;
  location.timezoneId = zone.name();
  location.locationInitialized = true;
  return location;
}

std::shared_ptr<const YearTable> tableFor(int year) {
  if (year < firstTableYear || year > lastTableYear) {
    endWith(VELMORA_OUT_OF_YEARS, {"the phase calendar covers the years 2000 to 2040"});
  }
  auto table = tableOfYear(year);
  if (!table) endWith(VELMORA_NO_DATA, {"the table of ", std::to_string(year), " cannot be read"});
  return table;
}

velmora_calendar_day calendarDay(const PhaseItem& item, const MoonPhaseCalc::ImageCalendar& images) {
  const auto image = images.find(item.day);
  return {static_cast<std::int32_t>(item.day), static_cast<std::int32_t>(item.phase),
          static_cast<std::int32_t>(item.moonAge), image == images.end() ? -1 : image->second,
          static_cast<double>(item.fullFactor)};
}

velmora_rise_set_record recordOf(const RiseSetData& day) {
  velmora_rise_set_record record{};
  record.moon_rise = static_cast<std::int32_t>(day.moonRiseMinutesFromMidnight);
  record.moon_set = static_cast<std::int32_t>(day.moonSetMinutesFromMidnight);
  record.sun_rise = static_cast<std::int32_t>(day.sunRiseMinutesFromMidnight);
  record.sun_set = static_cast<std::int32_t>(day.sunSetMinutesFromMidnight);
  record.day_length = static_cast<std::int32_t>(day.dayLengthMinutes);
  copyText(day.moonRiseText, record.moon_rise_text);
  copyText(day.moonSetText, record.moon_set_text);
  copyText(day.sunRiseText, record.sun_rise_text);
  copyText(day.sunSetText, record.sun_set_text);
  copyText(day.twilightBeginText, record.twilight_begin_text);
  copyText(day.twilightEndText, record.twilight_end_text);
  return record;
}

}  // namespace

extern "C" {

const char* velmora_version(void) { return VelmoraVersionString; }

velmora_status velmora_set_resources(const char* folder) {
  return answering([&] {
    Bundle::setLibrary(folder ? std::optional<std::filesystem::path>(folder) : std::nullopt);
    return VELMORA_OK;
  });
}

velmora_status velmora_calendar_month(const velmora_zone* zone, int32_t year, int32_t month,
                                      velmora_calendar_day* days, size_t capacity, size_t* count) {
  return answering([&] {
    checkRange(month, 1, months, "month");
    const auto table = tableFor(year);
    const GeoLocationData location = locationOf({}, zoneOf(zone));
    const Instant start = Calendar(*location.timezone).date({.year = year, .month = month});
    const auto phases = MoonPhaseCalc::GetPhaseCalendar(*table, month - 1, year, start, location, true);
    const auto images = MoonPhaseCalc::GetImageCalendar(*table, month - 1, year, start, location, true);
    std::vector<velmora_calendar_day> made;
    for (const auto& [day, item] : phases) made.push_back(calendarDay(*item, images));
    return fill(made, days, capacity, count, "days", [](const auto& day) { return day; });
  });
}

velmora_status velmora_rise_set(const velmora_place* place, const velmora_zone* zone, velmora_date date,
                                int32_t twilight, velmora_rise_set_record* record) {
  return answering([&] {
    velmora_rise_set_record& answer = given(record, "record");
    const GeoLocationData location = locationOf(placeOf(place), zoneOf(zone));
    const std::chrono::year_month_day day = dateOf(date, "date");
    const Calendar calendar(*location.timezone);
    const Instant start = calendar.date({.year = date.year,
                                         .month = static_cast<unsigned>(day.month()),
                                         .day = static_cast<unsigned>(day.day())});
    const std::int64_t offset = location.gmtIntervalForDate(start, calendar);
    answer =
        recordOf(RiseAndSetCalc::Compute(start, location, offset, choiceOf(twilight, twilights, "twilight")));
    return VELMORA_OK;
  });
}

}  // extern "C"
