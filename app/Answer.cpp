#include <app/Answer.h>

#include <app/RequestScope.h>
#include <app/commands/Command.h>

namespace velmora::app {
namespace {

/// Asks the command while the process is as the request and its place want it.
template <typename Ask>
auto asked(const Request& request, bool boldHeadings, Ask ask) {
  const RequestScope scope(request);
  const Place place = placeOf(request);
  const ScopedDefaultTimeZone zone(place.zone);
  return ask(Query{request, place, scope.use24HourClock(), boldHeadings});
}

}  // namespace

Json jsonAnswer(const Request& request) { return asked(request, false, request.command->json); }

std::string printedAnswer(const Request& request, bool boldHeadings) {
  if (request.json) return jsonLine(jsonAnswer(request)) + "\n";
  return asked(request, boldHeadings, request.command->text);
}

}  // namespace velmora::app
