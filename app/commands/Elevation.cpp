#include <app/answers/Days.h>
#include <app/answers/SkyPositions.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/Csv.h>
#include <app/text/Errors.h>
#include <app/text/TextTable.h>
#include <velmora/almanac/Events.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

double elevationOf(const Query& query) {
  if (!query.request.degrees) throw BadInput("the elevation is missing; accepted: -90 to 90 degrees");
  return *query.request.degrees + 0.0;  // 0 for -0
}

std::vector<almanac::Crossing> answer(const Query& query) {
  const double elevation = elevationOf(query);
  const almanac::Interval range = rangeOf(query);
  return almanac::crossings(query.place.observer(), query.request.body, elevation, range.start, range.end);
}

Json json(const Query& query) {
  const auto crossings = answer(query);
  std::vector<Instant> instants;
  for (const almanac::Crossing& crossing : crossings) instants.push_back(crossing.at);
  const auto positions = positionsAt(instants, query.request.body, query.place);
  Json list = Json::array();
  for (std::size_t i = 0; i < crossings.size(); ++i) {
    list.push_back(positionJson(positions[i], query.place));
    list.back()["isRising"] = crossings[i].isRising;
  }
  return list;
}

std::string csv(const Query& query) {
  std::vector<std::string> columns = {"instant", "isRising"};
  columns.insert(columns.end(), positionColumns().begin(), positionColumns().end());
  return csvTable(columns, json(query));
}

std::string text(const Query& query) {
  TextTable table({words("Time"), words("Azimuth"), words("Direction"), ""});
  const auto crossings = answer(query);
  for (const almanac::Crossing& crossing : crossings) {
    table.add({localText(crossing.at, query.place.zone, query.use24HourClock), degreesText(crossing.azimuth),
               compassPoint(crossing.azimuth), crossing.isRising ? words("rising") : words("setting")});
  }
  const std::string degrees = Json(elevationOf(query)).dump() + "°";
  const bool isSun = query.request.body == almanac::Body::sun;
  return query.place.heading() +
         (isSun ? words("Sun at an elevation of %1", {degrees})
                : words("Moon at an elevation of %1", {degrees})) +
         "\n\n" + (crossings.empty() ? words("Never in this time.") + "\n" : table.text(query.boldHeadings));
}

}  // namespace

const Answer elevationAnswer{jsonLineOf<json>, text, csv};

}  // namespace velmora::app
