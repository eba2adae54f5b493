#include <velmora/views/SpokenTexts.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include <velmora/astronomy/RiseAndSetCalc.h>
#include <velmora/platform/time/NumberFormatter.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/views/LocalizedText.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace {

constexpr const char* separator = ", ";
constexpr double fullTurn = 360;
constexpr std::int64_t midnight = 0, noon = 12;

/// What the record says of a body, and how to say it.
struct Body {
  std::int64_t rise, set;  ///< minutes from midnight, below 0 for none
  const std::string& riseText;
  const std::string& setText;
  const char* riseKey;
  const char* setKey;
  const char* upKey;
  const char* downKey;
  double riseAltitude;  ///< degrees, of the centre at rise and set
  PositionData (*position)(Instant, const GeoLocationData&, std::int64_t secondsFromGMT);
};

std::array<Body, 2> bodiesOf(const RiseSetData& day) {
  constexpr double altitudeOfSun = -0.833, altitudeOfMoon = 8.0 / 60;
  return {Body{day.moonRiseMinutesFromMidnight, day.moonSetMinutesFromMidnight, day.moonRiseText,
               day.moonSetText, "moonrise %@", "moonset %@", "Moon up all day", "Moon down all day",
               altitudeOfMoon, RiseAndSetCalc::ComputeMoonPosition},
          Body{day.sunRiseMinutesFromMidnight, day.sunSetMinutesFromMidnight, day.sunRiseText, day.sunSetText,
               "sunrise %@", "sunset %@", "Sun up all day", "Sun down all day", altitudeOfSun,
               RiseAndSetCalc::ComputeSunPosition}};
}

/// A body that does not cross its altitude is on the same side of it all day.
bool isUpAt(Instant instant, const Body& body) {
  static const GeoLocationData nowhere;
  const auto& selected = MoonPhaseData::sharedInstance().currentLocation();
  const GeoLocationData& place = selected ? *selected : nowhere;
  const std::int64_t offset = place.GetTimezoneIntervalFromGMT(instant);
  return body.position(instant, place, offset).altitude > body.riseAltitude;
}

/// A time as drawn; the mark of the next day is said in words.
std::string spokenTime(std::string text) {
  if (!text.ends_with("**")) return text;
  text.resize(text.size() - 2);
  if (text.ends_with(' ')) text.pop_back();
  return localizedText("%@ the next day", text);
}

/// None is the record without times. Minutes without a text are where a bar ends that goes beyond the day.
std::vector<std::string> eventsOf(const Body& body) {
  std::vector<std::pair<std::int64_t, std::string>> events;
  const auto add = [&events](std::int64_t minutes, const char* key, const std::string& text) {
    if (minutes >= 0 && !text.empty()) events.emplace_back(minutes, localizedText(key, spokenTime(text)));
  };
  add(body.rise, body.riseKey, body.riseText);
  add(body.set, body.setKey, body.setText);
  std::sort(events.begin(), events.end());
  std::vector<std::string> texts;
  for (auto& [minute, text] : events) texts.push_back(std::move(text));
  return texts;
}

std::string joined(const std::vector<std::string>& texts) {
  std::string whole;
  for (const std::string& text : texts) whole += (whole.empty() ? "" : separator) + text;
  return whole;
}

Instant instantOf(const PhaseItem& item, std::int64_t hour) {
  return MoonPhaseData::sharedInstance().calendar().date(
      {.year = item.year, .month = item.month, .day = item.day, .hour = hour});
}

std::string wholeDegrees(double degrees) {
  return NumberFormatter().stringFromNumber(std::int64_t{std::llround(degrees)}) + "°";
}

}  // namespace

SpokenDays::SpokenDays() {
  _dates.setTimeZone(MoonPhaseData::sharedInstance().calendar().timeZone());
  _dates.setDateStyle(DateFormatter::Style::mediumStyle);
}

std::string SpokenDays::date(const PhaseItem& item) const {
  return _dates.stringFromDate(instantOf(item, midnight));
}

std::string SpokenDays::dateAndPhase(const PhaseItem& item) const {
  const auto name = MoonPhaseData::sharedInstance().nameForPhase(item.phase);
  return name ? date(item) + separator + localizedText(*name) : date(item);
}

std::string SpokenDays::dateAndPhase(std::int64_t dayOfSelectedMonth) const {
  MoonPhaseData& service = MoonPhaseData::sharedInstance();
  const auto phases = service.currentMonthPhaseDictionary();
  if (phases && phases->contains(dayOfSelectedMonth)) return dateAndPhase(*phases->at(dayOfSelectedMonth));
  PhaseItem day;
  day.day = dayOfSelectedMonth;
  day.month = service.currentMonth();
  day.year = service.currentYear();
  return date(day);
}

std::string SpokenDays::riseAndSet(const RiseSetPhaseItem& item) const {
  if (!item.riseSetData) return date(item);
  std::vector<std::string> texts;
  for (const Body& body : bodiesOf(*item.riseSetData)) {
    std::vector<std::string> events = eventsOf(body);
    if (events.empty())
      events = {localizedText(isUpAt(instantOf(item, noon), body) ? body.upKey : body.downKey)};
    texts.insert(texts.end(), events.begin(), events.end());
  }
  return date(item) + ": " + joined(texts);
}

std::string spokenBearing(double degrees) {
  constexpr std::array directions = {"north", "northeast", "east", "southeast",
                                     "south", "southwest", "west", "northwest"};
  if (!std::isfinite(degrees)) return "";
  const double bearing = std::fmod(std::fmod(std::round(degrees), fullTurn) + fullTurn, fullTurn);
  const auto direction = static_cast<std::size_t>(std::lround(bearing / fullTurn * directions.size()));
  return wholeDegrees(bearing) + " " + localizedText(directions.at(direction % directions.size()));
}

std::string spokenHeight(double degrees) {
  if (!std::isfinite(degrees)) return "";
  const double height = std::round(degrees);
  return localizedText(height < 0 ? "%@ below the horizon" : "%@ above the horizon",
                       wholeDegrees(std::abs(height)));
}

}  // namespace velmora
