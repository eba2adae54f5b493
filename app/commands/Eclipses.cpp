#include <app/answers/Days.h>
#include <app/answers/SeenEclipses.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/Csv.h>
#include <app/text/TextTable.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

Json json(const Query& query) {
  Json list = Json::array();
  for (const SeenEclipse& eclipse : eclipsesOfYear(query)) list.push_back(eclipseJson(eclipse));
  return list;
}

std::string csv(const Query& query) {
  Json rows = Json::array();
  for (const SeenEclipse& eclipse : eclipsesOfYear(query)) rows.push_back(eclipseRow(eclipse));
  return csvTable(eclipseColumns(), rows);
}

std::string text(const Query& query) {
  TextTable table({words("Time"), words("Eclipse"), words("From here")});
  const auto eclipses = eclipsesOfYear(query);
  for (const SeenEclipse& eclipse : eclipses) {
    table.add({localText(bestMoment(eclipse), query.place.zone, query.use24HourClock),
               eclipseTitle(eclipse.eclipse), seenText(eclipse)});
  }
  return query.place.heading() + "\n" + table.text(query.boldHeadings) + "\n" +
         words("Time: when most is seen from here; of what is not seen, when it is greatest on Earth.") +
         "\n" + (eclipses.empty() ? "" : noteOnTimeToCome(eclipses.back().eclipse.maximum));
}

}  // namespace

const Answer eclipsesAnswer{jsonLineOf<json>, text, csv};

}  // namespace velmora::app
