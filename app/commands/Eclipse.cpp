#include <app/answers/Days.h>
#include <app/answers/SeenEclipses.h>
#include <app/commands/Commands.h>
#include <app/text/ClockText.h>
#include <app/text/LocalDate.h>
#include <velmora/platform/resources/Words.h>

namespace velmora::app {
namespace {

Json json(const Query& query) { return eclipseJson(eclipseOf(dayOf(query), query)); }

std::string described(const SeenEclipse& seen, const Query& query) {
  const std::string greatest =
      words("Greatest at %1, somewhere on Earth",
            {localText(seen.eclipse.maximum, query.place.zone, query.use24HourClock)});
  return eclipseTitle(seen.eclipse) + "\n" +
         (seen.eclipse.body == almanac::Body::sun ? greatest + "\n" : "") + describedInLines(seen, query) +
         "\n" + (seen.isVisible() ? "\n" + momentsText(*seen.local, query) : "") +
         noteOnTimeToCome(seen.eclipse.maximum);
}

std::string text(const Query& query) {
  const CivilDate day = dayOf(query);
  const auto eclipse = eclipseOf(day, query);
  return query.place.heading() + localDate(day, DateForm::whole) + "\n\n" +
         (eclipse ? described(*eclipse, query) : words("There is no eclipse on this day.") + "\n");
}

}  // namespace

const Answer eclipseAnswer{jsonLineOf<json>, text};

}  // namespace velmora::app
