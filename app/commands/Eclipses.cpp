#include <app/commands/Eclipses.h>

#include <app/Eclipses.h>
#include <app/PhaseYear.h>
#include <app/text/ClockText.h>
#include <app/text/EnglishDate.h>
#include <app/text/TextTable.h>

namespace velmora::app {
namespace {

std::vector<SeenEclipse> answer(const Query& query) {
  return eclipsesOfYear(coveredYear(query), query.place);
}

Json json(const Query& query) {
  Json list = Json::array();
  for (const auto& [eclipse, isVisible] : answer(query)) {
    list.push_back(eclipseJson(eclipse.get()));
    list.back()["isVisible"] = isVisible;
  }
  return list;
}

std::string text(const Query& query) {
  TextTable table({"Greatest", "From here", "Eclipse"});
  for (const auto& [eclipse, isVisible] : answer(query)) {
    table.add({localText(eclipse->datetime, query.place.zone, query.use24HourClock),
               isVisible ? "visible" : "below the horizon", eclipseTitle(*eclipse)});
  }
  return query.place.heading() + "\n" + table.text(query.boldHeadings) +
         "\nVisible: at its height the eclipsed Sun or Moon is above the horizon.\n" + shadowNote;
}

}  // namespace

const Command& eclipsesCommand() {
  static const Command command{"eclipses",
                               "all eclipses of a year, and which of them are visible",
                               optionList({{"year"}, placeOptions(), outputOptions(), generalOptions()}),
                               "year",
                               json,
                               text};
  return command;
}

}  // namespace velmora::app
