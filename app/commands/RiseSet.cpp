#include <app/answers/Days.h>
#include <app/answers/SkyDayJson.h>
#include <app/commands/Commands.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

using almanac::AllDay;
using almanac::Body;
using almanac::EventKind;

constexpr almanac::EventChoice everything{};

std::string json(const Query& query) {
  JsonText json;
  json.openArray();
  for (const SkyDay& day : skyDaysOf(query, everything)) writeSkyDay(json, day, query);
  json.closeArray();
  return json.text();
}

std::string csv(const Query& query) { return skyDaysCsv(skyDaysOf(query, everything)); }

/// A column of a day's events, or of the length of daylight.
struct Column {
  std::string heading;
  Body body = Body::sun;
  std::optional<EventKind> kind = std::nullopt;  ///< none: the length of daylight
};

using Columns = std::vector<Column>;

Columns dawns(Twilight twilight) {
  const Column civil{words("Dawn"), Body::sun, EventKind::civilDawn};
  const Column nautical{words("Dawn"), Body::sun, EventKind::nauticalDawn};
  const Column astronomical{words("Dawn"), Body::sun, EventKind::astronomicalDawn};
  switch (twilight) {
    case Twilight::civil:
      return {civil};
    case Twilight::nautical:
      return {nautical};
    case Twilight::astronomical:
      return {astronomical};
    case Twilight::all:
      return {{words("Astr."), Body::sun, EventKind::astronomicalDawn},
              {words("Naut."), Body::sun, EventKind::nauticalDawn},
              {words("Civil"), Body::sun, EventKind::civilDawn}};
  }
  return {};
}

EventKind duskOf(EventKind dawn) {
  if (dawn == EventKind::civilDawn) return EventKind::civilDusk;
  return dawn == EventKind::nauticalDawn ? EventKind::nauticalDusk : EventKind::astronomicalDusk;
}

/// The columns of dawn once more, in the order of the evening.
Columns dusks(Twilight twilight) {
  Columns evening;
  for (const Column& dawn : dawns(twilight)) {
    const std::string heading = twilight == Twilight::all ? dawn.heading : words("Dusk");
    evening.insert(evening.begin(), {heading, Body::sun, duskOf(*dawn.kind)});
  }
  return evening;
}

Columns columnsOf(const Request& request) {
  Columns columns = dawns(request.twilight);
  columns.push_back({words("Sunrise"), Body::sun, EventKind::rise});
  columns.push_back({words("Sunset"), Body::sun, EventKind::set});
  for (const Column& dusk : dusks(request.twilight)) columns.push_back(dusk);
  if (request.transits) columns.push_back({words("Noon"), Body::sun, EventKind::transit});
  if (request.twilight != Twilight::all) columns.push_back({words("Daytime")});
  columns.push_back({words("Moonrise"), Body::moon, EventKind::rise});
  columns.push_back({words("Moonset"), Body::moon, EventKind::set});
  if (request.transits) columns.push_back({words("Transit"), Body::moon, EventKind::transit});
  return columns;
}

using Times = std::vector<std::string>;

/// The times of each column; none in those that hold no events.
std::vector<Times> timesOf(const SkyDay& day, const Columns& columns, const Query& query) {
  std::vector<Times> times;
  for (const Column& column : columns)
    times.push_back(column.kind ? eventTimes(day, column.body, *column.kind, query) : Times{});
  return times;
}

/// One cell stands for rise and set, which lie side by side, where a body is up or down all day.
TextTable::Row rowOf(const SkyDay& day, const Columns& columns, const std::vector<Times>& times) {
  TextTable::Row row{dateText(day.date)};
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const Column& column = columns[i];
    const AllDay allDay = column.body == Body::sun ? day.sky.sun : day.sky.moon;
    if (!column.kind) {
      row.emplace_back(daylightText(day));
    } else if (allDay != AllDay::no && column.kind == EventKind::rise) {
      row.emplace_back(allDayText(allDay), 2);
    } else if (allDay == AllDay::no || column.kind != EventKind::set) {
      row.emplace_back(times[i].empty() ? words("none") : times[i].front());
    }
  }
  return row;
}

/// What happens twice on the day has its second time on a line below the first.
void addDay(TextTable& table, const SkyDay& day, const Columns& columns, const Query& query) {
  const std::vector<Times> times = timesOf(day, columns, query);
  table.add(rowOf(day, columns, times));
  TextTable::Row below{""};
  bool isNeeded = false;
  for (const Times& ofColumn : times) {
    below.emplace_back(ofColumn.size() > 1 ? ofColumn[1] : "");
    isNeeded = isNeeded || ofColumn.size() > 1;
  }
  if (isNeeded) table.add(below);
}

std::string titleOf(Twilight twilight) {
  switch (twilight) {
    case Twilight::civil:
      return words("Dawn and dusk: civil twilight");
    case Twilight::nautical:
      return words("Dawn and dusk: nautical twilight");
    case Twilight::astronomical:
      return words("Dawn and dusk: astronomical twilight");
    case Twilight::all:
      return words("Dawn and dusk: astronomical, nautical and civil twilight");
  }
  return "";
}

std::string text(const Query& query) {
  const auto& request = query.request;
  const auto days = skyDaysOf(query, {.twilight = true, .transits = request.transits});
  const Columns columns = columnsOf(request);
  std::vector<std::string> headings{words("Date")};
  for (const Column& column : columns) headings.push_back(column.heading);
  TextTable table(headings);
  for (const SkyDay& day : days) addDay(table, day, columns, query);
  return query.place.heading() + titleOf(request.twilight) + "\n\n" + table.text(query.boldHeadings);
}

}  // namespace

const Answer riseSetAnswer{json, text, csv};

}  // namespace velmora::app
