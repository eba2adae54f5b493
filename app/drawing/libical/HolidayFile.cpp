#include <app/drawing/libical/HolidayFile.h>

#include <libical/ical.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <utility>

#include <app/drawing/Recurrence.h>
#include <app/text/Errors.h>
#include <app/text/Utf8.h>

namespace velmora::app {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

// libical takes half a second for a line of this length, and four times as long for each doubling.
constexpr std::size_t largestFile = std::size_t{1} << 20;  // bytes
constexpr int mostDays = 2'000'000;                        // looked at in a file
constexpr days longestEvent{366};

using Component = std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)>;

[[noreturn]] void refuse(const std::string& source, const std::string& fault) {
  throw BadInput("ics " + quote(source) + " " + fault + "; accepted: a calendar file (iCalendar)");
}

std::string textOf(const char* text) {
  std::string line = text == nullptr ? "" : text;
  std::replace_if(
      line.begin(), line.end(), [](unsigned char c) { return c < ' '; }, ' ');
  return line;
}

/// Calls the function with each property of the kind. A component keeps one place among its properties: the
/// function must ask it for nothing, or the walk begins again, without end.
template <class Use>
void forEachProperty(icalcomponent* event, icalproperty_kind kind, const Use& use) {
  for (icalproperty* property = icalcomponent_get_first_property(event, kind); property != nullptr;
       property = icalcomponent_get_next_property(event, kind))
    use(property);
}

template <class Use>
void forEachComponent(icalcomponent* component, const Use& use) {
  for (icalcomponent* part = icalcomponent_get_first_component(component, ICAL_ANY_COMPONENT);
       part != nullptr; part = icalcomponent_get_next_component(component, ICAL_ANY_COMPONENT))
    use(part);
}

using Moment = std::chrono::sys_seconds;  // of the clock that it is written by

/// None of what is no date of a calendar.
std::optional<Moment> momentOf(const icaltimetype& time) {
  const year_month_day date(std::chrono::year(time.year),
                            std::chrono::month(static_cast<unsigned>(time.month)),
                            std::chrono::day(static_cast<unsigned>(time.day)));
  if (icaltime_is_null_time(time) || !date.ok()) return std::nullopt;
  const auto midnight = sys_days(date);
  if (time.is_date) return midnight;
  return midnight + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
         std::chrono::seconds(time.second);
}

std::optional<sys_days> dateOf(const icaltimetype& time) {
  const auto moment = momentOf(time);
  return moment ? std::optional(std::chrono::floor<days>(*moment)) : std::nullopt;
}

/// No longer than is followed.
std::chrono::seconds lengthOf(const icaldurationtype& duration) {
  if (duration.is_neg) return {};
  const auto whole = std::min(days(duration.days) + std::chrono::weeks(duration.weeks), days(longestEvent));
  return whole + std::chrono::hours(duration.hours) + std::chrono::minutes(duration.minutes) +
         std::chrono::seconds(duration.seconds);
}

/// The numbers of a part of a rule, which end with a mark.
template <std::size_t size>
std::vector<int> numbersOf(const short (&numbers)[size]) {
  const auto end = std::find(std::begin(numbers), std::end(numbers), ICAL_RECURRENCE_ARRAY_MAX);
  return {std::begin(numbers), end};
}

std::chrono::weekday weekdayOf(icalrecurrencetype_weekday day) {
  return std::chrono::weekday(static_cast<unsigned>(day) - ICAL_SUNDAY_WEEKDAY);
}

Recurrence::Frequency frequencyOf(const icalrecurrencetype& rule) {
  switch (rule.freq) {
    case ICAL_DAILY_RECURRENCE:
      return Recurrence::Frequency::daily;
    case ICAL_WEEKLY_RECURRENCE:
      return Recurrence::Frequency::weekly;
    case ICAL_MONTHLY_RECURRENCE:
      return Recurrence::Frequency::monthly;
    case ICAL_YEARLY_RECURRENCE:
      return Recurrence::Frequency::yearly;
    default:
      throw BadInput("has an event that recurs more often than daily");
  }
}

// libical's own iterator may look for centuries, and for hours within a day, for a day that never comes.
Recurrence recurrenceOf(const icalrecurrencetype& rule) {
  if (rule.rscale != nullptr) throw BadInput("has an event that recurs by another calendar");
  Recurrence recurrence = {.frequency = frequencyOf(rule),
                           .interval = rule.interval,
                           .months = numbersOf(rule.by_month),
                           .weeks = numbersOf(rule.by_week_no),
                           .yearDays = numbersOf(rule.by_year_day),
                           .monthDays = numbersOf(rule.by_month_day),
                           .positions = numbersOf(rule.by_set_pos)};
  if (rule.count > 0) recurrence.count = rule.count;
  recurrence.until = dateOf(rule.until);
  for (const int day : numbersOf(rule.by_day)) {
    const auto coded = static_cast<short>(day);
    recurrence.weekdays.push_back(
        {weekdayOf(icalrecurrencetype_day_day_of_week(coded)), icalrecurrencetype_day_position(coded)});
  }
  if (rule.week_start != ICAL_NO_WEEKDAY) recurrence.weekStart = weekdayOf(rule.week_start);
  return recurrence;
}

/// An event: of one name, on as many days, from each of its dates on.
class Holiday {
 public:
  Holiday(icalcomponent* event, const TimeZone& zone) : _event(event), _zone(zone) {
    forEachProperty(event, ICAL_DTSTART_PROPERTY, [&](icalproperty* start) {
      const icaltimetype time = icalproperty_get_dtstart(start);
      _start = momentOf(time);
      _isUniversal = !time.is_date && icaltime_is_utc(time);
    });
    if (_start) _end = end();
  }

  bool hasDate() const { return _start.has_value(); }
  std::string name() const { return textOf(icalcomponent_get_summary(_event)); }
  bool isCancelled() const { return icalcomponent_get_status(_event) == ICAL_STATUS_CANCELLED; }

  /// Of the event and of those that replace it on a date.
  std::string identity() const { return textOf(icalcomponent_get_uid(_event)); }

  /// The date that this event replaces of the recurring one of the same identity; none of most.
  std::optional<sys_days> replaces() const {
    std::optional<sys_days> date;
    forEachProperty(_event, ICAL_RECURRENCEID_PROPERTY,
                    [&](icalproperty* property) { date = dateOf(icalproperty_get_recurrenceid(property)); });
    return date;
  }

  /// The dates, as they are written, on which it begins and may lie on the days from the one to the other.
  std::set<sys_days> dates(sys_days from, sys_days to, DaysToLookAt& limit) const {
    const sys_days first = date(), earliest = from - longestEvent, latest = to + days(1);
    std::set<sys_days> found = {first};
    forEachProperty(_event, ICAL_RRULE_PROPERTY, [&](icalproperty* rule) {
      const auto more = recurrenceOf(icalproperty_get_rrule(rule)).days(first, earliest, latest, limit);
      found.insert(more.begin(), more.end());
    });
    forEachProperty(_event, ICAL_RDATE_PROPERTY, [&](icalproperty* more) {
      const icaldatetimeperiodtype when = icalproperty_get_rdate(more);
      const auto date = dateOf(icaltime_is_null_time(when.time) ? when.period.start : when.time);
      if (date) found.insert(*date);
    });
    forEachProperty(_event, ICAL_EXDATE_PROPERTY, [&](icalproperty* exception) {
      if (const auto date = dateOf(icalproperty_get_exdate(exception))) found.erase(*date);
    });
    return found;
  }

  /// The first and the last day of the one that begins on the date.
  std::pair<sys_days, sys_days> span(sys_days of) const {
    const days ahead = of - date();
    const sys_days first = dayOf(*_start + ahead);
    const sys_days last = dayOf(_end + ahead - std::chrono::seconds(1));
    return {first, std::clamp(last, first, first + longestEvent - days(1))};
  }

 private:
  /// As it is written.
  sys_days date() const { return std::chrono::floor<days>(*_start); }

  /// At the zone, where it is written in universal time.
  sys_days dayOf(Moment moment) const {
    if (!_isUniversal) return std::chrono::floor<days>(moment);
    return sys_days(std::chrono::floor<days>(_zone.localTime(moment)).time_since_epoch());
  }

  /// The first moment after it.
  Moment end() const {
    std::optional<Moment> end;
    forEachProperty(_event, ICAL_DTEND_PROPERTY,
                    [&](icalproperty* property) { end = momentOf(icalproperty_get_dtend(property)); });
    forEachProperty(_event, ICAL_DURATION_PROPERTY, [&](icalproperty* property) {
      end = *_start + lengthOf(icalproperty_get_duration(property));
    });
    return end.value_or(*_start);
  }

  icalcomponent* _event;
  const TimeZone& _zone;
  std::optional<Moment> _start;
  Moment _end{};
  bool _isUniversal = false;
};

void addHolidays(icalcomponent* calendar, const TimeZone& zone, std::vector<Holiday>& holidays) {
  forEachComponent(calendar, [&](icalcomponent* part) {
    if (icalcomponent_isa(part) != ICAL_VEVENT_COMPONENT) return;
    const Holiday holiday(part, zone);
    if (holiday.hasDate()) holidays.push_back(holiday);
  });
}

/// Those of the calendar, or of several in one file.
std::vector<Holiday> holidaysOf(icalcomponent* root, const TimeZone& zone) {
  std::vector<Holiday> holidays;
  if (icalcomponent_isa(root) == ICAL_VCALENDAR_COMPONENT) addHolidays(root, zone, holidays);
  forEachComponent(root, [&](icalcomponent* part) {
    if (icalcomponent_isa(part) == ICAL_VCALENDAR_COMPONENT) addHolidays(part, zone, holidays);
  });
  return holidays;
}

/// What is wrong with a part of the component, in libical's words; empty where nothing is. It takes an empty
/// property for a fault, which many calendars have and nobody minds.
std::string faultIn(icalcomponent* component) {
  std::string fault;
  forEachProperty(component, ICAL_XLICERROR_PROPERTY, [&](icalproperty* error) {
    const std::string text = textOf(icalproperty_get_xlicerror(error));
    if (fault.empty() && !text.starts_with("No value for")) fault = text;
  });
  forEachComponent(component, [&](icalcomponent* part) {
    if (fault.empty()) fault = faultIn(part);
  });
  return fault;
}

/// Without the ends of lines that go on in the next one.
std::string unfolded(const std::string& text) {
  std::string whole;
  for (const char c : text) {
    const bool goesOn = !whole.empty() && whole.back() == '\n' && (c == ' ' || c == '\t');
    if (goesOn) {
      whole.pop_back();
    } else if (c != '\r') {
      whole += c;
    }
  }
  return whole;
}

const BadInput noWholeCalendar("is no calendar, or not a whole one");

/// Throws for what libical should not be given: of an END without a BEGIN it tells people itself, for each
/// BEGIN within another it calls itself, and its time grows with the square of the parts of a line.
void checkLines(const std::string& text) {
  constexpr int deepest = 8;  // an alarm of an event of a calendar is at 3
  constexpr std::ptrdiff_t mostParts = 1000;
  int depth = 0;
  std::istringstream lines(unfolded(text));
  for (std::string line; std::getline(lines, line);) {
    if (std::count(line.begin(), line.end(), ';') > mostParts)
      throw BadInput("has a line of more than 1000 parts");
    std::string name = line.substr(0, line.find_first_of(":;"));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    if (name != "BEGIN" && name != "END") continue;
    depth += name == "BEGIN" ? 1 : -1;
    const bool saysOfWhat = line.find(':') < line.size() - 1;
    if (!saysOfWhat || depth < 0 || depth > deepest) throw noWholeCalendar;
  }
  if (depth > 0) throw noWholeCalendar;
}

bool isCalendar(icalcomponent* component) {
  const icalcomponent_kind kind = icalcomponent_isa(component);
  const bool areSeveral = kind == ICAL_XROOT_COMPONENT;
  return kind == ICAL_VCALENDAR_COMPONENT ||
         (areSeveral && icalcomponent_count_components(component, ICAL_VCALENDAR_COMPONENT) > 0);
}

/// Without the mark that some programs begin a file of UTF-8 with.
std::string withoutMark(const std::string& text) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

/// Throws where it is no calendar, or a part of it could not be read.
Component parsed(const std::string& text) {
  if (!isUtf8(text)) throw BadInput("is not text");
  checkLines(text);
  icalerror_set_errors_are_fatal(0);  // else it may end the process
  Component calendar(icalparser_parse_string(text.c_str()), icalcomponent_free);
  if (!calendar || !isCalendar(calendar.get())) throw noWholeCalendar;
  const std::string fault = faultIn(calendar.get());
  if (!fault.empty()) throw BadInput("is damaged: " + quote(fault));
  return calendar;
}

/// The names of the days from the one to the other, in order.
std::set<std::pair<sys_days, std::string>> namesOf(const std::vector<Holiday>& holidays, sys_days from,
                                                   sys_days to) {
  std::set<std::pair<std::string, sys_days>> replaced;
  for (const Holiday& holiday : holidays)
    if (const auto date = holiday.replaces()) replaced.emplace(holiday.identity(), *date);

  DaysToLookAt limit(mostDays);
  std::set<std::pair<sys_days, std::string>> names;
  for (const Holiday& holiday : holidays) {
    const std::string name = holiday.name(), identity = holiday.identity();
    if (holiday.isCancelled() || name.empty()) continue;
    for (const sys_days date : holiday.dates(from, to, limit)) {
      if (!holiday.replaces() && replaced.count({identity, date}) > 0) continue;
      const auto [first, last] = holiday.span(date);
      for (sys_days day = std::max(first, from); day <= std::min(last, to); day += days(1)) {
        limit.takeOne();
        names.emplace(day, name);
      }
    }
  }
  return names;
}

}  // namespace

std::vector<CalendarNote> holidaysIn(const std::string& text, const std::string& source,
                                     std::chrono::year year, const TimeZone& zone) try {
  const Component calendar = parsed(withoutMark(text));
  const auto holidays = holidaysOf(calendar.get(), zone);
  std::vector<CalendarNote> notes;
  for (const auto& [day, name] : namesOf(holidays, year / 1 / 1, year / 12 / 31))
    notes.push_back({year_month_day(day), name});
  return notes;
} catch (const BadInput& fault) {
  refuse(source, fault.what());
}

std::vector<CalendarNote> holidaysOf(const std::string& file, std::chrono::year year, const TimeZone& zone) {
  std::ifstream stream(file, std::ios::binary);
  std::string text(largestFile + 1, '\0');
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(stream.gcount()));
  if (text.empty() || stream.bad()) refuse(file, "cannot be read");
  if (text.size() > largestFile) refuse(file, "is larger than 1 MB");
  return holidaysIn(text, file, year, zone);
}

}  // namespace velmora::app
