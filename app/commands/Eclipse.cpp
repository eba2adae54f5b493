#include <app/commands/Commands.h>

#include <app/answers/Days.h>
#include <app/answers/Eclipses.h>
#include <app/answers/PhaseYear.h>
#include <app/text/ClockText.h>
#include <app/text/EnglishDate.h>

namespace velmora::app {
namespace {

Json json(const Query& query) { return eclipseJson(visibleEclipse(coveredDay(query), query.place).get()); }

std::string described(const EclipseInfo& eclipse, const Query& query) {
  return eclipseTitle(eclipse) + "\nGreatest at " +
         localText(eclipse.datetime, query.place.zone, query.use24HourClock) + "\n" +
         (eclipse.isLunarEvent ? "" : shadowNote);
}

std::string text(const Query& query) {
  const CivilDate day = coveredDay(query);
  const auto eclipse = visibleEclipse(day, query.place);
  return query.place.heading() + englishDate(day, "EEEE d MMMM yyyy") + "\n\n" +
         (eclipse ? described(*eclipse, query) : "No eclipse is visible from here on this day.\n");
}

}  // namespace

const Answer eclipseAnswer{json, text};

}  // namespace velmora::app
