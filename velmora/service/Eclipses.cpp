#include <algorithm>
#include <map>
#include <string_view>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/platform/resources/FileReading.h>
#include <velmora/platform/resources/Log.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/service/MoonPhaseData.h>

namespace velmora {
namespace {

using Titles = std::map<std::string_view, std::string>;

/// The localised title of each code. "Penumbra" stands without its adjective ending by intent: it is the key.
Titles titlesByCode() {
  Titles titles = {
      {"TLE", "Total Lunar Eclipse"},  {"PLE", "Partial Lunar Eclipse"}, {"NLE", "Penumbra Lunar Eclipse"},
      {"TSE", "Total Solar Eclipse"},  {"PSE", "Partial Solar Eclipse"}, {"ASE", "Annular Solar Eclipse"},
      {"HSE", "Hybrid Solar Eclipse"},
  };
  for (auto& [code, title] : titles) title = Bundle::library().localizedString(title);
  return titles;
}

DateFormatter catalogueDates() {
  DateFormatter formatter;
  formatter.setTimeZone(*TimeZone::named("UTC"));
  formatter.setDateFormat("MM/dd/yyyy HH:mm");
  formatter.setLocale(Locale("en_US"));
  return formatter;
}

/// The eclipse of one line "04/08/2024 18:17,TSE"; none for any other text.
std::shared_ptr<const EclipseInfo> readLine(std::string_view line, const DateFormatter& dates,
                                            const Titles& titles) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos || line.find(',', comma + 1) != std::string_view::npos) return nullptr;
  const auto datetime = dates.dateFromString(line.substr(0, comma));
  if (!datetime) return nullptr;

  auto eclipse = std::make_shared<EclipseInfo>();
  eclipse->key = line.substr(comma + 1);
  eclipse->datetime = *datetime;
  const auto title = titles.find(eclipse->key);
  if (title != titles.end()) eclipse->title = title->second;
  eclipse->isLunarEvent = eclipse->key.find("LE") != std::string::npos;
  return eclipse;
}

MoonPhaseData::Eclipses readCatalogue(std::string_view text) {
  const DateFormatter dates = catalogueDates();
  const Titles titles = titlesByCode();
  MoonPhaseData::Eclipses eclipses;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty()) continue;
    if (const auto eclipse = readLine(line, dates, titles)) {
      eclipses[eclipse->datetime] = eclipse;
    } else {
      Log::write("Invalid entry");
    }
  }
  return eclipses;
}

/// Whether the instant lies between two minutes of the day, both included.
bool isBetween(Instant instant, Instant startOfDay, std::int64_t fromMinute, std::int64_t toMinute) {
  const auto atMinute = [&](std::int64_t minute) { return startOfDay + std::chrono::minutes(minute); };
  return atMinute(fromMinute) <= instant && instant <= atMinute(toMinute);
}

constexpr std::int64_t minutesPerDay = 1440;
constexpr std::chrono::hours twoDays{48};  // no day of a calendar is longer

bool isMoonUp(Instant instant, Instant startOfDay, const RiseSetData& day) {
  const std::int64_t rise = day.moonRiseMinutesFromMidnight, set = day.moonSetMinutesFromMidnight;
  if (rise <= set) return isBetween(instant, startOfDay, rise, set);
  return isBetween(instant, startOfDay, rise, minutesPerDay) || isBetween(instant, startOfDay, 0, set);
}

bool isSunUp(Instant instant, Instant startOfDay, const RiseSetData& day) {
  return isBetween(instant, startOfDay, day.sunRiseMinutesFromMidnight, day.sunSetMinutesFromMidnight);
}

}  // namespace

void MoonPhaseData::loadEventsFromFile() {
  const auto path = Bundle::library().pathForResource("Data/events", "txt");
  if (!path) return;
  if (const auto text = readTextFile(*path))
    _eventsData = std::make_shared<const Eclipses>(readCatalogue(*text));
}

std::shared_ptr<const EclipseInfo> MoonPhaseData::eventsOnDate(Instant date, const TimeZone& inTimezone) {
  if (!_eventsData) loadEventsFromFile();
  if (!_eventsData) return nullptr;

  const Calendar calendar(inTimezone);
  const Instant startOfDay = calendar.startOfDay(date);
  const auto end = _eventsData->upper_bound(date + twoDays);
  for (auto entry = _eventsData->lower_bound(date - twoDays); entry != end; ++entry) {
    const auto& [instant, eclipse] = *entry;
    if (!calendar.isSameDay(instant, date)) continue;
    const RiseSetData day = GetRiseSetDataForDate(date);
    const bool isUp =
        eclipse->isLunarEvent ? isMoonUp(instant, startOfDay, day) : isSunUp(instant, startOfDay, day);
    if (isUp) return eclipse;
  }
  return nullptr;
}

}  // namespace velmora
