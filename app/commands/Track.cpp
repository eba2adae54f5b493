#include <app/answers/Days.h>
#include <app/answers/SkyPositions.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/Csv.h>
#include <app/text/TextTable.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

/// From midnight by the step, and the midnight that ends the day.
std::vector<SkyPosition> answer(const Query& query) {
  const almanac::Interval day = intervalOf({dayOf(query)}, query);
  std::vector<Instant> instants;
  for (Instant instant = day.start; instant < day.end; instant += query.request.step)
    instants.push_back(instant);
  if (day.end < ephemeris::endInstant()) instants.push_back(day.end);
  return positionsAt(instants, query.request.body, query.place);
}

Json json(const Query& query) {
  Json samples = Json::array();
  for (const SkyPosition& sample : answer(query)) samples.push_back(positionJson(sample, query.place));
  return samples;
}

std::string csv(const Query& query) {
  std::vector<std::string> columns = {"instant"};
  columns.insert(columns.end(), positionColumns().begin(), positionColumns().end());
  return csvTable(columns, json(query));
}

std::string text(const Query& query) {
  TextTable table({words("Time"), words("Elevation"), words("Azimuth"), words("Direction")});
  for (const SkyPosition& sample : answer(query)) {
    table.add({localText(sample.instant, query.place.zone, query.use24HourClock),
               degreesText(sample.position.apparentAltitude), degreesText(sample.position.azimuth),
               compassPoint(sample.position.azimuth)});
  }
  const bool isSun = query.request.body == almanac::Body::sun;
  return query.place.heading() + (isSun ? words("Path of the Sun") : words("Path of the Moon")) + "\n\n" +
         table.text(query.boldHeadings);
}

}  // namespace

const Answer trackAnswer{jsonLineOf<json>, text, csv};

}  // namespace velmora::app
