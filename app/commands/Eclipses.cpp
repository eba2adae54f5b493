#include <app/commands/Commands.h>

#include <app/answers/Eclipses.h>
#include <app/answers/PhaseYear.h>
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

const Answer eclipsesAnswer{json, text};

}  // namespace velmora::app
