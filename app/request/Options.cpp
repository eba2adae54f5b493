#include <app/request/Options.h>

#include <algorithm>
#include <cmath>

#include <app/place/Cities.h>
#include <app/request/DrawingOptions.h>
#include <app/text/Utf8.h>
#include <app/text/ValueTexts.h>
#include <velmora/phases/Phase.h>

namespace velmora::app {
namespace {

constexpr double farthestGmtOffset = 18 * 3600;

double within(double number, double limit) {
  if (!(std::abs(number) <= limit)) throw BadInput("is out of range");
  return number;
}

std::int64_t wholeNumber(double number) {
  if (number != std::floor(number)) throw BadInput("is not a whole number");
  return static_cast<std::int64_t>(number);
}

CivilDate date(const std::string& text) {
  const auto date = dateFromText(text);
  if (!date) throw BadInput("is not a date that exists");
  if (date->year() < firstYear || date->year() > lastYear) throw BadInput("is out of range");
  return *date;
}

double height(double number) {
  if (!(number >= 0 && number <= greatestHeight)) throw BadInput("is out of range");
  return number;
}

std::chrono::minutes step(double number) {
  constexpr std::int64_t longest = 1440;
  const std::int64_t minutes = wholeNumber(within(number, longest));
  if (minutes < 1) throw BadInput("is out of range");
  return std::chrono::minutes(minutes);
}

std::chrono::year_month month(const std::string& text) {
  const auto month = monthFromText(text);
  if (!month) throw BadInput("is not a month");
  if (month->year() < firstYear || month->year() > lastYear) throw BadInput("is out of range");
  return *month;
}

std::chrono::year year(double number) {
  const std::chrono::year year(static_cast<int>(wholeNumber(within(number, 9999))));
  if (year < firstYear || year > lastYear) throw BadInput("is out of range");
  return year;
}

ClockTime timeOfDay(const std::string& text) {
  const auto time = timeFromText(text);
  if (!time) throw BadInput("is not a time of day");
  return *time;
}

Instant instant(const std::string& text) {
  const auto instant = instantFromText(text);
  if (!instant) throw BadInput("is not an instant");
  const CivilDate day(std::chrono::floor<std::chrono::days>(*instant));
  if (day.year() < firstYear || day.year() > lastYear) throw BadInput("is out of range");
  return *instant;
}

Locale locale(const std::string& text) {
  constexpr std::size_t longest = 64;
  const auto allowed = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '@' || c == '=' || c == '.';
  };
  if (text.empty() || text.size() > longest || !std::all_of(text.begin(), text.end(), allowed))
    throw BadInput("is not a locale identifier");
  return Locale(text);
}

/// A name is written into the lines of every answer, also of those that go to a terminal.
std::string nameText(const std::string& text) {
  if (!isUtf8(text)) throw BadInput("is not UTF-8");
  if (hasControls(text)) throw BadInput("holds control characters");
  return text;
}

void setClock(Request& request, Locale::HourCycle cycle) {
  if (request.clock && *request.clock != cycle) throw BadInput("contradicts the clock chosen before");
  request.clock = cycle;
}

constexpr std::string_view dateForm = "YYYY-MM-DD from 1900-01-01 to 2100-12-31";

void readTwilight(Request& request, const std::string& text) {
  request.twilight = oneOf<Twilight>(text, {{"civil", Twilight::civil},
                                            {"nautical", Twilight::nautical},
                                            {"astronomical", Twilight::astronomical},
                                            {"all", Twilight::all}});
}

void readPhase(Request& request, const std::string& text) {
  request.phase = oneOf<std::int64_t>(
      text, {{"new", kNewMoon}, {"first", kFirstQuarter}, {"full", kFullMoon}, {"last", kLastQuarter}});
}

void readBody(Request& request, const std::string& text) {
  request.body = oneOf<Body>(text, {{"moon", Body::moon}, {"sun", Body::sun}});
}

void readClock(Request& request, const std::string& text) {
  setClock(request, oneOf<Locale::HourCycle>(
                        text, {{"24h", Locale::HourCycle::h24}, {"12h", Locale::HourCycle::h12}}));
}

void readColor(Request& request, const std::string& text) {
  request.color = oneOf<ColorChoice>(
      text,
      {{"auto", ColorChoice::automatic}, {"always", ColorChoice::always}, {"never", ColorChoice::never}});
}

std::vector<Option> makeOptions() {
  using Switch = Option::Switch;
  using Number = Option::Number;
  using Text = Option::Text;
  using R = Request;
  using S = const std::string;
  constexpr bool onlyOnCommandLine = true;
  return {
      {"city", "NAME", "a city, spelled freely; if ambiguous: Portland, Maine", "one line of text in UTF-8",
       Text([](R& r, S& v) { r.place.city = nameText(v); })},
      {"lat", "DEGREES", "latitude, north positive", "-90 to 90 degrees",
       Number([](R& r, double v) { r.place.latitude = within(v, 90); })},
      {"lon", "DEGREES", "longitude, east positive", "-180 to 180 degrees",
       Number([](R& r, double v) { r.place.longitude = within(v, 180); })},
      {"tz", "ZONE", "time zone of the place", "an identifier such as Europe/Helsinki, UTC or GMT+05:30",
       Text([](R& r, S& v) { r.place.zone = zoneNamed(v); })},
      {"gmt-offset", "SECONDS", "a fixed offset from GMT instead of a time zone",
       "whole seconds from -64800 to 64800 (18 hours), east positive",
       Number([](R& r, double v) { r.place.gmtOffset = wholeNumber(within(v, farthestGmtOffset)); })},
      {"name", "TEXT", "name of the place", "one line of text in UTF-8",
       Text([](R& r, S& v) { r.place.name = nameText(v); })},
      {"height", "METRES", "eye above the ground at the horizon (default: 0)", "0 to 10000 metres",
       Number([](R& r, double v) { r.place.height = height(v); })},
      {"date", "YYYY-MM-DD", "the day (default: today)", dateForm,
       Text([](R& r, S& v) { r.date = date(v); })},
      {"time", "HH:MM", "the time of day at the place", "HH:MM from 00:00 to 23:59",
       Text([](R& r, S& v) { r.time = timeOfDay(v); })},
      {"from", "YYYY-MM-DD", "first day of a range", dateForm, Text([](R& r, S& v) { r.from = date(v); })},
      {"to", "YYYY-MM-DD", "last day of a range, at most 41 years long", dateForm,
       Text([](R& r, S& v) { r.to = date(v); })},
      {"month", "[YYYY-MM]", "the month (default: the present one)", "YYYY-MM from 1900-01 to 2100-12",
       Text([](R& r, S& v) { r.month = month(v); })},
      {"year", "[YYYY]", "the year (default: the present one)", "1900 to 2100",
       Number([](R& r, double v) { r.year = year(v); })},
      {"phase", "PHASE", "only new, first (quarter), full or last (quarter)", "new, first, full or last",
       Text(readPhase)},
      {"twilight", "KIND", "civil (default), nautical, astronomical or all three",
       "civil, nautical, astronomical or all", Text(readTwilight)},
      {"transit", "", "also when Sun and Moon are highest, on the meridian", "",
       Switch([](R& r) { r.transits = true; })},
      {"body", "BODY", "moon (default) or sun", "moon or sun", Text(readBody)},
      {"degrees", "DEGREES", "elevation above the horizon, -90 to 90 degrees", "-90 to 90 degrees",
       Number([](R& r, double v) { r.degrees = within(v, 90); })},
      {"step", "MINUTES", "from one position on the path to the next (default: 60)",
       "whole minutes from 1 to 1440", Number([](R& r, double v) { r.step = step(v); })},
      {"grid", "", "also as a calendar, one line a week", "", Switch([](R& r) { r.grid = true; })},
      {"all-day", "", "events as whole days at the place, without a time", "",
       Switch([](R& r) { r.allDay = true; })},
      {"forget", "", "forget your own place", "", Switch([](R& r) { r.forgets = true; })},
      {"now", "INSTANT", "take this as the present, instead of the clock's time",
       "an ISO 8601 instant such as 2024-06-20T12:00:00Z, from 1900 to 2100",
       Text([](R& r, S& v) { r.now = instant(v); })},
      {"clock", "FORM", "24h or 12h (default: the locale's habit)", "24h or 12h", Text(readClock)},
      {"24h", "", "the same as --clock 24h", "", Switch([](R& r) { setClock(r, Locale::HourCycle::h24); })},
      {"12h", "", "the same as --clock 12h", "", Switch([](R& r) { setClock(r, Locale::HourCycle::h12); })},
      {"locale", "ID", "language and region, such as en_US", "letters, digits and _ - @ = . (at most 64)",
       Text([](R& r, S& v) { r.locale = locale(v); })},
      {"csv", "", "answer as comma-separated values", "", Switch([](R& r) { r.csv = true; }),
       onlyOnCommandLine},
      {"json", "", "answer in JSON", "", Switch([](R& r) { r.json = true; }), onlyOnCommandLine},
      {"color", "WHEN", "bold headings and color: auto (default), always or never", "auto, always or never",
       Text(readColor), onlyOnCommandLine},
      {"help", "", "show this help (-h for short)", "", Switch([](R& r) { r.help = true; }),
       onlyOnCommandLine, 'h'},
      {"version", "", "show the version", "", Switch([](R& r) { r.version = true; }), onlyOnCommandLine},
  };
}

std::vector<Option> joined(std::vector<Option> list, const std::vector<Option>& more) {
  list.insert(list.end(), more.begin(), more.end());
  return list;
}

/// Runs a reader. Of what it finds wrong it makes a whole message: which option, which value, what is accepted.
template <typename Read>
void reading(const Option& option, const std::string& label, std::string_view value, Read read) {
  try {
    read();
  } catch (const BadInput& error) {
    std::string message = label + (option.isSwitch() ? "" : " " + quote(value)) + " " + error.what();
    if (!option.accepts.empty()) message += "; accepted: " + std::string(option.accepts);
    throw BadInput(message);
  }
}

void readText(const Option& option, const std::string& value, Request& request) {
  if (const auto* text = std::get_if<Option::Text>(&option.read)) return (*text)(request, value);
  const auto number = numberFromText(value);
  if (!number) throw BadInput("is not a number");
  std::get<Option::Number>(option.read)(request, *number);
}

void readJson(const Option& option, const Json& value, Request& request) {
  if (const auto* text = std::get_if<Option::Text>(&option.read)) {
    if (!value.is_string()) throw BadInput("is not a text");
    return (*text)(request, value.get_ref<const std::string&>());
  }
  if (const auto* number = std::get_if<Option::Number>(&option.read)) {
    if (value.is_string()) throw BadInput("is a text and not a number");
    if (!value.is_number()) throw BadInput("is not a number");
    return (*number)(request, value.get<double>());
  }
  if (!value.is_boolean()) throw BadInput("is neither true nor false");
  if (value.get<bool>()) std::get<Option::Switch>(option.read)(request);
}

}  // namespace

const std::vector<Option>& allOptions() {
  static const std::vector<Option> options = joined(drawingOptions(), makeOptions());
  return options;
}

const Option* findOption(std::string_view name) {
  const auto& options = allOptions();
  const auto found =
      std::find_if(options.begin(), options.end(), [&](const Option& option) { return option.name == name; });
  return found == options.end() ? nullptr : &*found;
}

void readOptionText(const Option& option, const std::string& label, const std::string& value,
                    Request& request) {
  reading(option, label, value, [&] {
    if (const auto* turnOn = std::get_if<Option::Switch>(&option.read)) return (*turnOn)(request);
    readText(option, value, request);
  });
  request.given.push_back(option.name);
}

void readOptionJson(const Option& option, const Json& value, Request& request) {
  const std::string text = value.is_string() ? value.get<std::string>() : jsonLine(value);
  reading(option, std::string(option.name), text, [&] { readJson(option, value, request); });
  if (value != Json(false)) request.given.push_back(option.name);
}

}  // namespace velmora::app
