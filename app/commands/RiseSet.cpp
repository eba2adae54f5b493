#include <app/commands/Commands.h>

#include <app/answers/Days.h>
#include <app/answers/RiseSetDay.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

Json json(const Query& query) {
  Json days = Json::array();
  for (const CivilDate date : daysOf(query))
    days.push_back(riseSetJson(riseSetDay(date, query.place, query.request.twilight)));
  return days;
}

/// How an event of the following day is told from one of the day.
enum class NextDay { inWords, byAStar };

class DayRows {
 public:
  DayRows(const std::vector<RiseSetDay>& days, bool use24HourClock, NextDay nextDay)
      : _use24HourClock(use24HourClock), _nextDay(nextDay) {
    for (const RiseSetDay& day : days) _table.add(row(day));
  }

  const TextTable& table() const { return _table; }

 private:
  TextTable::Row row(const RiseSetDay& day) const {
    const RiseSetData& record = day.record;
    TextTable::Row row{dateText(day.date), event(record.twilightBeginText)};
    addPair(row, record.sunRiseText, record.sunSetText, day.sun);
    row.emplace_back(event(record.twilightEndText));
    row.emplace_back(lengthText(daylightMinutes(day)));
    addPair(row, record.moonRiseText, record.moonSetText, day.moon);
    return row;
  }

  void addPair(TextTable::Row& row, const std::string& rise, const std::string& set,
               std::optional<AllDay> allDay) const {
    if (allDay) {
      row.emplace_back(allDayText(*allDay), 2);
    } else {
      row.emplace_back(event(rise));
      row.emplace_back(event(set));
    }
  }

  std::string event(const std::string& recordText) const {
    const auto found = dayEvent(recordText);
    if (!found) return "none";
    const std::string mark = _nextDay == NextDay::inWords ? " next day" : "*";
    return clockText(found->minutes, _use24HourClock) + (found->isNextDay ? mark : "");
  }

  bool _use24HourClock;
  NextDay _nextDay;
  TextTable _table{{"Date", "Dawn", "Sunrise", "Sunset", "Dusk", "Day", "Moonrise", "Moonset"}};
};

std::string tableOf(const std::vector<RiseSetDay>& days, const Query& query) {
  const DayRows inWords(days, query.use24HourClock, NextDay::inWords);
  if (inWords.table().width() <= pageWidth) return inWords.table().text(query.boldHeadings);
  const DayRows starred(days, query.use24HourClock, NextDay::byAStar);
  return starred.table().text(query.boldHeadings) + "* next day\n";
}

std::string text(const Query& query) {
  std::vector<RiseSetDay> days;
  for (const CivilDate date : daysOf(query))
    days.push_back(riseSetDayIn24Hours(date, query.place, query.request.twilight));
  return query.place.heading() + "Dawn and dusk: " + twilightName(query.request.twilight) + " twilight\n\n" +
         tableOf(days, query);
}

}  // namespace

const Answer riseSetAnswer{json, text};

}  // namespace velmora::app
